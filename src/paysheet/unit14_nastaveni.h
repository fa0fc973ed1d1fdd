// TForm14: legislative values of the year and the fixed roles of pay-sheet columns. It writes
// `rid_zorv.idx`; the action that opens it writes `Nastaveni.ini` from the same screen.
//
// What each field is called, on which page it stands and where its value is kept is the table of
// unit14_pole.h; the checks of saving are in unit14_kontrola.cpp.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"

namespace paysheet {

/// Pages of the screen, in the order of their tabs.
enum class Stranka { legislativa, zakladni_parametry, pojisteni_dane_uctovani, cssz };
const char* stranka_slovy(Stranka stranka);

class TForm14 final : public base::Obrazovka {
  public:
    explicit TForm14(shell::Session& session);
    std::string_view jmeno() const override { return "TForm14"; }

    static constexpr const char* k_poznamka =
        "Při změně legislativy je nutné nastavení parametrů provést pro každou firmu zvlášť.";
    static constexpr const char* k_napoveda_sazby_os =
        "Zadejte:\r\n     v procentech: 0,01 až 0,99\r\n     v Kč: 1 a více\r\n     0 nebo bez "
        "údaje: nesráží se";
    static constexpr std::array<const char*, 2> k_sazby_pojistneho{"1 = základní", "2 = zvýšená"};

    std::string nadpis;
    Stranka stranka = Stranka::legislativa;  ///< the page shown
    std::string fokus;                       ///< name of the control that has the focus
    bool zavreno = false;
    bool ulozeno = false;  ///< closed with acceptance

    // Texts of the fields as typed, decimals with a comma.
    // Page "Legislativa".
    std::string scMinimalniMzda, scSazbaOCR, scSazbaPPM, scBonusMaximalni_Mesicni, scMaxVzSoc,
        scMaxVzZdr, scLimitPrijmuManzelaRocni, scLimitVydelkuSrazkova;
    std::string scSlevaNaDani_Mesicni_Zakladni, scSlevaNaDani_Mesicni_Manzelka,
        scSlevaNaDani_Mesicni_CastecneInvalidni, scSlevaNaDani_Mesicni_PlneInvalidni,
        scSlevaNaDani_Mesicni_ZTPP, scSlevaNaDani_Mesicni_Student;
    std::string Edit13, scProcSoc2, Edit15, Edit16;  ///< insurance, percent
    std::string Edit18, scDruhyPilirPrac, scDruhyPilirPF;
    int scKodSazbyPojistneho = 0;  ///< index into k_sazby_pojistneho, -1 none
    // Page "Základní parametry".
    std::string Edit1;                                           ///< fixed salary
    std::string Edit2, Edit4, Edit6, Edit8, Edit10;              ///< personal assessment: columns
    std::string Edit3, Edit5, Edit7, Edit9, Edit11;              ///< and their captions
    std::string Edit19, Edit20, Edit21;                          ///< leave and unpaid leave
    std::string Edit101, Edit102, Edit103, Edit104;              ///< overtime and night work
    std::string Edit41, Edit42, Edit43, Edit44, Edit45, Edit46;  ///< union fee
    bool scNemocenskeDavky = false;
    std::string Edit51, Edit52, Edit53, Edit54, Edit55, Edit56, Edit57, Edit58, Edit59,
        Edit60;  ///< optional criteria
    std::string scNahradaNemocSloupec, scNahradaKarantenaSloupec, scNahradaOCRSloupec,
        scNahradaPPMSloupec, scTydnuDovolene;
    bool scVstupDoUzavrenychMesicu = false;
    // Page "Pojištění, daně a účtování".
    /// `scNejdou71` to `scNejdou98`: rows social insurance (7), health insurance (8), tax (9).
    std::array<std::array<std::string, 8>, 3> scNejdou;
    std::string scPenzijni32, scPenzijni33;
    // Page "ČSSZ".
    std::vector<std::string> okresy;  ///< what scCsszOkres offers
    std::string scCsszOkres;          ///< a line of the list, or a code typed
    std::string scCsszVs, scEmailNotifikace;

    /// Fills the fields whose values are kept in `Nastaveni.ini`; the opening action calls it
    /// before FormShow.
    void vypln_z_nastaveni(const shell::Nastaveni& nastaveni);
    /// Takes them back; only after acceptance, when all of them were checked.
    void dosad_do_nastaveni(shell::Nastaveni& nastaveni) const;

    /// Fills the fields of the control record and the columns outside the bases.
    void FormShow();
    /// F2: checks everything, writes `rid_zorv.idx` and closes with acceptance. The first failure
    /// shows its message, goes to the field's page and field, and nothing is written.
    void acUlozitExecute();
    /// Escape: closes without any change.
    void acZpetExecute();
    /// The box was clicked; warns when it got ticked.
    void scVstupDoUzavrenychMesicuClick();

  private:
    shell::Session& session_;
    void dosad_do_zaznamu(shell::RidiciZorv& zaznam) const;
};

/// Name of a field of the exclusion table, `radek` 0 to 2 and `poradi` 0 to 7: "scNejdou71".
std::string ovladac_nejdou(std::size_t radek, std::size_t poradi);

/// Opens the screen and, when it was accepted, writes `Nastaveni.ini`. True when it was. A failing
/// write throws and puts the control record back, so that both files stay as they were.
bool acNastaveniParametruExecute(shell::Session& session);

}  // namespace paysheet
