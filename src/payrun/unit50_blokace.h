// TForm50: blocked values of a month, one row a worker. A change takes effect at the next pay run.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "payrun/unit51_blokovana_hodnota.h"
#include "store/query.h"

namespace payrun {

class TForm50 final : public base::Obrazovka {
  public:
    /// Of `zpracovavany_mesic`, whose table `BlokMM` must exist.
    explicit TForm50(shell::Session& session);
    std::string_view jmeno() const override { return "TForm50"; }

    std::string nadpis;
    store::Rows vety;  ///< the grid, by worker's number
    int radek = -1;    ///< current row of `vety` from 0, -1 none
    /// The current row's values, in the order of k_druhy_blokace.
    std::array<TForm51::Dvojice, k_druhy_blokace.size()> hodnoty;
    std::string fokus;  ///< "mrizka" after every change
    bool zavreno = false;

    void FormShow();
    /// Puts the cursor on the first row of a worker; without one it stays.
    void najdi_pracovnika(int cislo);
    /// The cursor of the grid moved to a row, from 0.
    void vyber_radek(int novy);
    void Button2Click();  ///< "+"
    void Button3Click();  ///< "Opravit"
    void Button4Click();  ///< "-"
    void Button1Click();  ///< "Zpět"

  private:
    shell::Session& session_;
    store::Table blok_;
    bool ceka_na_obsluhu_ = false;

    std::int64_t pocitadlo_radku() const;
    bool najdi_vetu();
    void ukaz_vetu(const char* nadpis_vety, store::Table::Bookmark puvodni);
    void obnov(std::int64_t pocitadlo);
};

/// Makes the table of blocked values of `zpracovavany_mesic` when it is missing.
void zaloz_soubor_pro_blokovani(shell::Session& session);

}  // namespace payrun
