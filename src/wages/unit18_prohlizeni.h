// TForm18: browsing rows of gross wages of any months. Rows are found by worker, column, cost
// centre and text; one may be corrected (TForm19) or deleted.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "wages/unit18_radky.h"

namespace wages {

class TForm18 final : public base::Obrazovka {
  public:
    /// The month at hand is let in: its rows may be changed without a question. A blank month of
    /// the filter stands for it.
    TForm18(shell::Session& session, FiltrHrubych filtr_);
    std::string_view jmeno() const override { return "TForm18"; }

    std::string nadpis;
    FiltrHrubych filtr;
    std::vector<UlozenaVeta> vety;
    int radek = -1;        ///< current row from 0, -1 none
    std::string lbSoucty;  ///< sums of the rows shown
    std::string lbHlaska;  ///< what is wrong with the filter
    std::string fokus;
    bool zavreno = false;
    bool zmeneno = false;          ///< some row was corrected or deleted
    std::set<int> zmenene_mesice;  ///< months of those rows
    unsigned vydani = 0;           ///< grows whenever the rows have changed

    bool je_veta() const { return radek >= 0; }
    void FormShow();
    /// A field of the filter was left: finds when it has changed. The actions begin with it, for a
    /// shortcut leaves no field.
    void filtrExit();
    void acVse();  ///< blanks the filter but for the months
    void vyber_radek(int novy);
    void acOpravitExecute();
    /// The crowns alone, past the computation; not for a row that carries a compensation.
    void acOpravitRucneExecute();
    void acSmazatExecute();
    void acTiskExecute();
    void acExportExecute();
    void acZpetExecute();

  private:
    shell::Session& session_;
    int mesic_zadani_;
    FiltrHrubych nalezeny_;  ///< the filter of the rows shown
    bool ceka_na_obsluhu_ = false;

    void najdi();
    void obnov(const UlozenaVeta& kurzor);
    const UlozenaVeta& vybrana() const { return vety[static_cast<std::size_t>(radek)]; }
    bool smi_se_menit(int mesic);
    void oznac_zmenu(int mesic);
    template <class Oprava, class Vyrob>
    void oprav(Vyrob vyrob);
};

}  // namespace wages
