#include "workers/unit9_dite.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/datum.h"
#include "base/klavesy.h"
#include "base/kodova_stranka.h"
#include "base/rodne_cislo.h"
#include "base/text.h"
#include "shell/hodnota_text.h"
#include "store/table.h"
#include "workers/zvyhodneni.h"

namespace workers {

namespace {

/// What the date field shows for "no date" in rows of old.
constexpr base::Datum k_bez_data{1899, 12, 30};
constexpr int k_cislic_castky = 4;
constexpr int k_nejvyssi_castka = 9999;

/// A text field of the form and of `Deti`, with the name that messages call it by.
struct TextovePole {
    const char* pole;
    const char* nazev;
    std::string TForm9::*clen;
    int delka;
};
constexpr TextovePole k_texty[] = {
    {"Jmeno", "Jméno", &TForm9::Jmeno, 20},
    {"Prijmeni", "Příjmení", &TForm9::Prijmeni, 30},
    {"Bydliste", "Bydliště", &TForm9::Bydliste, 30},
    {"Rodne_cislo", "Rodné číslo", &TForm9::Rodne_cislo, 13},
};

/// The date of the field; no date for a blank one, for 30.12.1899, and for a text that is none.
base::Datum datum_pole(const std::string& text) {
    const base::Datum datum = base::datum_z_textu(base::orez(text)).value_or(base::Datum{});
    return datum == k_bez_data ? base::Datum{} : datum;
}

bool znamena_bez_data(const std::string& text) {
    return !base::neprazdny(text) || base::orez(text) == base::datum_textem(k_bez_data);
}

void otevri_deti(store::Table& deti, shell::Session& session) {
    deti.set_connection(session.data());
    deti.set_table_name("Deti");
    deti.open();
}

}  // namespace

TForm9::TForm9(shell::Session& session, std::int64_t pocitadlo, int cislo_pracovnika)
    : Cislo_pracovnika(std::to_string(cislo_pracovnika)), Pocitadlo(pocitadlo), session_(session) {}

void TForm9::FormShow() {
    if (Pocitadlo != 0) {
        nacti_vetu();
    } else {
        Odpocitatelna_dan =
            std::to_string(mesicni_zvyhodneni_na_dite(Poradi, session_.mesic_v_poli, session_.rok));
    }
    fokus = "Jmeno";
    PoradiZmena();
}

void TForm9::nacti_vetu() {
    store::Table deti;
    otevri_deti(deti, session_);
    if (!deti.locate("Pocitadlo", Pocitadlo)) {
        throw store::StoreError(
            fmt::format("V tabulce Deti není věta s Pocitadlo = {}.", Pocitadlo));
    }
    Cislo_pracovnika = deti.text("Cislo_pracovnika");
    for (const TextovePole& text : k_texty)
        this->*text.clen = deti.text(text.pole);
    const base::Datum datum = deti.date("Datum_narozeni");
    Datum_narozeni = datum == k_bez_data ? "" : base::datum_textem(datum);
    Poradi =
        static_cast<int>(std::clamp<std::int64_t>(deti.integer("Poradi"), 1, k_nejvyssi_poradi));
    Odpocitatelna_dan = deti.text("Odpocitatelna_dan");
}

void TForm9::Rodne_cisloExit() {
    if (!znamena_bez_data(Datum_narozeni) || !base::neprazdny(Rodne_cislo)) return;
    Datum_narozeni = base::datum_textem(base::rc2datum(Rodne_cislo));
    oznam_zmenu();
}

void TForm9::PoradiZmena() {
    const int castka = mesicni_zvyhodneni_na_dite(Poradi, session_.mesic_v_poli, session_.rok);
    zakonna_castka = castka == 0
                         ? fmt::format("zákonná částka roku {} není k dispozici", session_.rok)
                         : fmt::format("podle zákona {} Kč", castka);
    oznam_zmenu();
}

bool TForm9::povol_klavesu_castky(char znak, std::string_view dosud) const {
    const bool pusti = base::hlidej_cele_cislo_klavesy(znak, dosud, base::ZnamenkoRezim::bez_minus,
                                                       k_cislic_castky);
    if (!pusti) session_.obsluha().pipni();
    return pusti;
}

bool TForm9::povol_klavesu_textu(std::string_view pole, char znak, std::string_view dosud) const {
    const auto* text = std::find_if(std::begin(k_texty), std::end(k_texty),
                                    [pole](const TextovePole& t) { return t.pole == pole; });
    if (text == std::end(k_texty) || base::hlidej_delku_klavesy(znak, dosud, text->delka)) {
        return true;
    }
    session_.obsluha().pipni();
    return false;
}

/// Shows the message and goes to the field.
bool TForm9::odmitni(const char* pole, const std::string& zprava) {
    session_.obsluha().hlaska(zprava);
    fokus = pole;
    oznam_zmenu();
    return false;
}

bool TForm9::zkontroluj_zadani() {
    using base::neprazdny;
    const std::string cislo = base::orez(Cislo_pracovnika);
    const std::string castka = base::orez(Odpocitatelna_dan);
    const struct {
        bool chybi;
        const char* pole;
        const char* zprava;
    } testy[] = {
        {cislo.empty() || cislo == "0", "Cislo_pracovnika", "Nezadali jste číslo pracovníka."},
        {!neprazdny(Jmeno), "Jmeno", "Nezadali jste jméno dítěte."},
        {!neprazdny(Prijmeni), "Prijmeni", "Nezadali jste příjmení dítěte."},
        {!neprazdny(Rodne_cislo), "Rodne_cislo", "Nezadali jste rodné číslo dítěte."},
        {!base::rodne_cislo_ok(Rodne_cislo), "Rodne_cislo", "Chybná struktura rodného čísla."},
        {castka.empty() || castka == "0", "Odpocitatelna_dan",
         "Nezadali jste Kč daňového zvýhodnění na toto dítě."},
    };
    for (const auto& test : testy)
        if (test.chybi) return odmitni(test.pole, test.zprava);
    return true;
}

/// What the key filters would not have let in (a pasted text) and the table could not hold.
bool TForm9::zkontroluj_ulozitelnost() {
    for (const TextovePole& text : k_texty) {
        const std::string& obsah = this->*text.clen;
        if (base::pocet_znaku(obsah) > static_cast<std::size_t>(text.delka)) {
            return odmitni(text.pole,
                           fmt::format("{} smí mít nejvýše {} znaků.", text.nazev, text.delka));
        }
        if (!base::je_v_1250(obsah)) {
            return odmitni(text.pole,
                           fmt::format("{} obsahuje znak, který nelze uložit.", text.nazev));
        }
    }
    if (!znamena_bez_data(Datum_narozeni) && datum_pole(Datum_narozeni).je_prazdne()) {
        return odmitni("Datum_narozeni", "Datum narození nemá správnou strukturu.");
    }
    if (!shell::presne_cele(Odpocitatelna_dan, 1, k_nejvyssi_castka)) {
        return odmitni("Odpocitatelna_dan", "Daňové zvýhodnění musí být celé číslo od 1 do 9999.");
    }
    return true;
}

void TForm9::zapis() {
    store::Transaction transakce(session_.data());
    store::Table deti;
    otevri_deti(deti, session_);
    if (Pocitadlo == 0) {
        deti.append();
    } else if (deti.locate("Pocitadlo", Pocitadlo)) {
        deti.edit();
    } else {
        throw store::StoreError(
            fmt::format("V tabulce Deti už není věta s Pocitadlo = {}.", Pocitadlo));
    }
    deti.set("Cislo_pracovnika", base::je_cele_cislo(Cislo_pracovnika));
    for (const TextovePole& text : k_texty)
        deti.set(text.pole, this->*text.clen);
    const base::Datum datum = datum_pole(Datum_narozeni);
    deti.set("Datum_narozeni", datum.je_prazdne() ? store::Value() : store::Value(datum));
    deti.set("Poradi", Poradi);
    deti.set("Odpocitatelna_dan", base::je_cele_cislo(Odpocitatelna_dan));
    deti.post();
    const std::int64_t zapsana = deti.integer("Pocitadlo");
    transakce.commit();
    Pocitadlo = zapsana;
}

void TForm9::acOkExecute() {
    if (!zkontroluj_zadani() || !zkontroluj_ulozitelnost()) return;
    zapis();
    ulozeno = true;
    zavreno = true;
    oznam_zmenu();
}

void TForm9::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace workers
