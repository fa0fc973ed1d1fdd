// The ground of screens that show a list of rows with a cursor: code lists, work calendars,
// attendance.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/cekani.h"
#include "base/obsluha.h"
#include "shell/session.h"
#include "store/query.h"

namespace workers {

class SeznamVet : public base::Obrazovka {
  public:
    std::string nadpis;
    store::Rows vety;   ///< the grid; with `Pocitadlo`, by which the cursor is kept
    int radek = -1;     ///< current row of `vety` from 0, -1 none
    std::string fokus;  ///< the control that wants the focus
    bool zavreno = false;

    bool je_veta() const { return radek >= 0; }
    /// The cursor of the grid moved to a row, from 0.
    void vyber_radek(int novy);
    /// `Pocitadlo` of the current row, 0 when there is none.
    std::int64_t pocitadlo_radku() const;
    /// A value of the current row, empty when there is none.
    store::Value hodnota_radku(std::string_view pole) const;
    /// "Zpět".
    void acZpetExecute();

  protected:
    explicit SeznamVet(shell::Session& session) : session_(session) {}

    /// Takes rows over and moves the cursor to `pocitadlo`; when it is gone, the cursor stays at
    /// its place in the grid.
    void prijmi(store::Rows nove, std::int64_t pocitadlo);
    /// Runs `prace`, unless another action of the screen waits for the operator.
    template <class Prace>
    void nerusene(Prace prace) {
        if (ceka_) return;
        const base::Cekani cekani(ceka_);
        prace();
    }

    shell::Session& session_;

  private:
    bool ceka_ = false;
};

}  // namespace workers
