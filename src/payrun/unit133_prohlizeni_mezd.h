// TForm133: browsing of a month's pay sheet. Workers on the left, the rows of the worker under the
// cursor on the right, and below them how the amount under the cursor came to be.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/obsluha.h"
#include "base/strom_vypoctu.h"
#include "payrun/unit133_pracovnici.h"
#include "payrun/unit133_radky.h"
#include "payrun/vysvetleni.h"
#include "shell/session.h"

namespace payrun {

/// Parts of the screen; the names are those of the controls that have the focus.
enum class OblastMezd { pracovnici, radky, vysvetleni };

class TForm133 final : public base::Obrazovka {
  public:
    /// Of the month; when it has no sheet, the screen says so in `hlaska` and offers nothing.
    TForm133(shell::Session& session, int mesic);
    std::string_view jmeno() const override { return "TForm133"; }

    std::string nadpis;       ///< "Prohlížení mezd - leden  2022"
    std::string hlaska;       ///< why there is nothing to browse, "" when there is
    std::vector<int> mesice;  ///< months whose sheet has rows
    int mesic_index = -1;     ///< the month shown, in `mesice`

    std::string filtr;  ///< as typed; `Filtruj_adresy` applies it
    int trideni = 0;    ///< index of k_trideni_pracovniku
    /// Workers that pass the filter, in order.
    std::vector<PracovnikListiny> pracovnici;
    int pracovnik = -1;       ///< current one, -1 none
    RadkyListiny radky;       ///< of the current worker
    int radek = -1;           ///< current row, -1 none
    SoucetMezd soucet_vsech;  ///< of the workers shown
    SazbyPodniku sazby;

    /// The explanation is made when asked for by `vysvetli`: passing over the list stays quick.
    bool ceka_na_vysvetleni = false;
    /// How the current row came to be; empty before `vysvetli` and for what cannot be explained.
    base::StromVypoctu strom;
    /// "" when the amount explained is the one stored, otherwise what is different and why.
    std::string rozdil;
    /// What the calculation would complain of, and rows that it would write now and the sheet does
    /// not have.
    std::vector<std::string> scChyby;

    OblastMezd oblast = OblastMezd::pracovnici;  ///< the part that is copied and printed
    std::string fokus;                           ///< control that is to get the focus
    bool zavreno = false;

    /// Grow whenever the list in question has changed, so that a face draws anew only then.
    struct Zmeny {
        unsigned pracovnici = 0, radky = 0, vysvetleni = 0;
    } zmeny;

    void FormShow();
    /// Another month of the box.
    void vyber_mesic(int index);
    /// Applies filter and order; the cursor stays on its worker, or goes to the first one.
    void Filtruj_adresy();
    void btXClick();  ///< "X" clears the filter
    void vyber_pracovnika(int novy);
    void vyber_radek(int novy);
    /// Explains the current row. The calculation runs once for a worker, later rows are looked up.
    void vysvetli();
    /// Makes the branches of a node of the tree that was met before.
    void rozbal(int uzel);
    /// True when the row's amount is known to come out differently now.
    bool lisi_se(int radek_listiny) const;

    void jdi_na(OblastMezd kam);
    /// What the part shows: lines of fields parted by tabs, amounts with decimal comma. The text
    /// goes where the face copies to.
    std::string kopie() const;

    void acExportExecute();  ///< rows of all shown workers as CSV
    void acTiskExecute();    ///< preview of the worker list, or of the worker's rows
    void acBlokExecute();    ///< blocked values of the month
    void acZpetExecute();

  private:
    shell::Session& session_;
    int mesic_;
    std::vector<PracovnikListiny> vsichni_;
    int cislo_radku_ = 0;                     ///< worker whose rows were read, 0 none
    std::unique_ptr<Vysvetleni> vysvetleni_;  ///< of the current worker, once asked for
    bool ceka_na_obsluhu_ = false;

    void nacti_mesic();
    void nacti_radky(int cislo);
    void zapomen_vysvetleni();
    void vysvetli_pracovnika_listiny();
    void ukaz_vysvetleni();
    const VysvetlenyRadek* vysvetleni_radku(int radek_listiny) const;
};

/// What is said of a month that has no sheet.
std::string hlaska_bez_listiny(const shell::Session& session, int mesic);

/// The current worker's heading: number, surname, first name; "" without a worker.
std::string pracovnik_slovy(const TForm133& form);

}  // namespace payrun
