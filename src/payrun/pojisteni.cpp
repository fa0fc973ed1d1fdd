#include "payrun/pojisteni.h"

#include <algorithm>

namespace payrun {
namespace {

constexpr Castka k_shoda_s_hrubou = 0.999L;

enum class RadekVyjimek { socialni = 0, zdravotni = 1, dan = 2 };

bool jde_do(const shell::Nastaveni& nastaveni, RadekVyjimek radek, int sloupec) {
    const auto& vyjimky = nastaveni.nejde_do_pojisteni[static_cast<std::size_t>(radek)];
    return std::none_of(vyjimky.begin(), vyjimky.end(), [sloupec](std::int16_t vyjimka) {
        return vyjimka != 0 && vyjimka == sloupec;
    });
}

Castka cela_hruba_pri_shode(Castka do_zakladu, Castka hruba_mzda) {
    const Castka rozdil =
        do_zakladu < hruba_mzda ? hruba_mzda - do_zakladu : do_zakladu - hruba_mzda;
    return rozdil < k_shoda_s_hrubou ? hruba_mzda : do_zakladu;
}

bool pod_socialni_hranici(Socialni kod, Castka zaklad) {
    return (kod == Socialni::maly_rozsah && zaklad < k_hranice_maleho_rozsahu) ||
           (kod == Socialni::dohoda && zaklad < k_hranice_dohody) || kod == Socialni::neplati;
}

const char* vetev_socialniho(Socialni kod, bool neplati) {
    switch (kod) {
        case Socialni::maly_rozsah:
            return neplati ? "kód 2: výdělek nedosáhl 3500 Kč, neplatí"
                           : "kód 2: výdělek dosáhl 3500 Kč, platí z celého základu";
        case Socialni::dohoda:
            return neplati ? "kód 3 (dohody): výdělek nedosáhl 10001 Kč, neplatí"
                           : "kód 3 (dohody): výdělek dosáhl 10001 Kč, platí z celého základu";
        case Socialni::neplati:
            return "kód 4: neplatí nikdy";
        case Socialni::druhy_pilir:
            return "kód 5: 2. pilíř penzijní reformy, bez hranice";
        default:
            return "kód 1: platí z celého základu";
    }
}

void stopa_hruba(base::Stopa::Zapis& krok, const char* promenna, Castka do_zakladu, Castka pouzito,
                 Castka hruba_mzda) {
    krok.z("hrubá mzda do základu", promenna, do_zakladu);
    if (pouzito != do_zakladu) {
        krok.z("hrubá mzda", "hruba_mzda", hruba_mzda)
            .vetev("vyňaté sloupce činí méně než 0,999 Kč: bere se celá hrubá mzda");
    }
}

}  // namespace

bool Jde_do_socialniho_pojisteni(const shell::Nastaveni& nastaveni, int sloupec) {
    return jde_do(nastaveni, RadekVyjimek::socialni, sloupec);
}
bool Jde_do_zdravotniho_pojisteni(const shell::Nastaveni& nastaveni, int sloupec) {
    return jde_do(nastaveni, RadekVyjimek::zdravotni, sloupec);
}
bool Jde_do_dane(const shell::Nastaveni& nastaveni, int sloupec) {
    return jde_do(nastaveni, RadekVyjimek::dan, sloupec);
}

Castka zaklad_socialniho_pojisteni(Socialni kod, Castka hruba_do_socialniho, Castka hruba_mzda,
                                   base::Stopa* stopa) {
    const Castka x = cela_hruba_pri_shode(hruba_do_socialniho, hruba_mzda);
    const bool neplati = pod_socialni_hranici(kod, x);
    const Castka zaklad = neplati ? 0 : x;
    if (stopa) {
        auto krok = stopa->krok("vyměřovací základ sociálního pojištění");
        stopa_hruba(krok, "hruba_do_socialniho", hruba_do_socialniho, x, hruba_mzda);
        krok.udaj("kód", static_cast<int>(kod), "Os_karty.Jake_socialni")
            .vetev(vetev_socialniho(kod, neplati))
            .predpis("§ 5 zák. č. 589/1992 Sb.; účast § 6 a § 7a zák. č. 187/2006 Sb.")
            .vysledek("socialni_zaklad", zaklad);
    }
    return zaklad;
}

Castka socialni_pojisteni_Kc(Socialni kod, Castka zaklad, Castka sazba, base::Stopa* stopa) {
    const bool neplati = pod_socialni_hranici(kod, zaklad);
    const Castka castka = neplati ? 0 : base::na_koruny_nahoru(base::procenta(zaklad, sazba));
    if (stopa) {
        stopa->krok("sociální pojištění pracovníka")
            .z("základ", "socialni_zaklad", zaklad)
            .nastaveni("sazba %", sazba,
                       kod == Socialni::druhy_pilir ? "Nastaveni.ini DruhyPilir/DruhyPilirPrac"
                                                    : "rid_zorv.idx proc_soc_pracovnik")
            .udaj("kód", static_cast<int>(kod), "Os_karty.Jake_socialni")
            .vetev(vetev_socialniho(kod, neplati))
            .zaokrouhleni(base::na_koruny_nahoru)
            .predpis("§ 7 zák. č. 589/1992 Sb.")
            .vysledek("socialni_kc", castka);
    }
    return castka;
}

Castka druhy_pilir_Kc(Castka zaklad, Castka sazba, base::Stopa* stopa) {
    const Castka castka = base::na_koruny_nahoru(base::procenta(zaklad, sazba));
    if (stopa) {
        stopa->krok("2. pilíř penzijní reformy")
            .z("základ", "socialni_zaklad", zaklad)
            .nastaveni("sazba %", sazba, "Nastaveni.ini DruhyPilir/DruhyPilirPF")
            .zaokrouhleni(base::na_koruny_nahoru)
            .predpis("zák. č. 426/2011 Sb.")
            .vysledek("druhy_pilir_kc", castka);
    }
    return castka;
}

namespace {

struct ZdravotniVetev {
    Castka zaklad;
    const char* text;
};

ZdravotniVetev snizeny_o_hranici(const ZdravotniPodminky& p, Castka y) {
    if (!p.duchodce && !p.student) return {y, "platí z celého základu"};
    const Castka zbytek = y - p.duchodce_hranice;
    if (zbytek < 0) return {0, "důchodce nebo student: základ nepřesáhl hranici"};
    return {zbytek, "důchodce nebo student: základ snížen o hranici"};
}

ZdravotniVetev zdravotni_vetev(const ZdravotniPodminky& p, Castka y) {
    switch (p.kod) {
        case Zdravotni::minimum:
            if (y < p.minimalni_mzda) {
                return {p.minimalni_mzda, "kód 2: doplněno do minimální mzdy"};
            }
            return {y, "kód 2: dosahuje minimální mzdy"};
        case Zdravotni::maly_rozsah:
            if (y < k_hranice_maleho_rozsahu) {
                return {0, "kód 3: výdělek nedosáhl 3500 Kč, neplatí"};
            }
            return snizeny_o_hranici(p, y);
        case Zdravotni::dohoda:
            if (y < k_hranice_dohody) {
                return {0, "kód 4 (dohody): výdělek nedosáhl 10001 Kč, neplatí"};
            }
            return {y, "kód 4 (dohody): výdělek dosáhl 10001 Kč"};
        case Zdravotni::neplati:
            return {0, "kód 5: neplatí nikdy"};
        case Zdravotni::plati:
            return snizeny_o_hranici(p, y);
        default:
            return {y, "kód mimo 1 až 5: platí z celého základu"};
    }
}

}  // namespace

Castka zaklad_zdravotniho_pojisteni(const ZdravotniPodminky& podminky, Castka hruba_do_zdravotniho,
                                    Castka hruba_mzda, base::Stopa* stopa) {
    const Castka y = cela_hruba_pri_shode(hruba_do_zdravotniho, hruba_mzda);
    const ZdravotniVetev vetev = zdravotni_vetev(podminky, y);
    if (stopa) {
        auto krok = stopa->krok("vyměřovací základ zdravotního pojištění");
        stopa_hruba(krok, "hruba_do_zdravotniho", hruba_do_zdravotniho, y, hruba_mzda);
        krok.udaj("kód", static_cast<int>(podminky.kod), "Os_karty.Jake_zdravotni");
        if (podminky.kod == Zdravotni::minimum) {
            krok.nastaveni("minimální mzda", podminky.minimalni_mzda,
                           "Nastaveni.ini Legislativa2009/MinimalniMzda");
        }
        if (podminky.duchodce || podminky.student) {
            krok.nastaveni("hranice důchodce", podminky.duchodce_hranice,
                           "rid_zorv.idx duchodce_hranice");
        }
        krok.vetev(vetev.text)
            .predpis("§ 3 zák. č. 592/1992 Sb.")
            .vysledek("zdravotni_zaklad", vetev.zaklad);
    }
    return vetev.zaklad;
}

Castka zdravotni_pojisteni_Kc(Zdravotni kod, Castka zaklad, Castka sazba, base::Stopa* stopa) {
    const bool neplati = (kod == Zdravotni::maly_rozsah && zaklad < k_hranice_maleho_rozsahu) ||
                         kod == Zdravotni::neplati;
    const Castka castka =
        neplati ? 0 : base::zdravotni_na_koruny(bez_sumu(base::procenta(zaklad, sazba)));
    if (stopa) {
        auto krok = stopa->krok("zdravotní pojištění pracovníka");
        krok.z("základ", "zdravotni_zaklad", zaklad)
            .nastaveni("sazba %", sazba, "rid_zorv.idx proc_zdr_pracovnik")
            .udaj("kód", static_cast<int>(kod), "Os_karty.Jake_zdravotni");
        if (neplati) krok.vetev("neplatí");
        krok.zaokrouhleni(base::zdravotni_na_koruny)
            .predpis("§ 2 zák. č. 592/1992 Sb.")
            .vysledek("zdravotni_kc", castka);
    }
    return castka;
}

Castka strop(Castka zaklad, Castka predchozi, Castka maximum) {
    const Castka prekroceni = predchozi + zaklad - maximum;
    if (zaklad <= prekroceni) return 0;
    if (prekroceni <= 0) return zaklad;
    return zaklad - prekroceni;
}

}  // namespace payrun
