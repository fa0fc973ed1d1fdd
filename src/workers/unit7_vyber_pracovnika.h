// TFVyberPracovnika: a list of workers to pick one from, narrowed while a number or a name is
// typed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"
#include "store/query.h"

namespace workers {

class TFVyberPracovnika final : public base::Obrazovka {
  public:
    /// `zvoleny` is the number to stand on at first, 0 none.
    explicit TFVyberPracovnika(shell::Session& session, int zvoleny = 0);
    std::string_view jmeno() const override { return "TFVyberPracovnika"; }

    std::string nadpis = "Výběr pracovníka";
    std::string filtr;  ///< digits: the number begins so; other text: a name holds it
    store::Rows vety;   ///< the workers that pass: number, surname, first name, employment end
    int radek = -1;     ///< current row of `vety` from 0, -1 none
    int zvoleno = 0;    ///< number of the chosen worker; 0 until chosen
    bool zavreno = false;

    /// Reads the workers by number.
    void FormShow();
    /// The filter was typed into.
    void filtrChange();
    void vyber_radek(int novy);
    void acVybratExecute();
    void acZpetExecute();

  private:
    struct Pracovnik {
        store::Row veta;
        std::string cislo, hledane;  ///< number in digits, names in upper case
    };
    shell::Session& session_;
    std::vector<Pracovnik> vsichni_;
    int zvoleny_;
    int cislo_radku() const;
};

}  // namespace workers
