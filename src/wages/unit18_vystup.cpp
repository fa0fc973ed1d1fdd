#include "wages/unit18_vystup.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/text.h"
#include "report/nahled.h"
#include "store/transfer.h"

namespace wages {
namespace {

using report::Zarovnani;

template <class Hodnota>
store::Value nebo_prazdne(const std::optional<Hodnota>& hodnota) {
    return hodnota ? store::Value(*hodnota) : store::Value();
}

std::string nebo_nic(Castka castka) {
    return base::je_nula(castka) ? "" : base::castka_prosta(castka);
}

}  // namespace

std::string csv_vet(const std::vector<UlozenaVeta>& vety) {
    store::Rows csv{{"Mesic",         "Cislo_pracovnika",
                     "Prijmeni",      "Jmeno",
                     "Modul",         "Sloupec",
                     "Sloupec_slovy", "Dny_od",
                     "Dny_neod",      "Hod_od",
                     "Hod_neod",      "Hod_vedl",
                     "Datum",         "Stredisko",
                     "Vykon",         "Stroj",
                     "Kc1",           "Kc2",
                     "Kc3",           "Kc4",
                     "Kc_cel",        "Text"},
                    {}};
    for (const UlozenaVeta& u : vety) {
        const VetaHrube& v = u.veta;
        csv.rows.push_back({u.mesic,
                            u.cislo,
                            u.prijmeni,
                            u.jmeno,
                            v.modul,
                            v.sloupec,
                            v.sloupec_slovy,
                            nebo_prazdne(v.dny_od),
                            nebo_prazdne(v.dny_neod),
                            nebo_prazdne(v.hod_od),
                            nebo_prazdne(v.hod_neod),
                            nebo_prazdne(v.hod_vedl),
                            v.datum,
                            nebo_prazdne(v.stredisko),
                            nebo_prazdne(v.vykon),
                            nebo_prazdne(v.stroj),
                            nebo_prazdne(v.kc[0]),
                            nebo_prazdne(v.kc[1]),
                            nebo_prazdne(v.kc[2]),
                            nebo_prazdne(v.kc[3]),
                            v.kc_cel,
                            v.text});
    }
    return store::rows_to_csv(csv);
}

std::vector<std::string> filtr_slovy(const FiltrHrubych& filtr) {
    std::vector<std::string> radky;
    const auto pridej = [&radky](const char* nazev, const std::string& hodnota) {
        if (base::neprazdny(hodnota)) radky.push_back(nazev + base::orez(hodnota));
    };
    pridej("Měsíce: ", filtr.mesice);
    pridej("Pracovník: ", filtr.pracovnik);
    pridej("Sloupec: ", filtr.sloupec);
    pridej("Středisko: ", filtr.stredisko);
    pridej("Text: ", filtr.text);
    return radky;
}

report::TabulkovaSestava sestava_vet(const std::vector<UlozenaVeta>& vety,
                                     const FiltrHrubych& filtr) {
    report::TabulkovaSestava s;
    s.nazev = "Hrubé mzdy a náhrady";
    s.zahlavi = filtr_slovy(filtr);
    s.na_sirku = true;
    s.sloupce = {{"Měs.", 11, Zarovnani::vpravo},
                 {"Číslo", 15, Zarovnani::vpravo},
                 {"Příjmení a jméno", 48},
                 {"Sl.", 10, Zarovnani::vpravo},
                 {"Druh", 46},
                 {"Dny", 14, Zarovnani::vpravo},
                 {"Hodiny", 17, Zarovnani::vpravo},
                 {"Datum", 16},
                 {"Stř.", 10, Zarovnani::vpravo},
                 {"Výk.", 11, Zarovnani::vpravo},
                 {"Stroj", 15, Zarovnani::vpravo},
                 {"Koruny", 26, Zarovnani::vpravo},
                 {"Text", 38}};
    const auto cislo = [](const std::optional<int>& c) { return c ? std::to_string(*c) : ""; };
    for (const UlozenaVeta& v : vety) {
        s.radky.push_back(
            {std::to_string(v.mesic), std::to_string(v.cislo), v.prijmeni + " " + v.jmeno,
             std::to_string(v.veta.sloupec), v.veta.sloupec_slovy, nebo_nic(v.dny()),
             nebo_nic(v.hodiny()), v.veta.datum, cislo(v.veta.stredisko), cislo(v.veta.vykon),
             cislo(v.veta.stroj), base::castka_s_oddelovaci(v.veta.kc_cel), v.veta.text});
    }
    const SoucetHrubych soucet = secti_vety(vety);
    s.soucty = {"",
                "",
                fmt::format("Celkem položek: {}", soucet.pocet),
                "",
                "",
                nebo_nic(soucet.dny),
                nebo_nic(soucet.hodiny),
                "",
                "",
                "",
                "",
                base::castka_s_oddelovaci(soucet.koruny),
                ""};
    return s;
}

void ukaz_sestavu(shell::Session& session, report::TabulkovaSestava sestava) {
    sestava.zahlavi.insert(
        sestava.zahlavi.begin(),
        session.radek_firmy + "   " + base::datum_textem(session.hodiny().dnes()));
    report::TFUsrPrev nahled(report::sestav_tabulku(sestava));
    session.obsluha().ukaz_modalne(nahled);
}

}  // namespace wages
