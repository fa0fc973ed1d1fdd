// TForm6: the register of workers. The list with its filters, and beside it pages about the worker
// under the cursor: fixed items, children, electronic submissions, a digest of the card. The wage
// survey's page is not part of this version.
//
//   unit6_registr.cpp   the list: filters, order, cursor, card, print
//   unit6_stranky.cpp   the pages beside it and their actions
//   unit6_smazani.h     what removal tests and deletes
//   registr_v_pameti.h  which workers a filter lists
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "report/tabulkova.h"
#include "shell/session.h"
#include "store/query.h"
#include "workers/registr_v_pameti.h"
#include "workers/vyber_kalendare.h"

namespace workers {

/// Rows of a page beside the list, with the cursor among them.
struct MrizkaStranky {
    store::Rows vety;  ///< the first column is `Pocitadlo`, the others have captions for people
    int radek = -1;    ///< from 0, -1 none

    /// `Pocitadlo` of the current row, 0 when there is none.
    std::int64_t Pocitadlo() const;
    /// Takes rows over; the cursor goes to `pocitadlo`, or stays at its place when that is gone.
    void prijmi(store::Rows nove, std::int64_t pocitadlo);
};

class TForm6 final : public base::Obrazovka {
  public:
    TForm6(shell::Session& session, VyberKalendare vyber_kalendare);
    std::string_view jmeno() const override { return "TForm6"; }

    enum class Stranka { fixni, deti, epodani, info, ispv };
    enum class StrankaInfo { osobni, plat };

    std::string nadpis;  ///< "Pracovníci - " and the company

    // The filter row. After a change of a member the matching method below is called.
    FiltrRegistru filtr;
    std::vector<std::string>
        hlediska;              ///< items of both lists of criteria, "vyber volitelné" first
    std::string chyba_filtru;  ///< the store's error of a number that is none

    // The list.
    std::vector<const RadekRegistru*> radky;
    int radek = -1;           ///< current row of `radky` from 0, -1 none
    int vydani_seznamu = 0;   ///< grows whenever `radky` was made anew
    std::string pocet_slovy;  ///< "Zobrazeno 12 z 40 pracovníků"

    // The pages.
    Stranka stranka = Stranka::fixni;
    StrankaInfo stranka_info = StrankaInfo::osobni;
    MrizkaStranky fixni, deti, epodani;
    store::Rows osobni, plat;          ///< rows of a label and a value
    std::string suma_odpocitatelnych;  ///< crowns a month claimed for the worker's children
    static constexpr const char* k_ispv =
        "Výběrové šetření o mzdách (ISPV) není součástí této verze.";

    std::string fokus;  ///< the control that wants the focus
    bool zavreno = false;

    void FormShow();

    void zmena_filtru();                        ///< any filter or the order was changed
    void scMajiDetiClick();                     ///< ticked, turns to "Děti"
    void scMajiEPodaniClick();                  ///< ticked, turns to "ePodání"
    void cbVolitelneChange(std::size_t ktere);  ///< criterion list 0 or 1
    void acVseExecute();                        ///< clears all filters

    /// The cursor of the list moved to a row, from 0.
    void vyber_radek(int novy);
    void vyber_stranku(Stranka nova);
    void vyber_stranku_info(StrankaInfo nova);
    /// The worker under the cursor, null when there is none.
    const RadekRegistru* pracovnik() const;

    void acPridatExecute();
    void acOpravitExecute();
    void acSmazatExecute();
    void acTiskniExecute();
    void seznam_dvojklik();  ///< the correction, unless the wage survey's page is the active one
    void acPrepocetDovoleneExecute();
    void acZpetExecute();

    void acDetiPridatExecute();
    void acDetiOpravitExecute();
    void acDetiSmazatExecute();
    void acFixniPridatExecute();
    void acFixniOpravitExecute();
    void acFixniSmazatExecute();
    void acEpodPridatExecute();
    void acEPodaniSmazatExecute();
    void acEPortalExecute();
    void acIspvExecute();
    void acPriruckaISPVExecute();

    /// The list as it is shown, for print.
    report::TabulkovaSestava sestava() const;

  private:
    shell::Session& session_;
    VyberKalendare vyber_kalendare_;
    RegistrVPameti registr_;
    FiltrRegistru platny_filtr_;  ///< the last one that gave a list
    std::vector<std::string> pojistovny_;
    bool ceka_na_obsluhu_ = false;

    std::int64_t pocitadlo_radku() const;
    void prijmi_seznam(std::vector<const RadekRegistru*> nove, std::int64_t pocitadlo);
    void znovu_otevri(std::int64_t pocitadlo);
    bool lze_smazat(std::int64_t cislo, bool& ma_udaje);
    void smaz_kartu(const RadekRegistru& kdo, bool ma_udaje);
    std::int64_t sousedni_pocitadlo() const;
    void neni_soucasti(const char* co);

    void nacti_stranku();
    void nacti_fixni(std::int64_t pocitadlo);
    void nacti_deti(std::int64_t pocitadlo);
    void nacti_epodani(std::int64_t pocitadlo);
    void nacti_info();
    void Suma_odpocitatelnych();
    void ukaz_dite(std::int64_t pocitadlo);
    void ukaz_fixni(std::int64_t pocitadlo);
};

}  // namespace workers
