#include "payrun/dan.h"

#include <algorithm>

#include "base/castky_text.h"

namespace payrun {
namespace {

constexpr int k_sazba_15 = 15;
constexpr int k_sazba_23 = 23;
constexpr int k_sirka_castky = 10;
constexpr const char* k_predpis_zalohy = "§ 38h zák. č. 586/1992 Sb.";
constexpr const char* k_predpis_srazky = "§ 36 zák. č. 586/1992 Sb.";

std::string text_srazkove(Castka zaklad_dane) {
    const std::string castka = base::castka_do_sloupce(k_sirka_castky, 0, zaklad_dane);
    return "srážková" + castka + castka;
}

DanPredSlevou srazkova(Castka zaklad_dane, base::Stopa* stopa) {
    DanPredSlevou vysledek;
    vysledek.dan = base::srazkova_na_koruny(base::procenta(zaklad_dane, k_sazba_15));
    vysledek.text = text_srazkove(zaklad_dane);
    if (stopa) {
        stopa->krok("daň srážková před slevou")
            .z("základ daně", "zaklad_dane", zaklad_dane)
            .konstanta("sazba %", k_sazba_15)
            .zaokrouhleni(base::srazkova_na_koruny)
            .predpis(k_predpis_srazky)
            .vysledek("dan_pred_slevou", vysledek.dan);
    }
    return vysledek;
}

Castka dan_pasma(const char* nazev, const char* promenna, Castka zaklad, int sazba,
                 base::Stopa* stopa) {
    const Castka dan = base::na_koruny_od_nuly(base::procenta(zaklad, sazba));
    if (stopa) {
        stopa->krok(nazev)
            .z("část základu", "zaklad_zaokrouhleny", zaklad)
            .konstanta("hranice pásem", k_hranice_vyssi_sazby)
            .konstanta("sazba %", sazba)
            .zaokrouhleni(base::na_koruny_od_nuly)
            .predpis(k_predpis_zalohy)
            .vysledek(promenna, dan);
    }
    return dan;
}

DanPredSlevou zalohova(Castka zaklad_dane, base::Stopa* stopa) {
    const Castka zaokrouhleny = zaokrouhleny_zaklad(zaklad_dane);
    if (stopa) {
        stopa->krok("zaokrouhlený základ zálohy")
            .z("základ daně", "zaklad_dane", zaklad_dane)
            .zaokrouhleni(zaklad_dane > 100 ? base::zaklad_dane_na_sta : base::sloupec_na_koruny)
            .predpis(k_predpis_zalohy)
            .vysledek("zaklad_zaokrouhleny", zaokrouhleny);
    }
    DanPredSlevou vysledek;
    vysledek.zalohova = true;
    DilciDane& d = vysledek.dilci;
    d.zaklad_15 = std::min(zaokrouhleny, Castka{k_hranice_vyssi_sazby});
    d.zaklad_23 = zaokrouhleny > k_hranice_vyssi_sazby ? zaokrouhleny - k_hranice_vyssi_sazby : 0;
    d.dan_15 = dan_pasma("daň ze základu 15 %", "dan_15", d.zaklad_15, k_sazba_15, stopa);
    d.dan_23 = dan_pasma("daň ze základu 23 %", "dan_23", d.zaklad_23, k_sazba_23, stopa);
    vysledek.dan = d.dan_15 + d.dan_23;
    vysledek.text = "zálohová" +
                    base::castka_do_sloupce_bez_mezery(k_sirka_castky, 0, zaklad_dane) +
                    base::castka_do_sloupce_bez_mezery(k_sirka_castky, 0, zaokrouhleny);
    if (stopa) {
        stopa->krok("daň zálohová před slevou")
            .z("daň ze základu 15 %", "dan_15", d.dan_15)
            .z("daň ze základu 23 %", "dan_23", d.dan_23)
            .predpis(k_predpis_zalohy)
            .vysledek("dan_pred_slevou", vysledek.dan);
    }
    return vysledek;
}

DanPredSlevou bez_dane(const char* proc, std::string text, base::Stopa* stopa) {
    if (stopa) stopa->krok("daň před slevou").vetev(proc).vysledek("dan_pred_slevou", 0);
    DanPredSlevou vysledek;
    vysledek.text = std::move(text);
    return vysledek;
}

}  // namespace

Castka zaokrouhleny_zaklad(Castka zaklad_dane) {
    return zaklad_dane > 100 ? base::zaklad_dane_na_sta(zaklad_dane)
                             : base::sloupec_na_koruny(zaklad_dane);
}

DanPredSlevou dan_kc(JakaDan kod, Castka zaklad_dane, Castka prijem_pro_dan,
                     int limit_vydelku_srazkova, base::Stopa* stopa) {
    if (zaklad_dane < 0) return bez_dane("záporný základ: bez daně", "", stopa);
    switch (kod) {
        case JakaDan::zaloha:
            return zalohova(zaklad_dane, stopa);
        case JakaDan::dohoda:
            return prijem_pro_dan > k_limit_dohody ? zalohova(zaklad_dane, stopa)
                                                   : srazkova(zaklad_dane, stopa);
        case JakaDan::autor:
            if (prijem_pro_dan < k_limit_autora ||
                base::porovnej_castky(prijem_pro_dan, k_limit_autora) == 0) {
                return srazkova(zaklad_dane, stopa);
            }
            return bez_dane("autor s příjmem nad 7000 Kč: daň se nesráží",
                            text_srazkove(zaklad_dane), stopa);
        case JakaDan::statutar:
            return prijem_pro_dan > limit_vydelku_srazkova ? zalohova(zaklad_dane, stopa)
                                                           : srazkova(zaklad_dane, stopa);
        case JakaDan::neplati:
            return bez_dane("kód 5: neplatí nikdy", "", stopa);
    }
    return bez_dane("kód daně mimo 1 až 5: bez daně", "", stopa);
}

Castka dan_po_pravidlech_bonusu(Castka dan, Castka prijem, int minimalni_mzda,
                                int bonus_maximalni) {
    constexpr Castka k_zaporna = -0.001L;
    if (dan < k_zaporna && prijem + 0.001L < minimalni_mzda / 2) return 0;
    if (dan < k_zaporna && dan > -k_nejmensi_bonus) return 0;
    if (dan < -bonus_maximalni) return -bonus_maximalni;
    return dan;
}

const char* Stupen_invalidity(int odp_invalidita, const std::array<std::int16_t, 3>& castky) {
    if (odp_invalidita == 0) return "";
    if (odp_invalidita == castky[0]) return "1";
    if (odp_invalidita == castky[1]) return "2";
    return "3";
}

std::string text_slev(const Slevy& slevy) {
    std::string text;
    const auto pridej = [&text](Castka castka, const char* druh) {
        text += "\r\n-  " + base::castka_prosta(castka) + druh;
    };
    if (slevy.poplatnik > 0) pridej(slevy.poplatnik, "  Kč  na poplatníka");
    if (slevy.invalidita > 0) pridej(slevy.invalidita, "  Kč  na invaliditu");
    if (!base::je_nula(slevy.deti)) pridej(slevy.deti, "  Kč  na děti");
    if (slevy.ostatni > 0) pridej(slevy.ostatni, "  Kč  odpočitatelné ostatní");
    return text;
}

std::string otazka_na_slevy(int cislo, const std::string& prijmeni, const std::string& jmeno,
                            const std::string& text_slev) {
    return "Pracovník č. " + std::to_string(cislo) + " - " + prijmeni + " " + jmeno +
           "\r\npracovní poměr netrvá celý měsíc, ale pracovník má zadané slevy na dani:\r\n" +
           text_slev +
           "\r\n\r\nPřiznáme mu tyto slevy na dani?\r\n\r\n"
           "Zadáte-li \"ANO\", pak se pracovníkovi tyto slevy na dani přiznají.\r\n\r\n"
           "Zadáte-li \"NE\", pak se pracovníkovi slevy na dani nepřiznají,\r\n"
           "i když je v osobní kartě má zadané.\r\n";
}

namespace {

Castka prispevek_podle_sazby(Castka cisty, Castka sazba) {
    if (base::je_nula(sazba)) return 0;
    if (sazba >= 1) return sazba;
    return base::odriznout(bez_sumu(cisty * sazba));
}

}  // namespace

Castka odborovy_prispevek(int cislo, Castka cisty, const shell::RidiciZorv& ridici,
                          base::Stopa* stopa) {
    const bool prvni = cislo >= ridici.os_interval1_od && cislo <= ridici.os_interval1_do;
    const bool druhy = cislo >= ridici.os_interval2_od && cislo <= ridici.os_interval2_do;
    const Castka sazba =
        prvni ? z_ulozeneho(ridici.os_sazba1) : (druhy ? z_ulozeneho(ridici.os_sazba2) : Castka{0});
    const Castka castka = prispevek_podle_sazby(cisty, sazba);
    if (stopa) {
        auto krok = stopa->krok("příspěvek odborovému svazu");
        krok.z("čistý příjem", "cisty_pro_odbory", cisty)
            .nastaveni("sazba", sazba, prvni ? "rid_zorv.idx os_sazba1" : "rid_zorv.idx os_sazba2");
        if (!prvni && !druhy) krok.vetev("číslo pracovníka neleží v žádném intervalu");
        if (sazba < 1) krok.zaokrouhleni(base::odriznout);
        krok.vysledek("odborovy_prispevek", castka);
    }
    return castka;
}

}  // namespace payrun
