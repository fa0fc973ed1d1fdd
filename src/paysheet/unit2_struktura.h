// TForm2: the first structure of a company's pay sheet. Opens only while `rid_zorv.idx` is missing.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"

namespace paysheet {

class TForm2 final : public base::Obrazovka {
  public:
    explicit TForm2(shell::Session& session);
    std::string_view jmeno() const override { return "TForm2"; }

    /// The eighteen fields in record order (module 1 from and to, module 2, ...), as typed: at most
    /// two digits, empty means 0.
    std::array<std::string, 18> pole;
    std::vector<std::string> scChyby;  ///< shown while not empty; saving is disabled then
    bool zavreno = false;              ///< the screen asks its face to close it
    bool ulozeno = false;

    /// Copies the fields into the in-memory record.
    void dosad_hodnoty_do_parametru();
    /// Refills the list of errors.
    void proved_uplnou_kontrolu();
    /// Leaving any field: both of the above.
    void opusteni_pole();
    /// "uložit": with no error writes `rid_zorv.idx` and `Ridici` and closes.
    void btOKClick();
    /// "zpět".
    void btZpetClick();

  private:
    shell::Session& session_;
    void proved_kontrolu_navaznosti();
    void kontrola(int modul, int prvni, int posledni_predchozi);
    static bool Interval_chybny(int od, int do_);
};

/// The record and the rows of `Ridici` are a pair. A sentence naming the columns in which they
/// differ,
/// "" when they agree.
std::string nesoulad_sloupcu(store::Connection& data, const shell::RidiciZorv& zaznam);

/// Presets "1" to "18".
void Vypln_formular_2(TForm2& form);

}  // namespace paysheet
