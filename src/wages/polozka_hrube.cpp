#include "wages/polozka_hrube.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/datum.h"
#include "base/text.h"
#include "store/table.h"
#include "workers/vykony.h"

namespace wages {
namespace {

constexpr long k_nejvic_dnu = 31;
constexpr long k_nejvic_hodin = 500;
constexpr int k_cislic_stroje = 6;

struct TextyHodnoty {
    const char* pole_nadpisu;
    const char* pole_predrazeno;
    const char* pole_min;
    const char* pole_max;
    const char* pole_konstanty;
    const char* chybi;
};
constexpr std::array<TextyHodnoty, k_hodnot> k_hodnoty{{
    {"nadpis_1", "predrazeno_1", "Min_1", "Max_1", "Konstanta_1", "Nezadali jste první hodnotu."},
    {"nadpis_2", "predrazeno_2", "Min_2", "Max_2", "Konstanta_2", "Nezadali jste druhou hodnotu."},
    {"nadpis_3", "predrazeno_3", "Min_3", "Max_3", "Konstanta_3", "Nezadali jste třetí hodnotu."},
    {"nadpis_4", "predrazeno_4", "Min_4", "Max_4", "Konstanta_4", "Nezadali jste čtvrtou hodnotu."},
}};

/// The check at work: collects messages.
class Kontrola {
  public:
    Kontrola(const SloupecHrube& sloupec, const ZadaniPolozky& zadani,
             const CiselnikyPolozky& ciselniky, int rok)
        : sloupec_(sloupec), zadani_(zadani), ciselniky_(ciselniky), rok_(rok) {}

    std::vector<std::string> proved() {
        if (sloupec_.jake_dny != 0)
            mnozstvi(zadani_.dny, k_nejvic_dnu, "Nezadali jste dny.", "Chybně zadané dny.");
        if (sloupec_.jake_hodiny != 0)
            mnozstvi(zadani_.hodiny, k_nejvic_hodin, "Nezadali jste hodiny.",
                     "Chybně zadané hodiny.");
        if (sloupec_.datum) datum();
        if (sloupec_.stredisko && !base::neprazdny(zadani_.stredisko))
            chyby_.emplace_back("Není zadané středisko.");
        if (sloupec_.vykon) vykon();
        if (sloupec_.stroj) stroj();
        for (std::size_t i = 0; i < k_hodnot; ++i)
            if (sloupec_.hodnoty[i].zadava_se()) hodnota(i);
        return std::move(chyby_);
    }

  private:
    void mnozstvi(const std::string& text, long nejvic, const char* chybi, const char* chybne) {
        if (!base::neprazdny(text)) {
            chyby_.emplace_back(chybi);
            return;
        }
        const Castka cele = base::na_koruny_k_sude(base::je_desetinne_cislo(text));
        if (cele < static_cast<Castka>(-nejvic) || cele > static_cast<Castka>(nejvic))
            chyby_.emplace_back(chybne);
    }

    void datum() {
        if (!base::neprazdny(zadani_.datum)) {
            chyby_.emplace_back("Nezadali jste datum.");
        } else if (!Spravne_datum(zadani_.datum, rok_)) {
            chyby_.emplace_back("Chybně zadané datum.");
        }
    }

    void vykon() {
        int index = 0;
        if (!base::neprazdny(zadani_.vykon)) {
            chyby_.emplace_back("Nezadali jste výkon.");
        } else if (!workers::vykon_souhlasi(ciselniky_.vykony, zadani_.vykon, index)) {
            chyby_.emplace_back("Výkon není povolen.");
        } else if (!workers::stredisko_souhlasi(
                       zadani_.stredisko, ciselniky_.vykony[static_cast<std::size_t>(index)])) {
            chyby_.emplace_back("Výkon nemá povolené středisko.");
        }
    }

    void stroj() {
        if (!base::neprazdny(zadani_.stroj)) {
            chyby_.emplace_back("Nezadali jste číslo stroje.");
        } else if (!stroj_souhlasi(ciselniky_.stroje, base::je_cele_cislo(zadani_.stroj))) {
            chyby_.emplace_back("Chybně zadané číslo stroje.");
        }
    }

    void hodnota(std::size_t i) {
        const std::string& text = zadani_.hodnoty[i];
        if (!base::neprazdny(text)) {
            chyby_.emplace_back(k_hodnoty[i].chybi);
            return;
        }
        const HodnotaSloupce& h = sloupec_.hodnoty[i];
        const Castka castka = base::je_desetinne_cislo(text);
        if (castka < static_cast<Castka>(h.min) || castka > static_cast<Castka>(h.max))
            chyby_.push_back(fmt::format("Interval u {}: {} až {}.", i + 1, h.min, h.max));
    }

    const SloupecHrube& sloupec_;
    const ZadaniPolozky& zadani_;
    const CiselnikyPolozky& ciselniky_;
    int rok_;
    std::vector<std::string> chyby_;
};

/// The total by variant; variant 8 adds two products though its caption says otherwise.
Castka podle_varianty(int var_vyp, const std::array<Castka, k_hodnot>& hodnoty) {
    const auto [a, b, c, d] = hodnoty;
    switch (var_vyp) {
        case 1:
            return a;
        case 2:
            return b;
        case 3:
            return c;
        case 4:
            return d;
        case 5:
            return a * b;
        case 6:
            return a * b / 100;
        case 7:
            return a * b * c / 100;
        case 8:
            return a * b + c * d;
        case 9:
            return a * b * (c + 100) / 100;
        case 10:
            return a * b * c;
        case 11:
            return a / b * c + d;
        case 12:
            return a * b / 100 * c / 100;
        default:
            return 0;
    }
}

}  // namespace

bool HodnotaSloupce::zadava_se() const {
    return base::neprazdny(nadpis);
}

SloupecHrube sloupec_hrube(const store::Query& ridici) {
    const auto cele = [&](const char* pole) { return static_cast<int>(ridici.integer(pole)); };
    SloupecHrube s;
    s.modul = cele("Modul");
    s.sloupec = cele("Sloupec");
    s.text = ridici.text("text");
    s.jake_dny = cele("Jake_dny");
    s.jake_hodiny = cele("Jake_hodiny");
    s.datum = ridici.boolean("Datum");
    s.stredisko = ridici.boolean("Stredisko");
    s.vykon = ridici.boolean("Vykon");
    s.stroj = ridici.boolean("Stroj");
    for (std::size_t i = 0; i < k_hodnot; ++i) {
        s.hodnoty[i] = {ridici.text(k_hodnoty[i].pole_nadpisu), cele(k_hodnoty[i].pole_predrazeno),
                        ridici.integer(k_hodnoty[i].pole_min),
                        ridici.integer(k_hodnoty[i].pole_max),
                        static_cast<Castka>(ridici.number(k_hodnoty[i].pole_konstanty))};
    }
    s.var_vyp = cele("var_vyp");
    return s;
}

std::vector<std::string> Nacti_stroje(shell::Session& session) {
    std::vector<std::string> stroje;
    store::Table tabulka;
    tabulka.set_connection(session.data());
    tabulka.set_table_name("Stroje");
    tabulka.set_index_name("By_Tr1");
    tabulka.open();
    for (; !tabulka.eof(); tabulka.next())
        stroje.push_back(base::cislo_s_nulami(tabulka.integer("Stroj"), k_cislic_stroje));
    return stroje;
}

bool stroj_souhlasi(const std::vector<std::string>& stroje, long cislo) {
    return cislo == 0 || std::find(stroje.begin(), stroje.end(),
                                   base::cislo_s_nulami(cislo, k_cislic_stroje)) != stroje.end();
}

bool Spravne_datum(std::string_view text, int rok) {
    if (text.size() != 4 || base::jen_cislice(text).size() != 4) return false;
    const int den = base::je_cele_cislo(text.substr(0, 2));
    return den >= 1 && den <= base::dni_v_mesici(base::je_cele_cislo(text.substr(2)), rok);
}

std::string uprav_datum(std::string_view text, int mesic) {
    const std::size_t delka = base::pocet_znaku(text);
    if (delka != 1 && delka != 2) return std::string(text);
    return (delka == 1 ? "0" : "") + std::string(text) + base::cislo_s_nulami(mesic, 2);
}

std::vector<std::string> Udelej_kontrolu_bezneho_tiskopisu(const SloupecHrube& sloupec,
                                                           const ZadaniPolozky& zadani,
                                                           const CiselnikyPolozky& ciselniky,
                                                           int rok) {
    return Kontrola(sloupec, zadani, ciselniky, rok).proved();
}

std::vector<std::string> Udelej_kontrolu_karanteny(std::string_view castka) {
    if (base::cele_cislo_z_textu(base::orez(castka)).value_or(0) != 0) return {};
    return {"Zadejte hodnotu příspěvku"};
}

Castka proved_vypocet_na_beznem_tiskopisu(const SloupecHrube& sloupec,
                                          const ZadaniPolozky& zadani) {
    std::array<Castka, k_hodnot> hodnoty{};
    for (std::size_t i = 0; i < k_hodnot; ++i) {
        if (sloupec.hodnoty[i].zadava_se())
            hodnoty[i] = base::je_desetinne_cislo(zadani.hodnoty[i]);
    }
    return base::na_halere_k_sude(podle_varianty(sloupec.var_vyp, hodnoty));
}

}  // namespace wages
