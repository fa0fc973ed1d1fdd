// Rows of `HrubeMM`: what a row holds, and its writing. Everything that enters gross items goes
// through here.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "shell/session.h"
#include "store/table.h"
#include "wages/polozka_hrube.h"

namespace wages {

/// What entry reads of a worker's card; amounts in crowns.
struct KartaZadani {
    std::int64_t Pocitadlo = 0;
    int cislo = 0;
    int cislo_min_rok = 0;
    std::string prijmeni, jmeno;
    std::string stredisko, vykon;  ///< as text, blank when the card has none
    Castka tpd = 0;                ///< hours a week
    Castka sazba_ot = 0;
    Castka zakladni_plat = 0;  ///< fixed salary with the five personal assessments
    Castka prumer_denni = 0, prumer_hodinovy = 0;  ///< of leave, of the quarter before the month
    int id_rpd = 0, id_rpd_min = 0;
    bool osamela_osoba = false;
    std::array<Castka, 13> prum_nemoc{};  ///< December of the previous year, then the months
    std::array<store::Value, 10> volit;
};
/// By `Pocitadlo`, for the month being worked on; throws store::StoreError when there is no such
/// card.
KartaZadani nacti_kartu_zadani(shell::Session& session, std::int64_t pocitadlo);
/// All cards for the month, by the worker's number; of two with the same number the first.
std::unordered_map<int, KartaZadani> nacti_karty_zadani(shell::Session& session, int mesic);

/// The value that entry offers for a blank one by the column's code; "" for a code that offers
/// nothing. `koruny` is the sum of the worker's items of the month.
std::string Co_predsadit(const HodnotaSloupce& hodnota, const SloupecHrube& sloupec,
                         const ZadaniPolozky& zadani, const KartaZadani& karta, Castka koruny,
                         int mesic, int rok);
/// Crowns a day: the fixed salary with assessments over the month's Mondays to Fridays, to hellers.
Castka Denni_prumer_ze_zakladniho_platu(const KartaZadani& karta, int mesic, int rok);
/// Crowns an hour: the same over 174 hours.
Castka denni_prumer_ze_zakladniho_platu_174(const KartaZadani& karta);
/// Hours that go with days: a fifth of the weekly working time each, as text.
std::string hodiny_ze_dnu(const std::string& dny, const KartaZadani& karta);

/// Contents of a row besides what is copied from the card; what is absent stays empty.
struct VetaHrube {
    int modul = 0, sloupec = 0;
    std::string sloupec_slovy;
    std::optional<Castka> dny_od, dny_neod, hod_od, hod_neod, hod_vedl;
    std::string datum;  ///< dd.mm.
    std::optional<int> stredisko, vykon, stroj;
    std::array<std::optional<Castka>, k_hodnot> kc;
    Castka kc_cel = 0;
    std::string text;
};
/// Only inputs that the column asks for get into the row; `celkem` is the total last computed.
VetaHrube veta_bezneho_tiskopisu(const SloupecHrube& sloupec, const ZadaniPolozky& zadani,
                                 Castka celkem);

/// Puts the contents into the row being edited; what is absent is emptied.
void napln_vetu_hrubych_mezd(store::Table& hrube, const VetaHrube& veta);

/// Appends rows to the month's table.
class ZapisovacHrubych {
  public:
    ZapisovacHrubych(shell::Session& session, int mesic);
    /// Returns the row's `Pocitadlo`. Needs a Transaction.
    std::int64_t zapis(const KartaZadani& karta, const VetaHrube& veta);

  private:
    int mesic_;
    store::Table hrube_;
};

/// Appends one row and returns its `Pocitadlo`. Needs a Transaction.
std::int64_t zapis_vetu_hrubych_mezd(shell::Session& session, int mesic, const KartaZadani& karta,
                                     const VetaHrube& veta);

}  // namespace wages
