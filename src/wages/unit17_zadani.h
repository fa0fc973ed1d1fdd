// TForm17: entry of the month's gross items. A grid of workers, a grid of columns, and four pages
// of which the chosen column shows one.
//
//   unit17_zadani.cpp    opening, the two grids, writing
//   unit17_bezny.cpp     the ordinary form: events of its fields, values offered
//   unit17_nahrady.h     compensation of incapacity
//   unit17_nemoc.h       benefits before 2009, kept for corrections
//   polozka_hrube.h      check and computation of an item
//
// A row is on the disk when the write returns, so nothing is left for a timer to save.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"
#include "wages/polozka_hrube.h"
#include "wages/unit17_nahrady.h"
#include "wages/unit17_nemoc.h"
#include "wages/zapis_hrubych.h"
#include "workers/registr_v_pameti.h"

namespace wages {

/// A worker of the grid.
struct PracovnikZadani {
    const workers::RadekRegistru* karta = nullptr;
    Castka koruny = 0;  ///< sum of his rows of the month
};

/// A column of the grid.
struct SloupecZadani {
    SloupecHrube sloupec;
    Castka koruny = 0;  ///< sum of the column's rows of the worker under the cursor
};

/// Screens of other folders that the entry opens.
struct VazbyZadani {
    std::function<void(shell::Session&)> blok;             ///< blocked values of the month
    std::function<void(shell::Session&)> prohlizeni_mezd;  ///< the month's pay sheet
};

/// Where the cursor goes after a write; the values are stored in `rid_pom.idx`.
enum class PoZapisu { panel_pracovniku = 1, panel_sloupcu = 2, zadani = 3 };

class TForm17 final : public base::Obrazovka {
  public:
    /// Entry into `session.zpracovavany_mesic`, whose table exists.
    TForm17(shell::Session& session, VazbyZadani vazby);
    std::string_view jmeno() const override { return "TForm17"; }

    enum class Stranka { ostatni, karantena, nahrady, nemoc_2008 };

    std::string nadpis;  ///< the month in words

    // Workers.
    std::string filtr;  ///< as typed: a whole number is a worker's number, else a part of a name
    workers::PoradiRegistru trideni = workers::PoradiRegistru::cislo;
    std::vector<PracovnikZadani> pracovnici;
    int pracovnik = -1;  ///< current row, -1 none

    // Columns.
    std::vector<SloupecZadani> sloupce;
    int sloupec = -1;
    Stranka stranka = Stranka::ostatni;

    // The ordinary form.
    ZadaniPolozky zadani;
    bool stredisko_z_karty = false, stredisko_po_f2_nech = false;
    bool vykon_z_karty = false, vykon_po_f2_nech = false;
    std::string lbCelkem;  ///< "Celkem  " amount " Kč"

    // Quarantine allowance.
    std::string karantena_kc = "0";

    StrankaNahrad nahrady;
    StrankaNemoci nemoc;

    PoZapisu po_zapisu_zvolit = PoZapisu::panel_pracovniku;
    bool po_zapisu_viditelne = true;
    std::vector<std::string> scChyby;
    bool scChyby_viditelne = false;
    bool zapsat_povoleno = false;  ///< "Zapsat" and "Zapsat a nemazat"
    bool zapsat_viditelne = true;  ///< both, not on the compensation page
    std::string fokus;             ///< control that is to get the focus
    bool zavreno = false;
    /// The changed mark: ordinary items were written, so that the month's pay sheet no longer tells
    /// the truth. Compensations deliberately do not set it.
    bool zmeneno = false;
    /// Months whose rows were corrected from here, maybe others than the one at hand.
    std::set<int> zmenene_mesice;
    /// Grow whenever the grid in question has changed, so that a face draws anew only then.
    unsigned vydani_pracovniku = 0, vydani_sloupcu = 0;

    /// False when there is no worker on file; the message was shown.
    bool FormShow();

    void Filtruj_adresy();
    void btXClick();
    void vyber_pracovnika(int radek);
    void vyber_sloupec(int radek);

    // Fields of the ordinary form.
    void DnyExit();
    void DatumExit();
    void StrediskoEnter();
    void VykonEnter();
    void HodnotaEnter(std::size_t n);  ///< values from 0
    void HodnotaExit(std::size_t n);
    void poleExit();  ///< any other field: the check
    void karantenaKeyUp();
    void nemocOdExit();  ///< the first day of the old benefits: finds the average

    void nahradyExit(PoleNahrad pole);
    void acZapsatNahrady();

    void Button2Click();  ///< "Zapsat"
    void Button3Click();  ///< "Zapsat a nemazat"
    void acKlavesaF2();
    void acVolitPracovnika();  ///< F9
    void acVolitDruh();        ///< F10
    void acZadavatUdaje();     ///< F11
    void smazat_zadani();
    void kalkulacka_cssz();
    void acZeSouboru();  ///< items of a file, with a preview
    void acBlok();
    void acProhlizeniMezd();
    void acProhlizeni();  ///< rows written, of the worker under the cursor
    void acSumarizace();  ///< sums of the month
    void acVykony();      ///< performances; the chosen one goes into its field
    void acNahrady();     ///< the year's compensations
    void acZpet();

    /// The column under the cursor; null when there is none.
    const SloupecHrube* zvoleny() const;

  private:
    shell::Session& session_;
    VazbyZadani vazby_;
    workers::RegistrVPameti registr_;
    CiselnikyPolozky ciselniky_;
    KartaZadani karta_;
    Castka celkem_ = 0;
    bool ceka_na_obsluhu_ = false;

    void nacti_sloupce();
    void nacti_soucty_pracovniku();
    void nacti_soucty_sloupcu();
    void Udelej_kontrolu();
    void ukaz_chyby(std::vector<std::string> chyby);
    void hledej_externi_vstup(std::string& hodnota);
    void zapis_polozku();
    void po_opravach(bool opraveno, const std::set<int>& mesice);
    bool projde(Stranka ktera);
    void po_zapisu();
    void jdi_na(PoZapisu kam);
    std::string prvni_pole() const;
};

}  // namespace wages
