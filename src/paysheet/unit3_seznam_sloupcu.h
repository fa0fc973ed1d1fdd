// TForm3: the list of pay-sheet columns with the parameters of the chosen one.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"
#include "store/table.h"

namespace paysheet {

class TForm3 final : public base::Obrazovka {
  public:
    explicit TForm3(shell::Session& session);
    std::string_view jmeno() const override { return "TForm3"; }

    /// A row of the grid.
    struct Sloupec {
        std::int64_t pocitadlo;
        int modul;
        std::string calModulSlovy;
        int sloupec;
        std::string text;
    };
    /// One of the four input values of a column, as the detail panel shows it.
    struct Hodnota {
        std::string nadpis, predradit, min, max, standardne;
    };

    static constexpr const char* k_nadpis_znacek = "Kdekoliv v názvu zadejte";
    static constexpr std::array<const char*, 3> k_znacky{
        "*DIS* pro odesílání údajů do České spořitelny", "*PF* pro výstupy pro penzijní fond",
        "--- pro zadávání záporné hodnoty"};

    std::string nadpis;
    /// Overview of modules 1 to 14: "1 až 2", "3" or "není".
    std::array<std::string, 14> moduly;
    std::vector<Sloupec> sloupce;
    int radek = -1;  ///< current row of `sloupce` from 0, -1 none
    bool opravit_povoleno = false;
    bool panel_znacek_viditelny = false;  ///< on rows of module 10

    // The detail panel, shown on rows of modules 1 and 3.
    bool panel_viditelny = false;
    std::array<Hodnota, 4> hodnoty;
    std::string vypocet;                         ///< how the crown amount follows from the values
    std::string dny, hodiny;                     ///< whole sentences
    std::string datum, stredisko, vykon, stroj;  ///< "ANO" or "ne"
    bool zavreno = false;

    /// Reads the columns and stands on the first.
    void FormShow();
    /// The cursor of the grid moved to a row, from 0.
    void vyber_radek(int novy);
    void btOpravitClick();  ///< "Opravit": TForm4 on the row
    void btPridatClick();   ///< "Přidat"
    void btSmazatClick();   ///< "Smazat"
    void btTiskClick();     ///< "Tisk"
    void btZpetClick();     ///< "Zpět"

    /// Caption of `var_vyp` on this screen, "???" for an unknown one.
    static std::string varianta_vypoctu(int var_vyp);

  private:
    shell::Session& session_;
    store::Table ridici_;
    void nacti_sloupce(std::int64_t pocitadlo);
    void zobrazit_hodnoty_na_panelu();
    void zobrazit_prazdny_panel();
};

/// Fills the overview of modules from the control record.
void Vypln_formular_3(TForm3& form, const shell::RidiciZorv& zaznam);

/// "Parametry výplatní listiny": shows the list modally and rebuilds the column names.
void acNastaveniVLExecute(shell::Session& session);

}  // namespace paysheet
