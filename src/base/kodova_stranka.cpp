#include "base/kodova_stranka.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <unicode/utf8.h>

#include "base/utf8.h"

namespace base {
namespace {

constexpr char16_t k_neznamy = 0xFFFD;

/// Characters of the bytes 0x80 to 0xFF.
constexpr std::array<char16_t, 128> k_znaky = {
    0x20AC, 0xFFFD, 0x201A, 0xFFFD, 0x201E, 0x2026, 0x2020, 0x2021, 0xFFFD, 0x2030, 0x0160, 0x2039,
    0x015A, 0x0164, 0x017D, 0x0179, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0xFFFD, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141,
    0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB,
    0x013D, 0x02DD, 0x013E, 0x017C, 0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3,
    0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, 0x010D, 0x00E9, 0x0119, 0x00EB,
    0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

struct Dvojice {
    char16_t znak;
    unsigned char bajt;
};

/// The same by character, for binary search; bytes without a character sort to the end.
constexpr std::array<Dvojice, 128> k_podle_znaku = [] {
    std::array<Dvojice, 128> dvojice{};
    for (std::size_t i = 0; i < dvojice.size(); ++i)
        dvojice[i] = {k_znaky[i], static_cast<unsigned char>(0x80 + i)};
    std::sort(dvojice.begin(), dvojice.end(),
              [](const Dvojice& a, const Dvojice& b) { return a.znak < b.znak; });
    return dvojice;
}();

/// The byte of a character, or -1.
int bajt_znaku(std::int32_t znak) {
    if (znak < 0x80) return znak;  // also the negative mark of broken UTF-8
    const auto* const kde =
        std::lower_bound(k_podle_znaku.begin(), k_podle_znaku.end(), znak,
                         [](const Dvojice& d, std::int32_t z) { return d.znak < z; });
    if (kde == k_podle_znaku.end() || kde->znak != znak || kde->znak == k_neznamy) return -1;
    return kde->bajt;
}

void pridej_znak(std::string& text, char16_t znak) {
    char bajty[U8_MAX_LENGTH];
    int delka = 0;
    U8_APPEND_UNSAFE(bajty, delka, znak);
    text.append(bajty, static_cast<std::size_t>(delka));
}

}  // namespace

bool je_v_1250(std::string_view utf8) {
    if (je_ascii(utf8)) return true;
    for (std::size_t i = 0; i < utf8.size();)
        if (bajt_znaku(dalsi_znak(utf8, i)) < 0) return false;
    return true;
}

std::optional<std::string> do_1250(std::string_view utf8) {
    if (je_ascii(utf8)) return std::string(utf8);
    std::string bajty;
    bajty.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const int bajt = bajt_znaku(dalsi_znak(utf8, i));
        if (bajt < 0) return std::nullopt;
        bajty.push_back(static_cast<char>(bajt));
    }
    return bajty;
}

std::string z_1250(std::string_view bajty) {
    if (je_ascii(bajty)) return std::string(bajty);
    std::string text;
    text.reserve(bajty.size() + bajty.size() / 4);
    for (const char c : bajty) {
        const auto bajt = static_cast<unsigned char>(c);
        if (bajt < 0x80) {
            text.push_back(c);
        } else {
            pridej_znak(text, k_znaky[bajt - 0x80U]);
        }
    }
    return text;
}

}  // namespace base
