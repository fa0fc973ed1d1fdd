#include "base/rodne_cislo.h"

#include "base/text.h"

namespace base {

namespace {

/// Cards of ten digits were first issued to those born in this year.
constexpr int k_prvni_desetimistny_rok = 1954;
constexpr int k_prvni_rok_rozsireni = 2004;

/// 1 to 12 from the month's digits of a birth number; 0 when they are no month of that year.
int mesic_z_cislic(int cislice, int rok) {
    int mesic = cislice > 50 ? cislice - 50 : cislice;
    if (mesic > 20 && rok >= k_prvni_rok_rozsireni) mesic -= 20;
    return mesic <= 12 ? mesic : 0;
}

}  // namespace

std::string rc_bez_lomitka(std::string_view text) {
    std::string rc(text);
    std::erase_if(rc, [](char c) { return c == '-' || c == '/'; });
    return rc;
}

std::string pohlavi_z_rc(std::string_view text) {
    const std::string okno = znaky(std::string(text) + mezery(5), 4, 2);
    const bool mozny_mesic = std::string_view("0156").find(okno[0]) != std::string_view::npos;
    if (!mozny_mesic || jen_cislice(okno) != okno) return "0";
    const int mesic = je_cele_cislo(okno);
    if (mesic >= 1 && mesic <= 12) return "M";
    if (mesic >= 51 && mesic <= 62) return "Ž";
    return "0";
}

std::string datum_z_rc(std::string_view text) {
    if (!neprazdny(text)) return "";
    const std::string den = znaky(text, 1, 2);
    const std::string mesic = znaky(text, 3, 2);
    const std::string rok = znaky(text, 5, 2);
    return (je_cele_cislo(rok) < 31 ? "20" : "19") + rok + "-" + mesic + "-" + den;
}

bool rodne_cislo_ok(std::string_view text) {
    constexpr std::string_view k_vzor = "NN-NN-NN/NNNN";
    if (text.size() != k_vzor.size() && text.size() + 1 != k_vzor.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool cislice = text[i] >= '0' && text[i] <= '9';
        if (k_vzor[i] == 'N' ? !cislice : text[i] != k_vzor[i]) return false;
    }
    return true;
}

Datum rc2datum(std::string_view text) {
    const std::string rc = rc_bez_lomitka(orez(text));
    if (jen_cislice(rc) != rc || (rc.size() != 9 && rc.size() != 10)) return {};
    const auto dvojice = [&rc](std::size_t od) { return je_cele_cislo(rc.substr(od, 2)); };
    int rok = 1900 + dvojice(0);
    if (rc.size() == 10 && rok < k_prvni_desetimistny_rok) rok += 100;
    const Datum datum{rok, mesic_z_cislic(dvojice(2), rok), dvojice(4)};
    return je_platne(datum) ? datum : Datum{};
}

}  // namespace base
