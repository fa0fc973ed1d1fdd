// TForm19: one stored row of gross wages corrected. Which page is shown follows from the row:
//
//   ostatni  modules 1 and 3: the inputs of the row's column, checked and computed as at entry; a
//            value of the external input stands as its rate, no number of a work is looked up
//   castka   the amount alone (module 4), or days, hours and amount (module 5 without a detail, and
//            rows whose column is not among the pay sheet's any more)
//   nahrady  a row with a detail in `Nahrady`: the compensation's page, both rows kept in step
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "wages/unit17_nahrady.h"
#include "wages/unit19_veta.h"

namespace wages {

class TForm19 final : public base::Obrazovka {
  public:
    /// A row of the month's table of `session.zpracovavany_mesic`. Throws store::StoreError when it
    /// is not there.
    TForm19(shell::Session& session, std::int64_t pocitadlo);
    std::string_view jmeno() const override { return "TForm19"; }

    enum class Stranka { ostatni, castka, nahrady };
    Stranka stranka = Stranka::castka;

    std::string nadpis;
    std::string lbPracovnik;  ///< number and name
    std::string lbPolozka;    ///< module, column and its text
    std::string lbPuvodni;    ///< the amount as it is stored

    SloupecHrube sloupec;  ///< the row's column
    ZadaniPolozky zadani;
    std::string lbCelkem;

    bool dny_hodiny_viditelne = false;
    std::string scDny, scHodiny, scKoruny;
    bool davky_povolene = false;  ///< an old benefit with day bands, corrected by TForm90

    StrankaNahrad nahrady;

    std::vector<std::string> scChyby;
    bool scChyby_viditelne = false;
    std::string fokus;
    bool zavreno = false;
    bool zmeneno = false;  ///< the row was written

    void FormShow();
    void DnyExit();
    void DatumExit();
    void poleExit();  ///< any other field: the check and the total
    void nahradyExit(PoleNahrad pole);
    void acDavkyExecute();
    void acUlozitExecute();
    void acZpetExecute();

  private:
    shell::Session& session_;
    UlozenaVeta puvodni_;
    CiselnikyPolozky ciselniky_;
    KartaZadani karta_;
    Castka celkem_ = 0;
    bool ceka_na_obsluhu_ = false;

    bool nacti_sloupec();
    void nacti_kartu();
    void zvol_stranku();
    void ukaz_castku();
    std::optional<Castka>& pole_dnu(VetaHrube& veta) const;
    std::optional<Castka>& pole_hodin(VetaHrube& veta) const;
    std::vector<std::string> kontrola_castky() const;
    void Udelej_kontrolu();
    VetaHrube opravena() const;
};

}  // namespace wages
