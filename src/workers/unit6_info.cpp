#include "workers/unit6_info.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/datum.h"
#include "workers/pojistovny.h"

namespace workers {

namespace {

constexpr int k_prumeru_na_nemoc = 13;  ///< December of the previous year and the twelve months

struct UdajKarty {
    const char* popisek;
    const char* pole;
};

constexpr UdajKarty k_totoznost[] = {
    {"Číslo pracovníka", "Cislo"},
    {"Číslo v minulém roce", "Cislo_min_rok"},
    {"Příjmení", "Prijmeni"},
    {"Jméno", "Jmeno"},
    {"Titul", "Titul"},
    {"Původní příjmení", "Prijmeni_puvodni"},
    {"Rodné číslo", "Rodne_cislo"},
    {"Datum narození", "Dat_nar_text"},
    {"Místo narození", "Misto_narozeni"},
    {"Ulice", "Ulice"},
    {"Bydliště", "Bydliste"},
    {"PSČ", "PSC"},
    {"Pošta", "Posta"},
};
constexpr UdajKarty k_priznaky[] = {
    {"Člen odborového svazu", "Clenstvi_OS"},
    {"Zaměstnanec", "Zamestnanec"},
    {"Důchodce", "Duchodce"},
    {"Student", "Student"},
    {"Osamělá osoba", "Osamela_osoba"},
    {"Podepsal prohlášení", "Podepsal_prohlaseni"},
    {"Prohlášení na měsíce", "PROHLASENI_MESICE"},
    {"Nerezident", "NEREZIDENT"},
    {"Roční zúčtování", "Rocni_zuctovani"},
};
constexpr UdajKarty k_pomer[] = {
    {"Pracovní poměr od", "Zam_od"},
    {"Pracovní poměr do", "Zam_do"},
};
constexpr UdajKarty k_plat[] = {
    {"Kmenové středisko", "Stredisko"},
    {"Účtovat na výkon", "Vykon"},
    {"Sazba za osobní třídu", "Sazba_OT"},
    {"Celý plat spořit do sloupce", "Cely_plat_sporit"},
    {"Osobní účet", "Osobni_ucet"},
    {"Týdenní pracovní doba", "tpd"},
    {"Dovolená nevyčerpaná k 1.1. (dny)", "Dovolena_nevycerpano"},
    {"Dovolená nevyčerpaná k 1.1. (hodiny)", "DOVOLENA_NEVYCERPANO_HOD"},
    {"Dovolená - nárok za běžný rok", "Dovolena_narok"},
};

std::string text_pole(const store::Query& karta, const std::string& pole) {
    const store::Value hodnota = karta.value(pole);
    if (std::holds_alternative<double>(hodnota.variant())) {
        return base::castka_prosta(hodnota.as_number());
    }
    if (std::holds_alternative<bool>(hodnota.variant())) return hodnota.as_boolean() ? "ANO" : "";
    return hodnota.as_text();
}

class Prehled {
  public:
    explicit Prehled(const store::Query& karta) : karta_(karta) {}

    void pridej(const std::string& popisek, const std::string& hodnota) {
        vety_.rows.push_back({popisek, hodnota});
    }
    void pridej_pole(const std::string& popisek, const std::string& pole) {
        pridej(popisek, text_pole(karta_, pole));
    }
    template <std::size_t N>
    void pridej_pole(const UdajKarty (&pole)[N]) {
        for (const UdajKarty& p : pole)
            pridej_pole(p.popisek, p.pole);
    }
    /// Number and name of an insurer or fund; blank when the card has none.
    void pridej_pojistovnu(const char* popisek, const char* pole,
                           const std::vector<std::string>& pojistovny) {
        const int cislo = static_cast<int>(karta_.integer(pole));
        pridej(popisek, cislo == 0
                            ? std::string()
                            : fmt::format("{} {}", cislo, Jmeno_pojistovny(pojistovny, cislo)));
    }
    store::Rows vety() && { return std::move(vety_); }

  private:
    const store::Query& karta_;
    store::Rows vety_{{"údaj", "hodnota"}, {}};
};

}  // namespace

store::Rows osobni_udaje(const store::Query& karta, const std::vector<std::string>& pojistovny) {
    Prehled prehled(karta);
    prehled.pridej_pole(k_totoznost);
    prehled.pridej_pole(k_pomer);
    prehled.pridej_pole(k_priznaky);
    prehled.pridej_pojistovnu("Zdravotní pojišťovna", "Cislo_zdrav_poj", pojistovny);
    prehled.pridej_pojistovnu("Penzijní fond", "Cislo_penz_fondu", pojistovny);
    return std::move(prehled).vety();
}

store::Rows platove_udaje(const store::Query& karta, const shell::RidiciZorv& ridici) {
    Prehled prehled(karta);
    prehled.pridej_pole("Stálý plat", "Staly_plat");
    for (std::size_t i = 0; i < ridici.text_os_oh.size(); ++i)
        prehled.pridej_pole(ridici.text_os_oh[i], fmt::format("Os_oh_{}", i + 1));
    prehled.pridej_pole(k_plat);
    for (int i = 0; i < k_prumeru_na_nemoc; ++i) {
        const std::string mesic = i == 0 ? "prosinec minulého roku" : base::mesic_slovy(i, 0);
        prehled.pridej_pole("Průměr na nemoc - " + mesic, fmt::format("Prum_nemoc_{}", i));
    }
    return std::move(prehled).vety();
}

}  // namespace workers
