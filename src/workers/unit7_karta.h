// TForm7: the card of one worker, a row of `Os_karty` on seven pages.
//
// What fields there are is the table of unit7_pole.h, how they are read and written
// unit7_hodnoty.h; the check is in unit7_kontrola.h, the hints in unit7_napovedy.h, the cascade of
// a changed number or name in unit7_kaskada.h.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"
#include "workers/unit7_hodnoty.h"
#include "workers/unit7_kaskada.h"
#include "workers/unit7_kontrola.h"
#include "workers/unit7_napovedy.h"
#include "workers/vyber_kalendare.h"

namespace workers {

class TForm7 final : public base::Obrazovka {
  public:
    TForm7(shell::Session& session, VyberKalendare vyber_kalendare);
    std::string_view jmeno() const override { return "TForm7"; }

    static constexpr const char* k_poznamka_dane =
        "15 % při výdělku do 10.000 Kč srážková, pokud neuplatňuje odpočty, jen u DPP, jinak 15 % "
        "zálohová.";
    static constexpr const char* k_poznamka_skolam =
        "Školy: v jednom z volitelných hledisek má učitel kód 1, učitel odborného předmětu 2, "
        "ostatní jiný znak nebo nic. Kód se uplatní v přepočteném počtu pracovníků.";
    static constexpr const char* k_nadpis_sazby_pf = "Způsoby zadání sazby PF";
    static constexpr const char* k_napoveda_sazby_pf =
        "méně než 1: % z hrubé mzdy\r\n1 a více: příspěvek v Kč\r\n0: podnik neplatí penzijní "
        "pojištění - smlouva se týká platby, kterou platí pracovník";

    std::int64_t Pocitadlo = 0;  ///< row of `Os_karty`; of the row written after saving
    bool ulozeno = false;
    bool zavreno = false;

    std::string nadpis;  ///< number, title and names as they are typed
    StrankaKarty stranka = StrankaKarty::osobni;
    std::string fokus;        ///< control that wants the focus
    std::string vybrat_text;  ///< control whose whole text wants to be selected
    HodnotyKarty hodnoty;     ///< the controls, by their names

    std::vector<ChybaKarty> chyby;     ///< messages: while there are any, nothing is stored
    std::vector<ChybaKarty> napovedy;  ///< hints; never in the way
    bool ulozit_povoleno = false;
    bool poznamka_dane_viditelna = false;
    bool panel_sazby_pf_viditelny = false;
    bool pocet_deti_povolen = false;                     ///< "Počet dětí" is not asked of men
    std::string nadpis_minuly_rok, nadpis_aktualni_rok;  ///< captions of the averages
    /// Name of the insurer and of the fund, of the worker who taxes this wage.
    std::string jmeno_pojistovny, jmeno_fondu, jmeno_platce_dane;

    int postup = 0;  ///< of the cascade, 0 to 100
    std::string postup_text;
    bool postup_viditelny = false;

    /// A new worker.
    void acPridatExecute();
    /// Correction of the card of that `Pocitadlo`; throws base::ChybaDat when there is none.
    void acOpravitExecute(std::int64_t pocitadlo);
    /// Title and the first check; after one of the two above.
    void FormShow();

    /// Field events, by the control's name. `text` is what stands in the control.
    void psani(std::string_view ovladac, const std::string& text);
    void vstup_do_pole(std::string_view ovladac);
    void opusteni_pole(std::string_view ovladac);
    /// A check box was clicked or an item of a list chosen.
    void zmena_volby(std::string_view ovladac);

    void acRpdExecute();
    void acRpdMinExecute();
    /// The "X" beside the calendars.
    void btRpdXClick();
    void btRpdMinXClick();
    /// The button beside "Mzdu bude zdaňovat pracovník".
    void btKdoPlatiDanClick();
    /// Leave entitlement from the employment and the weekly working time.
    void acPrepocetExecute();

    /// Goes to the field of a line: of `chyby` first, behind them `napovedy`.
    void vyber_chybu(int radek);
    /// To the field of the next line; behind the last one to the first.
    void dalsi_chyba();

    /// F2. Stores the card and what repeats its number and names, all or nothing.
    void acUlozitExecute();
    void acZpetExecute();

    const std::vector<PolozkaCiselniku>& polozky(CiselnikKarty ciselnik) const {
        return ciselniky_.polozky(ciselnik);
    }
    std::string popisek(const PoleKarty& pole) const { return popisek_pole(pole, session_); }

  private:
    shell::Session& session_;
    VyberKalendare vyber_kalendare_;
    CiselnikyKarty ciselniky_;
    PodkladyKarty podklady_;
    OstatniPracovnici ostatni_;
    Totoznost puvodni_;          ///< before the correction; number 0 of a new worker
    bool zaneprazdnen_ = false;  ///< a dialog of the card waits, or the card is being stored
    std::string aktivni_pole_;   ///< entered and not left yet
    int posledni_chyba_ = -1;

    /// Field events that come while the card is being stored or closed mean nothing.
    bool nereaguje() const { return zaneprazdnen_ || zavreno; }
    /// Keeps who the worker is for the cascade and stands on the first page.
    void Nastav_vychozi_hodnoty();
    void zkontroluj();
    void obnov_nadpis();
    void obnov_jmena();
    void po_opusteni(std::string_view ovladac);
    void zvol_kalendar(const char* ovladac, int rok, const char* hlaska);
    void smaz_kalendar(const char* ovladac);
    bool pracovnik_uz_existuje();
    bool hodnoty_lze_zapsat();
    void zapis();
    std::int64_t zapis_vetu();
    int spocitej_datum_narozeni_cislem() const;
    void ukaz_postup(int procent, const std::string& text);
    void jdi_na(std::string_view ovladac);
    Totoznost totoznost() const;
};

}  // namespace workers
