// TForm1: the main form; opening a company and the actions that open screens. The one place that
// knows every screen.
#pragma once

#include <string>

#include "base/obsluha.h"
#include "shell/session.h"

namespace menu {

class TForm1 final : public base::Obrazovka {
  public:
    explicit TForm1(shell::Session& session);
    std::string_view jmeno() const override { return "TForm1"; }

    std::string lbFirma;  ///< the company's line, or "Vyber firmu --->"
    int mesic = 1;        ///< the month box, 1 to 12
    std::string pozadi;   ///< background picture of the company, a path

    /// At the start: opens the session's company; one whose folder has vanished is cleared
    /// silently.
    void FormShow();
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

    /// "Výpočet výplat" of the month in the box: guards, the re-run question, the sheet, the
    /// screen. True when the screen was shown.
    bool acVypocetVyplatExecute();

  private:
    shell::Session& session_;
    bool testuj_ucetnictvi_v_tomto_pocitaci();
    void prenes_vyloucene_sloupce();
    void prenes_jmeno_ucetni();
    bool zaloz_listinu_pro_vypocet();
};

/// Month tables, made at the first entry into their actions.
void zaloz_hrube_zorv(shell::Session& session);
void zaloz_soubor_pro_blokovani(shell::Session& session);

}  // namespace menu
