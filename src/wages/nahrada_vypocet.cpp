#include "wages/nahrada_vypocet.h"

#include <algorithm>
#include <fmt/format.h>

#include "wages/bunky_kalendare.h"

namespace wages {
namespace {

constexpr int k_procent_nahrady = 60;
constexpr int k_minut_za_hodinu = 60;
constexpr const char* k_zakon_nahrady = "§ 192 zák. č. 262/2006 Sb.";
constexpr const char* k_zakon_redukce = "§ 21 zák. č. 187/2006 Sb.";

struct RezimOdDne {
    base::Datum posledni;  ///< the last first day of an incapacity under this regime
    RezimNahrady rezim;
};

constexpr RezimOdDne k_rezimy[] = {
    {{2013, 12, 31}, {3, 21, {"1-3", "4-21", "22 a více"}, true}},
    {{2019, 6, 30}, {3, 14, {"1-3", "4-14", "15 a více"}, true}},
    {{2999, 12, 31}, {0, 14, {"---", "1-14", "15 a více"}, false}},
};

struct HraniceRoku {
    int posledni_rok;
    std::array<Castka, 3> hranice;
};

// Statutory limits of each year; the first entry holds for all years up to its own.
constexpr HraniceRoku k_hranice[] = {
    {2013, {151.03L, 226.63L, 453.08L}}, {2014, {151.38L, 227.15L, 454.13L}},
    {2015, {155.40L, 232.93L, 465.85L}}, {2016, {157.68L, 236.43L, 472.68L}},
    {2017, {164.85L, 247.10L, 494.20L}}, {2018, {175.00L, 262.33L, 524.65L}},
    {2019, {190.75L, 286.13L, 572.25L}}, {2020, {203.35L, 304.85L, 609.70L}},
    {2021, {206.85L, 310.28L, 620.38L}}, {2022, {227.15L, 340.55L, 681.10L}},
};

/// What counts of each band of hourly earnings: above limit 2, above limit 1, up to limit 1.
constexpr std::array<int, 3> k_procenta_pasem{30, 60, 90};

int minuty_dne(const RokKalendare& kalendar, const base::Datum& den) {
    return kalendar[static_cast<std::size_t>(den.mesic - 1)][static_cast<std::size_t>(den.den - 1)];
}

/// The walk over the days of an incapacity.
class PrubehNeschopnosti {
  public:
    PrubehNeschopnosti(const RezimNahrady& rezim, const KalendareNahrady& kalendare, int mesic,
                       int rok)
        : rezim_(rezim), kalendare_(kalendare), mesic_(mesic), rok_(rok) {}

    void den(const base::Datum& den) {
        ++kalendarni_;
        if (den.rok == kalendare_.rok_minuleho) {
            if (minuty_dne(kalendare_.minuly, den) != 0) ++pracovni_;
            return;
        }
        const int minut = minuty_dne(kalendare_.aktualni, den);
        if (minut != 0) ++pracovni_;
        if (den.mesic == mesic_ && den.rok == rok_) zapocti(minut);
    }
    const FondyNahrady& fondy() const { return fondy_; }
    int kalendarni() const { return kalendarni_; }
    int pracovni() const { return pracovni_; }
    /// Working days of the month of entry in funds A, B and C.
    const std::array<int, 3>& dnu_fondu() const { return dnu_fondu_; }

  private:
    /// A day may add to two funds: a waiting day past the last compensated one counts in both.
    void zapocti(int minut) {
        ++fondy_.kalendarnich;
        if (minut != 0) ++fondy_.pracovnich;
        if (pracovni_ <= rezim_.cekaci_dny) {
            pridej(0, fondy_.a, minut);
        } else if (kalendarni_ <= rezim_.posledni_den) {
            pridej(1, fondy_.b, minut);
        }
        if (kalendarni_ > rezim_.posledni_den) pridej(2, fondy_.c, minut);
    }
    void pridej(std::size_t ktery, int& fond, int minut) {
        fond += minut;
        if (minut != 0) ++dnu_fondu_[ktery];
    }

    const RezimNahrady& rezim_;
    const KalendareNahrady& kalendare_;
    int mesic_, rok_;
    int kalendarni_ = 0, pracovni_ = 0;
    std::array<int, 3> dnu_fondu_{};
    FondyNahrady fondy_;
};

void zapis_fondy(base::Stopa& stopa, const base::Datum& od, const base::Datum& do_,
                 const RezimNahrady& rezim, const PrubehNeschopnosti& prubeh) {
    const FondyNahrady& fondy = prubeh.fondy();
    const auto krok = [&](const char* pravidlo, const char* promenna, int minut, int dnu) {
        stopa.krok(pravidlo)
            .udaj("trvání od", base::datum_textem(od), "Nahrady.Trvani_od")
            .udaj("trvání do", base::datum_textem(do_), "Nahrady.Trvani_do")
            .konstanta("čekací pracovní dny", static_cast<Castka>(rezim.cekaci_dny))
            .konstanta("poslední den náhrady", static_cast<Castka>(rezim.posledni_den))
            .vetev(fmt::format("v měsíci zadání {}, pracovních dnů {}; od počátku dnů "
                               "kalendářních {}, pracovních {}",
                               cas_textem(minut), dnu, prubeh.kalendarni(), prubeh.pracovni()))
            .predpis(k_zakon_nahrady)
            .vysledek(promenna, static_cast<Castka>(minut));
    };
    krok("fond A, minut: čekací dny podle kalendáře", "fond_a", fondy.a, prubeh.dnu_fondu()[0]);
    krok("fond B, minut: dny s náhradou podle kalendáře", "fond_b", fondy.b, prubeh.dnu_fondu()[1]);
    krok("fond C, minut: dny po konci náhrady podle kalendáře", "fond_c", fondy.c,
         prubeh.dnu_fondu()[2]);
}

std::string promenna(const char* zaklad, char fond) {
    return std::string(zaklad) + (fond == 'A' ? "_a" : "_b");
}

}  // namespace

SazbyNahrady sazby_nahrady(TypNahrady typ) {
    switch (typ) {
        case TypNahrady::nemoc:
            return {0, k_procent_nahrady};
        case TypNahrady::karantena:
            return {k_procent_nahrady, k_procent_nahrady};
        default:
            return {};
    }
}

const RezimNahrady& rezim_nahrady(const base::Datum& trvani_od) {
    const auto* rezim = std::find_if(std::begin(k_rezimy), std::end(k_rezimy),
                                     [&](const RezimOdDne& r) { return trvani_od <= r.posledni; });
    return rezim == std::end(k_rezimy) ? std::end(k_rezimy)[-1].rezim : rezim->rezim;
}

FondyNahrady fondy_nahrady(const base::Datum& od, const base::Datum& do_, int mesic, int rok,
                           const KalendareNahrady& kalendare, base::Stopa* stopa) {
    const RezimNahrady& rezim = rezim_nahrady(od);
    PrubehNeschopnosti prubeh(rezim, kalendare, mesic, rok);
    for (base::Datum den = od; den <= do_; den = base::posun_dny(den, 1))
        prubeh.den(den);
    if (stopa) zapis_fondy(*stopa, od, do_, rezim, prubeh);
    return prubeh.fondy();
}

std::array<Castka, 3> redukcni_hranice(int rok) {
    const auto* radek = std::find_if(std::begin(k_hranice), std::end(k_hranice),
                                     [rok](const HraniceRoku& h) { return rok <= h.posledni_rok; });
    return radek == std::end(k_hranice) ? std::array<Castka, 3>{} : radek->hranice;
}

std::optional<Castka> redukovany_vydelek(Castka prumer, int rok, base::Stopa* stopa) {
    if (prumer <= 0) return std::nullopt;
    const auto [h1, h2, h3] = redukcni_hranice(rok);
    Castka zbyva = std::min(prumer, h3);
    Castka soucet = 0;
    const std::array<Castka, 3> spodky{h2, h1, 0};
    for (std::size_t i = 0; i < spodky.size(); ++i) {
        if (zbyva < spodky[i]) continue;
        soucet += base::na_halere_nahoru(
            base::procenta(zbyva - spodky[i], static_cast<Castka>(k_procenta_pasem[i])));
        zbyva = spodky[i];
    }
    if (stopa) {
        stopa->krok("redukovaný hodinový výdělek: 90 % do 1. hranice, 60 % do 2., 30 % do 3.")
            .z("průměrný hodinový výdělek", "prum_hod_vydelek", prumer)
            .konstanta(fmt::format("1. hranice roku {}", rok), h1)
            .konstanta("2. hranice", h2)
            .konstanta("3. hranice", h3)
            .zaokrouhleni(base::na_halere_nahoru)
            .predpis(k_zakon_redukce)
            .vysledek("red_hod_vydelek", soucet);
    }
    return soucet;
}

Castka hodinova_nahrada(Castka redukovany, int procent, char fond, base::Stopa* stopa) {
    const Castka castka =
        base::na_halere_nahoru(base::procenta(redukovany, static_cast<Castka>(procent)));
    if (stopa) {
        stopa->krok(fmt::format("náhrada za hodinu fondu {}", fond))
            .z("redukovaný hodinový výdělek", "red_hod_vydelek", redukovany)
            .konstanta("procent", static_cast<Castka>(procent))
            .zaokrouhleni(base::na_halere_nahoru)
            .predpis(k_zakon_nahrady)
            .vysledek(promenna("hod_nahrada", fond), castka);
    }
    return castka;
}

Castka castka_nahrady(Castka hodinova, int minut, char fond, base::Stopa* stopa) {
    const Castka castka =
        base::na_halere_nahoru(hodinova * static_cast<Castka>(minut) / k_minut_za_hodinu);
    if (stopa) {
        stopa->krok(fmt::format("náhrada za fond {}", fond))
            .z("náhrada za hodinu", promenna("hod_nahrada", fond), hodinova)
            .z(fmt::format("fond {}, minut", fond), promenna("fond", fond),
               static_cast<Castka>(minut))
            .zaokrouhleni(base::na_halere_nahoru)
            .vysledek(promenna("nahrada", fond), castka);
    }
    return castka;
}

Castka celkova_nahrada(Castka nahrada_a, Castka nahrada_b, base::Stopa* stopa) {
    const Castka celkem = base::na_halere_nahoru(nahrada_a + nahrada_b);
    if (stopa) {
        stopa->krok("náhrada celkem")
            .z("náhrada za fond A", "nahrada_a", nahrada_a)
            .z("náhrada za fond B", "nahrada_b", nahrada_b)
            .zaokrouhleni(base::na_halere_nahoru)
            .vysledek("celkova_nahrada", celkem);
    }
    return celkem;
}

Castka hodiny_nahrady(int minut) {
    return base::na_halere_nahoru(static_cast<Castka>(minut) / k_minut_za_hodinu);
}

}  // namespace wages
