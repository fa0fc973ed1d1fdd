// One worker's month: the steps from gross rows to the payable amount, each writing its rows of the
// pay sheet. The steps run in a fixed order on the worker's totals; every one reports to the trace
// when there is one.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/stopa.h"
#include "payrun/karta.h"
#include "payrun/sloucene_zdaneni.h"
#include "payrun/vstupy_mesice.h"
#include "payrun/zapisovac.h"
#include "shell/control_files.h"
#include "shell/nastaveni.h"

namespace payrun {

/// What is the same for every worker of a run.
struct ParametryMesice {
    const shell::RidiciZorv& ridici;
    const shell::Nastaveni& nastaveni;
    int rok = 0;
    int mesic = 0;
    int pracovni_dny_mesice = 0;  ///< days Monday to Friday
    bool zapornych_povoleno = false;
};

/// What a run carries from worker to worker.
struct StavBehu {
    std::vector<std::string>& chyby;            ///< lines of the list of errors
    std::vector<std::string> seznam_zapornych;  ///< six-digit numbers of workers with negative pay
    SlouceneZdaneni sloucene_zdaneni;
    DilciDane dilci;  ///< of the last worker whose tax was an advance
};

/// Workers who are taxed under somebody else come first, the others then tax their income too.
enum class Faze { A = 1, B = 2 };

/// Asks whether the reliefs of a part month are to be given.
using OtazkaNaSlevy = std::function<bool(const Karta&, const std::string& text)>;

class PracovnikMesice {
  public:
    PracovnikMesice(const ParametryMesice& parametry, VstupyMesice& vstupy, Zapisovac& zapisovac,
                    StavBehu& stav, OtazkaNaSlevy otazka);

    /// True for a worker employed in the month or having gross rows in it.
    bool je_v_mesici(const Karta& karta) const;
    /// The pass in which the worker is computed.
    static Faze faze(const Karta& karta) { return karta.kdo_plati_dan != 0 ? Faze::A : Faze::B; }

    /// All steps for one worker. Throws base::ChybaDat for a card that cannot be computed.
    void spocti(const Karta& karta, CilVet& cil, base::Stopa* stopa);

  private:
    /// The worker's totals.
    struct Ucty {
        Castka hruba_mzda = 0, hruba_do_socialniho = 0, hruba_do_zdravotniho = 0, hruba_do_dane = 0;
        Castka naturalni_mzda = 0;
        Castka ostatni_davky = 0, socialni_davky = 0;
        Castka srazky_soucet = 0, sporeni = 0;
        Castka socialni_kc = 0, zdravotni_kc = 0, dan_castka = 0;
        Castka dny_odpracovane = 0, dny_neodpracovane = 0, hodiny_odpracovane = 0,
               hodiny_neodpracovane = 0, hodiny_vedlejsi = 0;
    };
    /// Working time of the month for the shortening of fixed amounts.
    struct Fondy {
        Castka mesice = 0;       ///< hours of the whole month by the card's weekly time
        Castka odpracovano = 0;  ///< hours of the employment less those not worked
        Castka rpd_mesice = 0;   ///< the same two by the calendar
        Castka rpd_odpracovano = 0;
        Castka rpd_dny = 0;  ///< days of the employment by the calendar
    };

    // The steps, in their order.
    void zapis_socialni_davky();
    void zapis_davky_z_modulu_5();
    void zapis_hrube_mzdy();
    void zapis_naturalni_mzdu();
    void zapis_ostatni_davky();
    void zapis_soc_zdrav();
    void zapis_dan();
    void zapis_ostatni_srazky();
    void zapis_k_vyplate();
    void zapis_osobni_indikaci_pracovnika();

    // Parts of the steps.
    void zapis_sloupec_hrube_mzdy(const HrubaSkupina& skupina);
    void zapis_sledovane_sloupce(const HrubaSkupina& skupina);
    void pricti_casy(const HrubaSkupina& skupina);
    void pricti_k_hrube(int sloupec, Castka castka, std::string_view promenna,
                        std::string_view nazev);
    void zapis_stale_platy();
    Fondy fondy_pracovni_doby();
    void stopa_fondu(const Fondy& fondy, int dny_pomeru, Castka rpd_pomeru);
    Castka zkraceny_plat(Castka castka, const Fondy& fondy, const char* nazev, const char* pole,
                         const char* promenna);
    void zapis_staly_plat(const Fondy& fondy);
    void zapis_osobni_ohodnoceni(std::size_t poradi, const Fondy& fondy);
    void zapis_casy();
    void zkontroluj_sloupec_fondu(const std::vector<FixniSkupina>& skupiny, int sloupec_fondu);
    void zapis_penzijni_fond(int modul, int sloupec);
    void zapis_socialni();
    void zapis_zdravotni();
    Castka pod_strop(Castka zaklad, Castka predchozi, Castka maximum, const char* promenna,
                     const char* klic);
    void zapis_pojistovnu(Castka zaklad);
    void zapis_dilci_zaklad_cizi(Castka zaklad, Castka prijem, const char* znacka);
    std::string prevezmi_pripisy(Castka& zaklad, Castka& prijem);
    void zapis_dilci_dane(bool teto_dane);
    bool Budou_odpocitatelne();
    Castka suma_odpocitatelnych() const;
    void zapis_slevy();
    Castka zapis_deti();
    void uzavri_dan(Castka sleva_na_deti, const std::string& text_dane, const char* znacka);
    void zapis_fixni_srazky();
    void zapis_odbory();
    void zapis_zapornou_vyplatu(Castka k_vyplate);
    void zapis_sporeni_celeho_platu(Castka k_vyplate);

    // Means of all steps.
    bool pracovni_pomer_trva(RezimPomeru rezim) const;
    std::optional<Castka> zapis(const Polozka& polozka);
    VybranaHodnota vyber(const BlokovanaHodnota& blok, const char* pole, const char* promenna,
                         Castka hodnota);
    const std::string& poznamka_fondu(const char* zacatek);
    std::string zdroj(const char* tabulka, const char* pole) const;
    std::string zdroj_radku(const HrubyRadek& radek) const;
    void stopa_fixnich(const FixniSkupina& skupina, const std::string& nazev);
    /// Adds to a total; `puvod` gives name and source of the contribution, asked for only when a
    /// trace listens.
    template <typename Puvod>
    void pricti(Castka& ucet, std::string_view promenna, Castka castka, Puvod&& puvod) {
        ucet += castka;
        if (stopa_) {
            const std::pair<std::string, std::string> nazev_a_zdroj = puvod();
            stopa_->pricti(promenna, nazev_a_zdroj.first, nazev_a_zdroj.second, castka);
        }
    }

    const ParametryMesice& parametry_;
    VstupyMesice& vstupy_;
    Zapisovac& zapisovac_;
    StavBehu& stav_;
    OtazkaNaSlevy otazka_;

    const Karta* karta_ = nullptr;
    const BlokovaneHodnoty* blok_ = nullptr;
    base::Stopa* stopa_ = nullptr;
    Ucty u_;
    std::string poznamka_;  // reused by the notes
};

}  // namespace payrun
