#include "wages/unit43_vykony.h"

#include "base/text.h"
#include "workers/vykony.h"

namespace wages {
namespace {

constexpr std::size_t k_stredisek = 10;
constexpr std::size_t k_cislic_vykonu = 3, k_cislic_strediska = 2;
constexpr const char* k_neni = "..";

}  // namespace

RadekVykonu radek_vykonu(std::string_view povoleny_vykon) {
    const auto stredisko = [&](std::size_t i) {
        return std::string(
            povoleny_vykon.substr(k_cislic_vykonu + i * k_cislic_strediska, k_cislic_strediska));
    };
    RadekVykonu radek{std::string(povoleny_vykon.substr(0, k_cislic_vykonu)), ""};
    const auto pridej = [&radek](const std::string& text) {
        radek.strediska += (radek.strediska.empty() ? "" : ", ") + text;
    };
    for (std::size_t i = 0; i < k_stredisek; ++i)
        if (stredisko(i) != k_neni) pridej(stredisko(i));
    const std::string od = stredisko(k_stredisek), do_ = stredisko(k_stredisek + 1);
    if (od != k_neni || do_ != k_neni) pridej(od + " až " + do_);
    if (radek.strediska.empty()) radek.strediska = "žádné";
    return radek;
}

TForm43::TForm43(const shell::Session& session, const std::vector<std::string>& vykony)
    : nadpis("Výkony - " + session.firma) {
    for (const std::string& vykon : vykony)
        radky.push_back(radek_vykonu(vykon));
}

void TForm43::FormShow(std::string_view vykon) {
    std::vector<std::string> cisla;
    for (const RadekVykonu& r : radky)
        cisla.push_back(r.vykon);
    int kde = 0;
    workers::vykon_souhlasi(cisla, vykon, kde);
    fokus = "mrizka";
    vyber_radek(kde);
}

void TForm43::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(radky.size()) ? novy : -1;
    oznam_zmenu();
}

void TForm43::acVybratExecute() {
    if (!je_radek()) return;
    zvoleny = radky[static_cast<std::size_t>(radek)].vykon;
    acZpetExecute();
}

void TForm43::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
