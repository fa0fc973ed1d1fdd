#include "wages/hromadne_obrazovka.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/cekani.h"
#include "base/chyba.h"
#include "base/datum.h"
#include "base/soubory.h"
#include "store/table.h"

namespace wages {
namespace {

/// Longest file that is read, in bytes.
constexpr std::size_t k_nejdelsi_soubor = std::size_t{1} << 27;

}  // namespace

TFHromadneZadani::TFHromadneZadani(shell::Session& session) : session_(session) {}

void TFHromadneZadani::FormShow() {
    nadpis =
        "Hrubé mzdy ze souboru - " + base::mesic_slovy(session_.zpracovavany_mesic, session_.rok);
    fokus = "acVybrat";
}

void TFHromadneZadani::acVybratExecute() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    const auto cesta = session_.obsluha().vyber_soubor("Položky hrubých mezd",
                                                       session_.cesta_dat.string(), "*.csv");
    if (cesta) nacti(*cesta);
}

void TFHromadneZadani::nacti(const std::string& cesta) {
    soubor = std::filesystem::path(cesta).filename().string();
    try {
        davka = precti_hromadne(session_, session_.zpracovavany_mesic,
                                base::precti_soubor(cesta, k_nejdelsi_soubor), soubor);
    } catch (const store::StoreError&) {
        throw;
    } catch (const base::ChybaDat& chyba) {
        davka = {};
        davka.chyby.emplace_back(chyba.what());
    }
    zapsat_povoleno = davka.chyby.empty() && !davka.radky.empty();
    lbSouhrn = fmt::format("Položek: {}, chyb: {}, celkem {} Kč", davka.radky.size(),
                           davka.chyby.size(), base::castka_s_oddelovaci(davka.celkem));
    fokus = zapsat_povoleno ? "acZapsat" : "acVybrat";
    ++vydani;
    oznam_zmenu();
}

void TFHromadneZadani::acZapsatExecute() {
    if (!zapsat_povoleno || ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    store::Transaction transakce(session_.data());
    zapis_hromadne(session_, session_.zpracovavany_mesic, davka);
    transakce.commit();
    zmeneno = true;
    zapsat_povoleno = false;
    session_.obsluha().hlaska(fmt::format("Zapsáno položek: {}.", davka.radky.size()));
    zavreno = true;
    oznam_zmenu();
}

void TFHromadneZadani::acZpetExecute() {
    if (ceka_na_obsluhu_) return;
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
