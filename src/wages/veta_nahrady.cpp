#include "wages/veta_nahrady.h"

#include "base/text.h"

namespace wages {

std::string fond_do_vety(std::string_view fond) {
    return base::nejvyse(base::orez(fond), k_znaku_fondu);
}

std::string fond_z_vety(std::string_view pole) {
    std::string fond(pole);
    const auto dvojtecka = fond.find(':');
    if (dvojtecka != std::string::npos) fond.resize(dvojtecka + 3, '0');
    return fond;
}

const char* typ_nahrady_slovy(int typ) {
    switch (static_cast<TypNahrady>(typ)) {
        case TypNahrady::nemoc:
            return "nemoc";
        case TypNahrady::karantena:
            return "karanténa";
        case TypNahrady::ocr:
            return "OČR";
        case TypNahrady::ppm:
            return "PPM";
    }
    return "?";
}

}  // namespace wages
