// TForm21: the pay run of one month, from gross items to the pay sheet.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"

namespace payrun {

/// The screen "Výpočet výplat". Before it is made, the month's `ListinMM` must exist (empty) and
/// `zpracovavany_mesic` be set. The run is one transaction: it either stands complete on the disk
/// or the sheet is as it was.
class TForm21 final : public base::Obrazovka {
  public:
    explicit TForm21(shell::Session& session);
    ~TForm21() override;
    std::string_view jmeno() const override { return "TForm21"; }

    // What the screen shows.
    std::string nadpis;           ///< window title
    std::string scMesic;          ///< month label
    std::string nadpis_vysledku;  ///< heading of the results panel
    int pracovni_dny_mesice = 0;  ///< "Počet pracovních dní včetně svátků"
    std::string prubeh;           ///< "A: Pracovník 7", "" when nothing runs
    int prubeh_pozice = 0, prubeh_max = 0;
    bool zpracuj_povoleno = true, zpet_povoleno = true, prerusit_viditelne = false;
    bool zapornych_povoleno = false;  ///< label "Povolují se záporné výplaty"
    bool prohlizet_zaporne_viditelne = false;
    bool nelze_pokracovat = false;     ///< label "Nelze pokračovat"
    std::vector<std::string> scChyby;  ///< visible while not empty
    bool vysledky_viditelne = false;
    /// Label and amount text of the results panel; the last two belong under "ORGANIZACE BUDE
    /// PLATIT:".
    std::vector<std::pair<std::string, std::string>> vysledky, vysledky_organizace;
    bool preruseno = false;
    bool zavreno = false;

    /// Counts the month's working days and shows what an earlier run left behind.
    void FormShow();
    void Button2Click();  ///< "Zpracuj výplaty": the run
    void Button3Click();  ///< "Přerušit"
    void Button1Click();  ///< "Zpět"
    void BitBtn1Click();  ///< "Prohlížet záporné výplaty"
    /// "Prohlížení mezd" of the sheet just made; offered beside the results.
    void acProhlizeniMezdExecute();

  private:
    struct Beh;
    void priprav_beh();
    void vrat_po_chybe();
    void proved_vypocet();
    void projdi_pracovniky(Beh& beh);
    void uzavri_bez_preruseni();
    bool mame_zaporne_vyplaty();
    void zrus_preruseny_vypocet();
    void zobrazit_vysledky_vypoctu();
    bool zeptej_se_na_slevy(const std::string& text);
    void posun_prubeh(std::size_t zpracovano);

    std::unique_ptr<Beh> beh_;
    shell::Session& session_;
};

}  // namespace payrun
