#include "paysheet/unit4_sloupec.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/klavesy.h"
#include "base/kodova_stranka.h"
#include "base/text.h"
#include "shell/hodnota_text.h"

namespace paysheet {

namespace {

constexpr int k_modul_bez_textu = 4;
constexpr std::size_t k_delka_textu = 30, k_delka_nadpisu = 15;
constexpr int k_cislic_mezi = 7, k_cislic_predrazeni = 2, k_celych = 7, k_desetinnych = 4;
constexpr long long k_nejvyssi_mez = 9999999;  // k_cislic_mezi digits
constexpr std::array<const char*, 4> k_poradi{"první", "druhé", "třetí", "čtvrté"};

std::string jmeno_pole(const char* pole, std::size_t poradi) {
    return fmt::format("{}_{}", pole, poradi + 1);
}

std::string desetinne_pole(const store::Table& tabulka, const std::string& pole) {
    const store::Value hodnota = tabulka.value(pole);
    return hodnota.is_empty() ? "" : base::castka_prosta(hodnota.as_number());
}

/// A blank field stays empty in the table.
store::Value cele(const std::string& text) {
    return base::neprazdny(text) ? store::Value(base::je_cele_cislo(text)) : store::Value();
}

store::Value desetinne(const std::string& text) {
    return base::neprazdny(text) ? store::Value(base::je_desetinne_cislo(text)) : store::Value();
}

/// An index of a list, none when the stored number lies outside.
int index_v(std::size_t delka, std::int64_t hodnota) {
    return hodnota >= 0 && hodnota < static_cast<std::int64_t>(delka) ? static_cast<int>(hodnota)
                                                                      : -1;
}

}  // namespace

TForm4::TForm4(shell::Session& session, store::Table& ridici)
    : nadpis("Parametry výplatní listiny - " + session.radek_firmy),
      session_(session),
      ridici_(ridici),
      veta_(ridici.bookmark()) {
    nacti_vetu();
    zablokuj_nepristupna_pole();
}

void TForm4::nacti_vetu() {
    const std::int64_t cislo_modulu = ridici_.integer("Modul");
    modul = std::to_string(cislo_modulu);
    sloupec = ridici_.text("Sloupec");
    text = ridici_.text("text");
    text_povolen = cislo_modulu != k_modul_bez_textu;
    detail_viditelny = cislo_modulu == 1 || cislo_modulu == 3;
    if (!detail_viditelny) return;
    scDny = index_v(k_dny.size(), ridici_.integer("Jake_dny"));
    scHodiny = index_v(k_hodiny.size(), ridici_.integer("Jake_hodiny"));
    scVypocet = index_v(k_vypocty.size(), ridici_.integer("var_vyp") - 1);
    scDatum = ridici_.boolean("Datum");
    scStredisko = ridici_.boolean("Stredisko");
    scVykon = ridici_.boolean("Vykon");
    scStroj = ridici_.boolean("Stroj");
    for (std::size_t i = 0; i < hodnoty.size(); ++i) {
        Hodnota& h = hodnoty[i];
        h.nadpis = ridici_.text(jmeno_pole("nadpis", i));
        h.predrazeno = ridici_.text(jmeno_pole("predrazeno", i));
        h.min = ridici_.text(jmeno_pole("Min", i));
        h.max = ridici_.text(jmeno_pole("Max", i));
        h.konstanta = desetinne_pole(ridici_, jmeno_pole("Konstanta", i));
    }
}

void TForm4::zablokuj_nepristupna_pole() {
    for (Hodnota& h : hodnoty)
        h.povoleno = base::neprazdny(h.nadpis);
    oznam_zmenu();
}

void TForm4::opusteni_nadpisu(std::size_t poradi) {
    Hodnota& h = hodnoty.at(poradi);
    if (!base::neprazdny(h.nadpis)) {
        h.predrazeno.clear();
        h.min.clear();
        h.max.clear();
        h.konstanta.clear();
    }
    zablokuj_nepristupna_pole();
}

bool TForm4::povol_klavesu(Pole pole, char znak, std::string_view dosud) const {
    using base::ZnamenkoRezim;
    const bool pusti = [&] {
        switch (pole) {
            case Pole::predrazeno:
                return base::hlidej_cele_cislo_klavesy(znak, dosud, ZnamenkoRezim::bez_minus,
                                                       k_cislic_predrazeni);
            case Pole::min:
            case Pole::max:
                return base::hlidej_cele_cislo_klavesy(znak, dosud, ZnamenkoRezim::minus_na_zacatku,
                                                       k_cislic_mezi);
            case Pole::konstanta:
                break;
        }
        return base::hlidej_desetinne_cislo_klavesy(znak, dosud, ZnamenkoRezim::minus_na_zacatku,
                                                    k_celych, k_desetinnych);
    }();
    if (!pusti) session_.obsluha().pipni();
    return pusti;
}

/// Shows the message and goes to the field.
bool TForm4::odmitni(std::string pole, const std::string& zprava) {
    session_.obsluha().hlaska(zprava);
    fokus = std::move(pole);
    oznam_zmenu();
    return false;
}

/// Texts that the table could not hold.
bool TForm4::zkontroluj_texty() {
    const auto vejde_se = [&](const std::string& pole, const std::string& obsah,
                              std::size_t znaku) {
        if (base::pocet_znaku(obsah) > znaku) {
            return odmitni(pole,
                           fmt::format("Text \"{}\" smí mít nejvýše {} znaků.", obsah, znaku));
        }
        if (!base::je_v_1250(obsah)) {
            return odmitni(pole,
                           fmt::format("Text \"{}\" obsahuje znak, který nelze uložit.", obsah));
        }
        return true;
    };
    if (!vejde_se("text", text, k_delka_textu)) return false;
    for (std::size_t i = 0; i < hodnoty.size(); ++i) {
        if (!vejde_se(jmeno_pole("nadpis", i), hodnoty[i].nadpis, k_delka_nadpisu)) return false;
    }
    return true;
}

/// Numbers that the key filters would not have let in (a pasted text).
bool TForm4::zkontroluj_cisla(std::size_t poradi) {
    const Hodnota& h = hodnoty[poradi];
    for (const auto& [pole, obsah] : {std::pair{"Min", &h.min}, std::pair{"Max", &h.max}}) {
        if (!base::neprazdny(*obsah)) continue;
        if (shell::presne_cele(*obsah, -k_nejvyssi_mez, k_nejvyssi_mez)) continue;
        return odmitni(jmeno_pole(pole, poradi),
                       fmt::format("Údaj \"{}\" musí být celé číslo, nejvýše {} číslic.", *obsah,
                                   k_cislic_mezi));
    }
    if (!base::neprazdny(h.konstanta) || shell::presne_desetinne(h.konstanta)) return true;
    return odmitni(jmeno_pole("Konstanta", poradi),
                   fmt::format("Údaj \"{}\" musí být číslo.", h.konstanta));
}

bool TForm4::proved_kontrolu_dat() {
    constexpr int k_posledni = static_cast<int>(k_predrazeno.size()) - 1;
    for (std::size_t i = 0; i < hodnoty.size(); ++i) {
        const std::string& predrazeno = hodnoty[i].predrazeno;
        if (!base::neprazdny(predrazeno) || shell::presne_cele(predrazeno, 0, k_posledni)) continue;
        return odmitni(jmeno_pole("predrazeno", i),
                       fmt::format("Údaj \"předřadit\" u \"{} hodnoty\" neodpovídá.", k_poradi[i]));
    }
    for (std::size_t i = 0; i < hodnoty.size(); ++i) {
        if (!zkontroluj_cisla(i)) return false;
    }
    return true;
}

void TForm4::dosad_do_vety() {
    if (text_povolen) ridici_.set("text", text);
    if (!detail_viditelny) return;
    // A stored number that the list does not offer stays until another one is chosen.
    if (scDny >= 0) ridici_.set("Jake_dny", scDny);
    if (scHodiny >= 0) ridici_.set("Jake_hodiny", scHodiny);
    ridici_.set("var_vyp", scVypocet + 1);
    ridici_.set("Datum", scDatum);
    ridici_.set("Stredisko", scStredisko);
    ridici_.set("Vykon", scVykon);
    ridici_.set("Stroj", scStroj);
    for (std::size_t i = 0; i < hodnoty.size(); ++i) {
        const Hodnota& h = hodnoty[i];
        ridici_.set(jmeno_pole("nadpis", i), h.nadpis);
        ridici_.set(jmeno_pole("predrazeno", i), cele(h.predrazeno));
        ridici_.set(jmeno_pole("Min", i), cele(h.min));
        ridici_.set(jmeno_pole("Max", i), cele(h.max));
        ridici_.set(jmeno_pole("Konstanta", i), desetinne(h.konstanta));
    }
}

void TForm4::Button2Click() {
    if (!zkontroluj_texty()) return;
    if (detail_viditelny && !proved_kontrolu_dat()) return;
    if (detail_viditelny && scVypocet < 0) return;
    if (!ridici_.go_to(veta_)) {
        session_.obsluha().hlaska("Sloupec už ve výplatní listině není.");
        return;
    }
    store::Transaction transakce(session_.data());
    ridici_.edit();
    try {
        dosad_do_vety();
        ridici_.post();
        transakce.commit();
    } catch (...) {
        ridici_.cancel();
        throw;
    }
    ulozeno = true;
    zavreno = true;
    oznam_zmenu();
}

void TForm4::Button1Click() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace paysheet
