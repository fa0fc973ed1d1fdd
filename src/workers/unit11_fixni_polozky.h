// TForm11: the fixed items of the whole company, with bulk operations and sums by column.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"
#include "workers/fixni_seznam.h"

namespace workers {

class TForm11 final : public base::Obrazovka {
  public:
    explicit TForm11(shell::Session& session);
    std::string_view jmeno() const override { return "TForm11"; }

    std::string nadpis;
    std::vector<RadekFixnich> vety;
    int vydani = 0;          ///< grows whenever `vety` were read anew
    int radek = -1;          ///< current row of `vety` from 0, -1 none
    int trideni = 0;         ///< "Třídění", an index into k_trideni_fixnich
    OmezeniFixnich omezeni;  ///< the four ends of the filter, as typed
    std::string lbOmezeni;   ///< `jake_omezeni`
    std::vector<SoucetSloupce> soucty;
    bool sumarizace_viditelna = false;  ///< "Sumarizace" with `soucty`
    bool penize_viditelne = false;      ///< "Kam odeslat peníze"
    BankovniSpojeni penize;             ///< connection of the current row
    std::string penize_slovy;           ///< what will become of its payment

    // Bulk operations, as typed: "Hromadně pracovníkům od ... do ... přidej sloupec ..." and "Pro
    // sloupec".
    std::string pridej_od, pridej_do, pridej_sloupec;
    std::string pro_sloupec;

    std::string fokus;  ///< field that has the focus: "mrizka"
    bool zavreno = false;

    void FormShow();
    /// The cursor of the grid moved to a row, from 0.
    void vyber_radek(int novy);
    void TrideniZmena();  ///< another order was chosen
    void OmezeniZmena();  ///< an end of the filter was changed
    void acVseExecute();  ///< "Vše": no filter
    void acPridatExecute();
    void acOpravitExecute();
    void acSmazatExecute();
    void acSumarizaceExecute();
    void acKamPenizeExecute();
    void acHromadnaOpravaExecute();  ///< "Hromadná oprava korun": TForm75
    void btPridejClick();            ///< "Přidej"
    void btVynulujClick();           ///< "Vynuluj koruny"
    void btSmazZaznamClick();        ///< "Smaž záznam"
    void acTiskExecute();            ///< "Tisk": the rows shown, in the preview
    void acZpetExecute();

    /// Only digits may be typed, at most six of a worker's number and two of a column's.
    bool povol_klavesu_pracovnika(char znak, std::string_view dosud) const;
    bool povol_klavesu_sloupce(char znak, std::string_view dosud) const;

    /// Refreshes the sums by column under the filter in force.
    void Pocitej_Query_na_Form11();

  private:
    shell::Session& session_;
    bool ceka_na_obsluhu_ = false;

    TrideniFixnich zvolene_trideni() const { return static_cast<TrideniFixnich>(trideni); }
    std::int64_t pocitadlo_radku() const;
    void obnov(std::int64_t pocitadlo);
    void ukaz_polozku(std::int64_t pocitadlo);
    bool over_sloupec(const std::string& text, const char* pole);
    void ohlas(const std::string& zprava);
    bool pipni_kdyz(bool odmitnuto) const;
};

}  // namespace workers
