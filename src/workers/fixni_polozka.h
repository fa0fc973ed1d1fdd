// One fixed item of a worker as its two forms edit it: TForm13 on the register and TForm12 of the
// whole company.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"
#include "workers/fixni_spojeni.h"

namespace workers {

class PolozkaFixnich : public base::Obrazovka {
  public:
    std::string nadpis = "Fixní položka";
    // The fields, as typed; blank bank fields mean none.
    std::string Cislo_pracovnika;
    std::string Sloupec;  ///< "Sloupec VL"
    std::string Kcs;      ///< crowns a month; 0 takes the amount from the pay sheet
    BankovniSpojeni spojeni;
    std::string jmeno_pracovnika;      ///< name behind the number
    std::string text_sloupce;          ///< caption of the column
    std::vector<std::string> legenda;  ///< the permitted columns
    bool cislo_povoleno = true;        ///< the worker may be typed
    bool banka_povolena = false;       ///< the bank fields: on columns of deductions alone
    std::string fokus;                 ///< field that has the focus: "Ucet"
    std::int64_t Pocitadlo;  ///< row of `Fixni`, 0 a new one; of the row written after saving
    bool ulozeno = false;
    bool zavreno = false;

    /// Fills the fields from the row, or blank ones.
    virtual void FormShow();
    void Cislo_pracovnikaExit();  ///< shows the name
    void SloupecExit();  ///< shows the caption; bank fields are cleared where they have no place
    enum class Pole { Cislo_pracovnika, Sloupec, Kcs, Ucet, Kod_banky, Symbol, Konstantni };
    /// True when `znak` may be typed at the end of `dosud` in a field; otherwise beeps. Crowns take
    /// a minus on columns marked "---".
    bool povol_klavesu(Pole pole, char znak, std::string_view dosud) const;
    void acUlozitExecute();  ///< "Uložit"
    void acZpetExecute();    ///< "Zpět": closes without any change

  protected:
    PolozkaFixnich(shell::Session& session, std::int64_t pocitadlo, int cislo_pracovnika);
    shell::Session& session() const { return session_; }

  private:
    shell::Session& session_;
    int novemu_pracovnikovi_;
    bool ceka_na_obsluhu_ = false;

    void nacti_vetu();
    bool odmitni(const char* pole, const std::string& zprava);
    bool Interval_souhlasi();
    bool zkontroluj_zadani();
    bool zkontroluj_ulozitelnost();
    bool ucet_v_poradku();
    void zapis();
};

}  // namespace workers
