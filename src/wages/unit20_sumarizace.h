// TForm20: sums of the month's gross wages by column, by worker or by cost centre. A sum leads to
// the rows that it is made of.
#pragma once

#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "wages/unit18_radky.h"

namespace wages {

enum class PodleCeho { sloupce, pracovnika, strediska };
inline constexpr std::size_t k_sumarizaci = 3;
/// As offered, in the order of the type.
inline constexpr std::array<const char*, k_sumarizaci> k_podle_ceho{
    "Podle sloupců", "Podle pracovníků", "Podle středisek"};

struct RadekSumarizace {
    int klic = 0;  ///< number of the column, worker or centre; 0 rows without a centre
    std::string text;
    SoucetHrubych soucet;
};
/// By the number; columns by module first. One query over the month's table.
std::vector<RadekSumarizace> sumarizace(shell::Session& session, int mesic, PodleCeho podle);

class TForm20 final : public base::Obrazovka {
  public:
    /// Of `session.zpracovavany_mesic`, whose table exists.
    explicit TForm20(shell::Session& session);
    std::string_view jmeno() const override { return "TForm20"; }

    std::string nadpis;
    PodleCeho podle = PodleCeho::sloupce;
    std::vector<RadekSumarizace> radky;
    int radek = -1;  ///< from 0, -1 none
    std::string lbSoucty;
    std::string fokus;
    bool zavreno = false;
    bool zmeneno = false;          ///< a row was corrected or deleted on the way
    std::set<int> zmenene_mesice;  ///< months of those rows
    unsigned vydani = 0;           ///< grows whenever the rows have changed

    bool je_radek() const { return radek >= 0; }
    void FormShow();
    void zvol(PodleCeho novy);
    void vyber_radek(int novy);
    void acPolozkyExecute();  ///< the rows behind the sum
    void acTiskExecute();
    void acExportExecute();
    void acZpetExecute();

  private:
    shell::Session& session_;
    bool ceka_na_obsluhu_ = false;

    void nacti();
    SoucetHrubych celkem() const;
};

}  // namespace wages
