// Company folders under the data root: finding, listing, the names of neighbouring years.
#include <algorithm>
#include <system_error>

#include "base/text.h"
#include "shell/session.h"

namespace shell {

namespace {

bool je_cislice(char c) {
    return c >= '0' && c <= '9';
}

/// More than two characters, the last two of them digits of the year.
bool je_jmeno_firmy(std::string_view nazev) {
    return base::pocet_znaku(nazev) > 2 && je_cislice(nazev[nazev.size() - 1]) &&
           je_cislice(nazev[nazev.size() - 2]);
}

bool ma_setup(const std::filesystem::path& slozka) {
    try {
        return tabulka_existuje(slozka / "Ucet", "Setup") ||
               tabulka_existuje(slozka / "Firma", "Setup");
    } catch (const store::StoreError&) {
        // A damaged company must not vanish from the list: opening it says what is wrong.
        return true;
    }
}

std::string s_jinym_rokem(std::string_view nazev, int posun) {
    if (nazev.size() < 2) return std::string(nazev);
    const std::string_view kmen = nazev.substr(0, nazev.size() - 2);
    const int rok = base::je_cele_cislo(nazev.substr(nazev.size() - 2)) + posun;
    return std::string(kmen) + base::cislo_s_nulami(rok, 2);
}

std::vector<std::filesystem::path> podslozky(const std::filesystem::path& koren) {
    std::vector<std::filesystem::path> nalezene;
    std::error_code chyba;
    const auto volby = std::filesystem::directory_options::skip_permission_denied;
    for (auto it = std::filesystem::directory_iterator(koren, volby, chyba);
         !chyba && it != std::filesystem::directory_iterator(); it.increment(chyba)) {
        std::error_code necitelna;
        if (it->is_directory(necitelna)) nalezene.push_back(it->path());
    }
    return nalezene;
}

}  // namespace

std::filesystem::path slozka_firmy(const std::filesystem::path& koren_dat, std::string_view nazev) {
    std::filesystem::path presna = koren_dat / nazev;
    if (std::filesystem::is_directory(presna)) return presna;
    for (const auto& slozka : podslozky(koren_dat)) {
        if (base::stejne_bez_velikosti(slozka.filename().string(), nazev)) return slozka;
    }
    return presna;
}

bool tabulka_existuje(const std::filesystem::path& slozka, std::string_view tabulka) {
    if (!std::filesystem::exists(slozka / store::Connection::file_name())) return false;
    return store::Connection(slozka, store::Access::read_only).table_exists(tabulka);
}

std::vector<std::string> seznam_firem(const std::filesystem::path& koren_dat,
                                      const std::function<void()>& po_slozce) {
    std::vector<std::string> firmy;
    for (const auto& slozka : podslozky(koren_dat)) {
        const std::string nazev = slozka.filename().string();
        if (base::je_utf8(nazev) && je_jmeno_firmy(nazev) && ma_setup(slozka)) {
            firmy.push_back(base::velkymi(nazev));
        }
        if (po_slozce) po_slozce();
    }
    std::sort(firmy.begin(), firmy.end(), [](const std::string& a, const std::string& b) {
        return base::porovnej_cesky(a, b) < 0;
    });
    return firmy;
}

std::string firma_minuly_rok(std::string_view nazev) {
    return s_jinym_rokem(nazev, -1);
}
std::string firma_pristi_rok(std::string_view nazev) {
    return s_jinym_rokem(nazev, 1);
}

}  // namespace shell
