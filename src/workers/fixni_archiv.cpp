#include "workers/fixni_archiv.h"

#include "base/ini.h"
#include "base/text.h"

namespace workers {

namespace {

constexpr const char* k_soubor = "Fixni_archiv.ini";
constexpr const char* k_sekce = "Spojeni";
constexpr const char* k_predpona = "Radek";

/// Columns of a line, from left to right.
struct SloupecArchivu {
    std::string BankovniSpojeni::*clen;
    std::size_t sirka;
};
constexpr SloupecArchivu k_sloupce[] = {
    {&BankovniSpojeni::Ucet, 22},       {&BankovniSpojeni::Kod_banky, 6},
    {&BankovniSpojeni::Variabilni, 12}, {&BankovniSpojeni::Konstantni, 6},
    {&BankovniSpojeni::Specificky, 12},
};

}  // namespace

std::string radek_archivu(const BankovniSpojeni& spojeni) {
    std::string radek;
    for (const SloupecArchivu& s : k_sloupce)
        radek += base::na_sirku(base::orez(spojeni.*s.clen), s.sirka);
    return radek;
}

BankovniSpojeni spojeni_z_archivu(std::string_view radek) {
    BankovniSpojeni spojeni;
    std::size_t od = 1;
    for (const SloupecArchivu& s : k_sloupce) {
        spojeni.*s.clen = base::orez(base::znaky(radek, od, s.sirka));
        od += s.sirka;
    }
    return spojeni;
}

std::vector<std::string> nacti_archiv_spojeni(const shell::Session& session) {
    for (const auto& slozka : {session.cesta_dat, session.cesta_minuly_rok}) {
        if (!std::filesystem::exists(slozka / k_soubor)) continue;
        std::vector<std::string> radky = base::cti_seznam_z_ini(slozka / k_soubor, k_sekce);
        // The file does not keep blanks at the end of a line.
        for (std::string& radek : radky)
            radek = radek_archivu(spojeni_z_archivu(radek));
        return radky;
    }
    return {};
}

void uloz_archiv_spojeni(const shell::Session& session, const std::vector<std::string>& radky) {
    base::zapis_seznam_do_ini(session.cesta_dat / k_soubor, k_sekce, k_predpona, radky);
}

}  // namespace workers
