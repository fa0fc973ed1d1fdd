#include "paysheet/unit14_nastaveni.h"

#include <fmt/format.h>

#include "base/text.h"
#include "paysheet/okresy_cssz.h"
#include "paysheet/unit14_kontrola.h"
#include "paysheet/unit14_pole.h"

namespace paysheet {

const char* stranka_slovy(Stranka stranka) {
    static constexpr std::array<const char*, 4> k_stranky{"Legislativa", "Základní parametry",
                                                          "Pojištění, daně a účtování", "ČSSZ"};
    return k_stranky[static_cast<std::size_t>(stranka)];
}

std::string ovladac_nejdou(std::size_t radek, std::size_t poradi) {
    return fmt::format("scNejdou{}{}", radek + 7, poradi + 1);
}

TForm14::TForm14(shell::Session& session) : session_(session) {}

void TForm14::vypln_z_nastaveni(const shell::Nastaveni& nastaveni) {
    shell::RidiciZorv nepouzity;
    shell::Nastaveni kopie = nastaveni;
    for (const PoleNastaveni& pole : pole_nastaveni()) {
        if (pole.soubor != Soubor::nastaveni_ini) continue;
        this->*pole.text = hodnota_do_pole(pole, {nepouzity, kopie});
    }
    const int sazeb = static_cast<int>(k_sazby_pojistneho.size());
    const int kod = nastaveni.KodSazbyPojistneho;
    scKodSazbyPojistneho = kod >= 1 && kod <= sazeb ? kod - 1 : -1;
    scVstupDoUzavrenychMesicu = nastaveni.VstupDoUzavrenychMesicu;
    okresy = cti_okresy_cssz(session_.slozka_programu / "Sablony" / "C_COKR.txt");
    scCsszOkres = okres_podle_kodu(okresy, nastaveni.cssz_okres);
}

void TForm14::dosad_do_nastaveni(shell::Nastaveni& nastaveni) const {
    shell::RidiciZorv nepouzity;
    for (const PoleNastaveni& pole : pole_nastaveni()) {
        if (pole.soubor != Soubor::nastaveni_ini) continue;
        pole_do_hodnoty(pole, this->*pole.text, {nepouzity, nastaveni});
    }
    nastaveni.KodSazbyPojistneho = scKodSazbyPojistneho + 1;
    nastaveni.VstupDoUzavrenychMesicu = scVstupDoUzavrenychMesicu;
    nastaveni.cssz_okres = kod_okresu(scCsszOkres);
    for (std::size_t r = 0; r < scNejdou.size(); ++r) {
        for (std::size_t c = 0; c < scNejdou[r].size(); ++c) {
            nastaveni.nejde_do_pojisteni[r][c] =
                static_cast<std::int16_t>(base::je_cele_cislo(scNejdou[r][c]));
        }
    }
}

void TForm14::dosad_do_zaznamu(shell::RidiciZorv& zaznam) const {
    shell::Nastaveni nepouzite;
    for (const PoleNastaveni& pole : pole_nastaveni()) {
        if (pole.soubor != Soubor::ridici_zorv) continue;
        pole_do_hodnoty(pole, this->*pole.text, {zaznam, nepouzite});
    }
    zaznam.proplaci_davky = scNemocenskeDavky;
}

void TForm14::FormShow() {
    nadpis = "Nastavení mezd - " + session_.radek_firmy;
    stranka = Stranka::legislativa;
    shell::Nastaveni nepouzite;
    for (const PoleNastaveni& pole : pole_nastaveni()) {
        if (pole.soubor != Soubor::ridici_zorv) continue;
        this->*pole.text = hodnota_do_pole(pole, {session_.ridici_zorv, nepouzite});
    }
    scNemocenskeDavky = session_.ridici_zorv.proplaci_davky;
    for (std::size_t r = 0; r < scNejdou.size(); ++r) {
        for (std::size_t c = 0; c < scNejdou[r].size(); ++c) {
            const int sloupec = session_.nastaveni.nejde_do_pojisteni[r][c];
            scNejdou[r][c] = sloupec == 0 ? "" : std::to_string(sloupec);
        }
    }
    oznam_zmenu();
}

void TForm14::acUlozitExecute() {
    for (const ChybaNastaveni& chyba : zkontroluj_nastaveni(*this, session_.ridici_zorv)) {
        session_.obsluha().hlaska(chyba.zprava);
        stranka = chyba.stranka;
        fokus = chyba.ovladac;
        oznam_zmenu();
        if (!chyba.pokracovat) return;
    }
    shell::RidiciZorv zaznam = session_.ridici_zorv;
    dosad_do_zaznamu(zaznam);
    shell::zapis_zaznam(session_.soubor_ridici_zorv(), shell::bajty(zaznam));
    session_.ridici_zorv = zaznam;
    ulozeno = true;
    zavreno = true;
    oznam_zmenu();
}

void TForm14::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

void TForm14::scVstupDoUzavrenychMesicuClick() {
    if (!scVstupDoUzavrenychMesicu) return;
    session_.obsluha().hlaska(
        "Povolujete vstup do uzavřených měsíců a jste zodpovědní za korektnost prováděných akcí!");
}

bool acNastaveniParametruExecute(shell::Session& session) {
    const shell::RidiciZorv puvodni = session.ridici_zorv;
    TForm14 form(session);
    form.vypln_z_nastaveni(session.nastaveni);
    form.FormShow();
    session.obsluha().ukaz_modalne(form);
    if (!form.ulozeno) return false;
    shell::Nastaveni nastaveni = session.nastaveni;
    form.dosad_do_nastaveni(nastaveni);
    try {
        shell::zapis_nastaveni(session.soubor_nastaveni(), nastaveni);
    } catch (...) {
        session.ridici_zorv = puvodni;
        shell::zapis_zaznam(session.soubor_ridici_zorv(), shell::bajty(puvodni));
        throw;
    }
    session.nastaveni = nastaveni;
    return true;
}

}  // namespace paysheet
