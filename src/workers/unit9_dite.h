// TForm9: one child of a worker, with the tax benefit claimed for it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/obsluha.h"
#include "shell/session.h"

namespace workers {

class TForm9 final : public base::Obrazovka {
  public:
    /// `pocitadlo` is the row of `Deti`, 0 for a new child of the worker.
    TForm9(shell::Session& session, std::int64_t pocitadlo, int cislo_pracovnika);
    std::string_view jmeno() const override { return "TForm9"; }

    std::string nadpis = "Dítě";
    // The fields, as typed.
    std::string Cislo_pracovnika;  ///< shown, never changed here
    std::string Jmeno, Prijmeni, Bydliste;
    std::string Rodne_cislo;        ///< rr-mm-dd/xxxx
    std::string Datum_narozeni;     ///< d.m.yyyy; blank or 30.12.1899 means no date
    int Poradi = 1;                 ///< "Pořadí dítěte", 1 to k_nejvyssi_poradi
    std::string Odpocitatelna_dan;  ///< "Daňové zvýhodnění", crowns a month
    std::string zakonna_castka;     ///< a hint: the benefit of the law for the order of the child
    std::string fokus;              ///< field that has the focus: "Rodne_cislo"
    std::int64_t Pocitadlo;         ///< of the row written after saving
    bool ulozeno = false;
    bool zavreno = false;

    static constexpr int k_nejvyssi_poradi = 20;

    /// Fills the fields from the row, or with what a new child starts with.
    void FormShow();
    /// Leaving the birth number: a date of birth that is not set follows from it.
    void Rodne_cisloExit();
    /// The order of the child was changed: the hint follows, the amount stays.
    void PoradiZmena();
    /// True when `znak` may be typed at the end of `dosud` in the amount; otherwise beeps.
    bool povol_klavesu_castky(char znak, std::string_view dosud) const;
    /// The same for a text field of the table.
    bool povol_klavesu_textu(std::string_view pole, char znak, std::string_view dosud) const;
    void acOkExecute();    ///< "OK"
    void acZpetExecute();  ///< "Zpět": closes without any change

  private:
    shell::Session& session_;

    void nacti_vetu();
    bool odmitni(const char* pole, const std::string& zprava);
    bool zkontroluj_zadani();
    bool zkontroluj_ulozitelnost();
    void zapis();
};

}  // namespace workers
