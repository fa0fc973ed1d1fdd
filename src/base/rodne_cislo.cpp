#include "base/rodne_cislo.h"

#include "base/text.h"

namespace base {

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

}  // namespace base
