// TForm1: the main form; opening a company and the actions that open screens. The one place that
// knows every screen.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/deniky.h"
#include "base/obsluha.h"
#include "menu/akce.h"
#include "menu/otevrena_firma.h"
#include "shell/session.h"

namespace menu {

/// What an action that needs a company says without one.
inline constexpr const char* k_bez_vybrane_firmy = "Nejdříve vyberte firmu.";

/// What a restart says where no program for it lies beside this one.
inline constexpr const char* k_spustte_znovu = "Ukončete program a spusťte jej znovu.";

/// Title of the message that refuses a wrong start.
inline constexpr const char* k_nadpis_odmitnuti = "Upozornění";
/// The program is started by the menu of its family, with "menu" as the first argument. Returns ""
/// or the text with which any other start is refused, before a window is made.
std::string odmitnuti_startu(std::string_view prvni_argument);

/// States of the form: no company (`session.firma` empty), choosing (`seznam_viditelny`), open.
class TForm1 final : public base::Obrazovka {
  public:
    explicit TForm1(shell::Session& session);
    std::string_view jmeno() const override { return "TForm1"; }
    shell::Session& session() { return session_; }

    std::string titulek;  ///< title of the window
    std::string lbFirma;  ///< the company's line, or "Vyber firmu --->"; shown unless choosing
    int mesic = 1;        ///< the month box, 1 to 12
    std::string pozadi;   ///< background picture of the company, a path
    /// The month box is to get the focus; the face sets it and puts this back to false.
    bool fokus_na_mesici = false;
    /// Label "Editace sestava zapnuta" is shown, and reports may be edited.
    bool editace_sestav = false;
    bool zavreno = false;  ///< the form was closed and the program ends
    /// The program that the face starts once this form was closed; empty: none.
    std::string spustit_po_zavreni;
    /// Where the window stands: set by FormCreate when remembered, kept by the face, stored by
    /// FormDestroy.
    std::optional<base::PolohaOkna> poloha_okna;

    std::vector<std::string> seznam_firem;  ///< sorted, upper-cased
    std::string vybrana_firma;              ///< the one selected in the list when it drops down
    bool seznam_viditelny = false;          ///< list (dropped down) and `lbRoot` are shown
    bool zmenit_viditelne = true;           ///< button "Změnit"
    std::string lbRoot;                     ///< the data root with a trailing separator

    /// Takes `Velmar.ini` beside the program file into the session: the data root, the last
    /// company, looks; restores the window's place.
    void FormCreate();
    /// At the start: opens the session's company; one whose folder has vanished is cleared
    /// silently.
    void FormShow();
    /// Stores the window's place.
    void FormDestroy();

    /// Opens the company `firma` of the session (already set with `koren_dat`): control files,
    /// missing tables. True when it stands ready; false when the operator left the first structure
    /// without saving or accounting files are missing (the message was shown).
    bool zaloz_soubory();

    /// Reads `rid_zorv.idx`, or fills defaults and shows TForm2 modally; then active month, month
    /// box and column names. False when the file still does not exist.
    bool cti_ridici_soubor_pro_zorv();
    void cti_pomocny_ridici_soubor();
    void cti_ridici_soubor_pro_banku();
    void cti_ridici_soubor_pro_ucetnictvi();
    void prepis_ridici_soubor_pro_ucetnictvi();
    bool testuj_ucetnictvi_v_hlavnim_pocitaci() const;

    /// What buttons, menu items and shortcuts call: the common guard, then the action. An action
    /// whose screen is not built yet says so. False when the action did not run. While an action
    /// waits for the operator, any other is refused silently. Throws std::logic_error for a name
    /// that is no action's.
    bool proved_akci(std::string_view nazev);
    /// The common guard: an action that needs a company and has none is told so and marked handled.
    void ActionList1Execute(const Akce& akce, bool& handled);

    /// Opens the list of companies; until one is picked no company is open.
    void acZmenitFirmuExecute();
    /// The operator leaves the list without a pick: the company open before is opened again.
    /// Without one, or when it is not under the root any more, no company stays open.
    void opustVyberFirmy();
    /// A company was picked in the list: remembers it in `Velmar.ini` and opens it.
    void ComboBox1Change(const std::string& firma);
    /// Asks for another data root, remembers it and lists its companies.
    void lbRootClick();
    /// Asks for the background picture of the company. One without a stored picture shows
    /// `pozadi0.jpg` then, though opening it falls back on `pozadi9.jpg`.
    void Image1DblClick();
    void acUzaverkyExecute();
    void acNastaveniVLExecute();
    void acNastaveniParametruExecute();
    void acEditaceSestavExecute();
    void acRestartExecute();
    void acKonecExecute();

    /// "Výpočet výplat" of the month in the box: guards, the re-run question, the sheet, the
    /// screen. True when the screen was shown; otherwise the session stays as it was and the focus
    /// goes to the month box.
    bool acVypocetVyplatExecute();

  private:
    shell::Session& session_;
    bool akce_bezi_ = false;
    OtevrenaFirma otevrena_firma_;
    std::string firma_pred_vyberem_;

    void otevri_firmu();
    void ukaz_seznam_firem(bool ukaz);
    void ukaz_bez_firmy();
    void zapamatuj(const char* sekce, const char* klic, const std::string& hodnota);
    std::filesystem::path sablona(const char* soubor) const;
    bool vstup_do_vypoctu();
    bool testuj_ucetnictvi_v_tomto_pocitaci();
    void prenes_vyloucene_sloupce();
    void prenes_jmeno_ucetni();
    bool zaloz_listinu_pro_vypocet();
};

/// The month's table of gross wages, made at the first entry into its actions.
void zaloz_hrube_zorv(shell::Session& session);

}  // namespace menu
