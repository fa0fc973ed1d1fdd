#include "workers/vykony.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/text.h"
#include "store/query.h"

namespace workers {
namespace {

constexpr int k_sirka_vykonu = 3, k_sirka_strediska = 2, k_stredisek = 10;
constexpr std::int64_t k_nezadano = -1;
constexpr std::string_view k_tecky = "..";
/// Where the range begins in a text of the list.
constexpr std::size_t k_od = k_sirka_vykonu + k_stredisek * k_sirka_strediska;

std::string stredisko_textem(std::int64_t stredisko) {
    return stredisko == k_nezadano ? std::string(k_tecky)
                                   : base::cislo_s_nulami(stredisko, k_sirka_strediska);
}

/// The n-th pair of characters from a place on.
std::string dvojice(std::string_view vykon, std::size_t od, std::size_t n) {
    return base::znaky(vykon, od + n * k_sirka_strediska + 1, k_sirka_strediska);
}

}  // namespace

std::vector<std::string> Nacti_vykony(shell::Session& session) {
    store::Query dotaz(session.ucet(),
                       "SELECT Vykon, St1, St2, St3, St4, St5, St6, St7, St8, St9, St10, Stod, Stdo"
                       " FROM vykony ORDER BY Vykon, Pocitadlo");
    std::vector<std::string> vykony;
    for (dotaz.open(); !dotaz.eof(); dotaz.next()) {
        std::string vykon = base::cislo_s_nulami(dotaz.integer(0), k_sirka_vykonu);
        for (int i = 1; i < dotaz.column_count(); ++i)
            vykon += stredisko_textem(dotaz.integer(i));
        vykony.push_back(std::move(vykon));
    }
    return vykony;
}

bool vykon_souhlasi(const std::vector<std::string>& vykony, std::string_view text, int& index) {
    const std::string hledany = base::cislo_s_nulami(base::je_cele_cislo(text), k_sirka_vykonu);
    const auto kde = std::find_if(vykony.begin(), vykony.end(), [&](const std::string& vykon) {
        return vykon.starts_with(hledany) && hledany.size() == k_sirka_vykonu;
    });
    if (kde == vykony.end()) return false;
    index = static_cast<int>(kde - vykony.begin());
    return true;
}

bool stredisko_souhlasi(std::string_view stredisko, std::string_view povoleny_vykon) {
    const std::string hledane =
        base::cislo_s_nulami(base::je_cele_cislo(stredisko), k_sirka_strediska);
    for (std::size_t i = 0; i < k_stredisek; ++i) {
        if (dvojice(povoleny_vykon, k_sirka_vykonu, i) == hledane) return true;
    }
    const std::string od = dvojice(povoleny_vykon, k_od, 0), do_ = dvojice(povoleny_vykon, k_od, 1);
    if (od == k_tecky && do_ == k_tecky) return false;
    const int cislo = base::je_cele_cislo(hledane);
    // A bound that is not set reads as 0, as everywhere where a number is missing.
    return cislo >= base::je_cele_cislo(od) && cislo <= base::je_cele_cislo(do_);
}

}  // namespace workers
