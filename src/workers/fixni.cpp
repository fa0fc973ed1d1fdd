#include "workers/fixni.h"

#include <fmt/format.h>

#include "base/klavesy.h"
#include "paysheet/sloupce.h"
#include "store/query.h"
#include "store/table.h"

namespace workers {

namespace {

constexpr std::string_view k_znacka_zaporne = "---";

/// A module's columns; none when `od` is 0.
struct Rozsah {
    int od, do_;
    bool je() const { return od != 0; }
    bool obsahuje(int sloupec) const { return je() && sloupec >= od && sloupec <= do_; }
};

Rozsah davky(const shell::RidiciZorv& ridici) {
    return {ridici.modul5_od, ridici.modul5_do};
}
Rozsah srazky(const shell::RidiciZorv& ridici) {
    return {ridici.modul10_od, ridici.modul10_do};
}
Rozsah zaloha(const shell::RidiciZorv& ridici) {
    return {ridici.modul13, ridici.modul13};
}

}  // namespace

bool je_modul_pro_fixni(const shell::RidiciZorv& ridici) {
    return je_modul_pro_opravu_fixnich(ridici) || zaloha(ridici).je();
}

bool je_modul_pro_opravu_fixnich(const shell::RidiciZorv& ridici) {
    return davky(ridici).je() || srazky(ridici).je();
}

bool sloupec_fixnich(const shell::RidiciZorv& ridici, int sloupec) {
    return davky(ridici).obsahuje(sloupec) || sloupec_srazek(ridici, sloupec) ||
           zaloha(ridici).obsahuje(sloupec);
}

bool sloupec_srazek(const shell::RidiciZorv& ridici, int sloupec) {
    return srazky(ridici).obsahuje(sloupec);
}

std::string veta_o_intervalu(const shell::RidiciZorv& ridici) {
    std::string rozsahy;
    const auto pridej = [&rozsahy](const std::string& rozsah) {
        rozsahy += (rozsahy.empty() ? "" : " nebo ") + rozsah;
    };
    for (const Rozsah& r : {davky(ridici), srazky(ridici)})
        if (r.je()) pridej(fmt::format("{} - {}", r.od, r.do_));
    if (zaloha(ridici).je()) pridej(std::to_string(zaloha(ridici).od));
    return "Sloupec musí být v intervalu " + rozsahy + ".";
}

bool Interval_souhlasi(shell::Session& session, int sloupec) {
    if (sloupec_fixnich(session.ridici_zorv, sloupec)) return true;
    session.obsluha().hlaska(veta_o_intervalu(session.ridici_zorv));
    return false;
}

std::vector<std::string> Napln_listbox_na_form12(const shell::RidiciZorv& ridici) {
    std::vector<std::string> radky;
    for (const auto& [nazev, r] :
         {std::pair{"Dávka: ", davky(ridici)}, std::pair{"Srážka: ", srazky(ridici)}}) {
        if (r.je()) radky.push_back(fmt::format("{}{}-{}", nazev, r.od, r.do_));
    }
    return radky;
}

std::string jmeno_pracovnika(shell::Session& session, std::int64_t cislo) {
    store::Query dotaz(session.data(),
                       "select cislo,prijmeni,jmeno from Os_Karty where cislo=:cislo");
    dotaz.set("cislo", cislo);
    dotaz.open();
    return dotaz.eof() ? k_pracovnik_neni : dotaz.text("prijmeni") + " " + dotaz.text("jmeno");
}

bool klavesa_korun(const shell::Session& session, int sloupec, char znak, std::string_view dosud) {
    const bool zaporne =
        paysheet::sloupec_slovy(session, sloupec).find(k_znacka_zaporne) != std::string::npos;
    return base::hlidej_cele_cislo_klavesy(
        znak, dosud,
        zaporne ? base::ZnamenkoRezim::minus_na_zacatku : base::ZnamenkoRezim::bez_minus,
        k_cislic_korun);
}

bool smaz_fixni_polozku(shell::Session& session, std::int64_t pocitadlo) {
    if (!session.obsluha().otazka_ano_ne("Opravdu chcete smazat označenou položku?",
                                         "Smazání fixní položky")) {
        return false;
    }
    store::Transaction transakce(session.data());
    store::Table fixni;
    fixni.set_connection(session.data());
    fixni.set_table_name("Fixni");
    fixni.open();
    const bool je = fixni.locate("Pocitadlo", pocitadlo);
    if (je) fixni.remove();
    transakce.commit();
    return je;
}

}  // namespace workers
