// Reading of the company's fixed items: rows in a chosen order under a restriction, and their sums.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/zaokrouhleni.h"
#include "shell/session.h"
#include "store/value.h"
#include "workers/fixni_spojeni.h"

namespace workers {

enum class TrideniFixnich { sloupec_pracovnik = 0, pracovnik_sloupec = 1 };
/// Captions of the orders, by their values.
inline constexpr const char* k_trideni_fixnich[] = {"sloupec, pracovník", "pracovník, sloupec"};

/// Ranges as typed, both ends included. A blank end of a range leaves that side open.
struct OmezeniFixnich {
    std::string pracovnik_od, pracovnik_do, sloupec_od, sloupec_do;
};
/// "OMEZENÍ: pracovníci 1 až 5,   sloupce 7 až 8", or "BEZ  OMEZENÍ".
std::string jake_omezeni(const OmezeniFixnich& omezeni);

/// An item with the texts that stand beside it on screens.
struct RadekFixnich {
    std::int64_t pocitadlo = 0, cislo_pracovnika = 0;
    std::string pracovnik;  ///< surname and first name
    int sloupec = 0;
    std::string text_sloupce;
    store::Value kcs;  ///< empty in an item without crowns
    BankovniSpojeni spojeni;
};
std::vector<RadekFixnich> nacti_fixni(shell::Session& session, const OmezeniFixnich& omezeni,
                                      TrideniFixnich trideni);

struct SoucetSloupce {
    int sloupec = 0;
    std::string text_sloupce;
    std::int64_t polozek = 0;
    base::Castka kcs = 0;
};
/// Sums of crowns by column, in the order of columns.
std::vector<SoucetSloupce> soucty_fixnich(shell::Session& session, const OmezeniFixnich& omezeni);

}  // namespace workers
