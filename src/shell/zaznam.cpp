#include "shell/zaznam.h"

#include <bit>
#include <cmath>
#include <fmt/format.h>
#include <limits>

#include "base/chyba.h"
#include "base/kodova_stranka.h"
#include "base/text.h"
#include "shell/hodnota_text.h"

namespace shell {

namespace {

static_assert(sizeof(double) == 8 && std::numeric_limits<double>::is_iec559,
              "a real of a control record is an 8-byte IEEE double");

template <class... F>
struct Podle : F... {
    using F::operator()...;
};
template <class... F>
Podle(F...) -> Podle<F...>;

std::uint64_t cti_le(std::span<const std::byte> bajty) {
    std::uint64_t cislo = 0;
    for (std::size_t i = bajty.size(); i > 0; --i) {
        cislo = cislo << 8U | std::to_integer<std::uint64_t>(bajty[i - 1]);
    }
    return cislo;
}

void zapis_le(std::span<std::byte> bajty, std::uint64_t cislo) {
    for (std::byte& b : bajty) {
        b = static_cast<std::byte>(cislo & 0xFFU);
        cislo >>= 8U;
    }
}

/// The text of a field; the length byte must not exceed the field.
std::string cti_text(std::span<const std::byte> bajty) {
    std::string text;
    for (std::byte b : bajty.subspan(1, std::to_integer<std::size_t>(bajty[0]))) {
        text.push_back(static_cast<char>(b));
    }
    return base::z_1250(text);
}

bool delka_se_vejde(std::span<const std::byte> bajty) {
    return std::to_integer<std::size_t>(bajty[0]) < bajty.size();
}

void zapis_text(const Prvek& prvek, std::span<std::byte> bajty, const std::string& text) {
    // A byte without a character in the code page cannot be made from text again: an unchanged text
    // stays as it was read.
    if (delka_se_vejde(bajty) && cti_text(bajty) == text) return;
    const auto kodovano = base::do_1250(text);
    if (!kodovano) {
        throw base::ChybaDat(fmt::format(
            "Pole {}: text \"{}\" obsahuje znak mimo kódovou stránku 1250.", prvek.nazev, text));
    }
    if (kodovano->size() >= bajty.size()) {
        throw base::ChybaDat(fmt::format("Pole {}: text \"{}\" má {} znaků, nejvýše smí mít {}.",
                                         prvek.nazev, text, kodovano->size(), bajty.size() - 1));
    }
    bajty[0] = static_cast<std::byte>(kodovano->size());
    for (std::size_t i = 0; i < kodovano->size(); ++i) {
        bajty[i + 1] = static_cast<std::byte>((*kodovano)[i]);
    }
}

template <class Cislo>
std::string nastav_cele(Cislo& clen, std::string_view hodnota) {
    constexpr long long nejmene = std::numeric_limits<Cislo>::min();
    constexpr long long nejvyse = std::numeric_limits<Cislo>::max();
    const auto cislo = presne_cele(hodnota, nejmene, nejvyse);
    if (!cislo) return fmt::format("celé číslo {} až {}", nejmene, nejvyse);
    clen = static_cast<Cislo>(*cislo);
    return "";
}

std::string nastav_text(std::string& clen, std::size_t znaku, std::string_view hodnota) {
    const auto kodovano = base::do_1250(hodnota);
    if (!kodovano || kodovano->size() > znaku) {
        return fmt::format("nejvýše {} znaků kódové stránky 1250", znaku);
    }
    clen = hodnota;
    return "";
}

}  // namespace

void precti_prvek(const Prvek& prvek, std::span<const std::byte> zaznam, std::string_view soubor) {
    const auto bajty = zaznam.subspan(prvek.posun, prvek.velikost);
    std::visit(
        Podle{[&](std::string* text) {
                  if (!delka_se_vejde(bajty)) {
                      throw base::ChybaDat(
                          fmt::format("Soubor \"{}\": pole {} na pozici {} udává délku textu {}, "
                                      "nejvýše smí mít {}.",
                                      soubor, prvek.nazev, prvek.posun,
                                      std::to_integer<int>(bajty[0]), prvek.velikost - 1));
                  }
                  *text = cti_text(bajty);
              },
              [&](double* cislo) {
                  *cislo = std::bit_cast<double>(cti_le(bajty));
                  if (!std::isfinite(*cislo)) {
                      throw base::ChybaDat(
                          fmt::format("Soubor \"{}\": pole {} na pozici {} není číslo.", soubor,
                                      prvek.nazev, prvek.posun));
                  }
              },
              [&](bool* logicke) { *logicke = bajty[0] != std::byte{0}; },
              [&]<class Cislo>(Cislo* cislo) { *cislo = static_cast<Cislo>(cti_le(bajty)); }},
        prvek.clen);
}

void zapis_prvek(const Prvek& prvek, std::span<std::byte> zaznam) {
    const auto bajty = zaznam.subspan(prvek.posun, prvek.velikost);
    std::visit(
        Podle{[&](const std::string* text) { zapis_text(prvek, bajty, *text); },
              [&](const double* cislo) { zapis_le(bajty, std::bit_cast<std::uint64_t>(*cislo)); },
              [&](const bool* logicke) { bajty[0] = static_cast<std::byte>(*logicke ? 1 : 0); },
              [&]<class Cislo>(const Cislo* cislo) {
                  zapis_le(bajty, static_cast<std::uint64_t>(*cislo));
              }},
        prvek.clen);
}

std::string hodnota_prvku(const Prvek& prvek) {
    return std::visit(
        Podle{[](const std::string* text) { return *text; },
              [](const double* cislo) { return cislo_textem(*cislo); },
              [](const bool* logicke) { return std::string(*logicke ? "ano" : "ne"); },
              []<class Cislo>(const Cislo* cislo) { return std::to_string(*cislo); }},
        prvek.clen);
}

std::string typ_prvku(const Prvek& prvek) {
    return std::visit(
        Podle{[&](std::string*) { return fmt::format("text {}", prvek.velikost - 1); },
              [](std::uint8_t*) { return std::string("celé 0-255"); },
              [](std::int16_t*) { return std::string("celé 16 bitů"); },
              [](std::int32_t*) { return std::string("celé 32 bitů"); },
              [](double*) { return std::string("číslo"); },
              [](bool*) { return std::string("ano/ne"); }},
        prvek.clen);
}

std::string nastav_prvek(const Prvek& prvek, std::string_view hodnota) {
    const std::string ocekavano = std::visit(
        Podle{[&](std::string* text) { return nastav_text(*text, prvek.velikost - 1, hodnota); },
              [&](double* cislo) -> std::string {
                  const auto nove = presne_desetinne(hodnota);
                  if (!nove || !std::isfinite(static_cast<double>(*nove))) return "číslo";
                  *cislo = static_cast<double>(*nove);
                  return "";
              },
              [&](bool* logicke) -> std::string {
                  const auto nove = presne_logicke(hodnota);
                  if (!nove) return "ano nebo ne";
                  *logicke = *nove;
                  return "";
              },
              [&]<class Cislo>(Cislo* cislo) { return nastav_cele(*cislo, hodnota); }},
        prvek.clen);
    if (ocekavano.empty()) return "";
    return fmt::format("Pole {}: očekává se {}, zadáno \"{}\".", prvek.nazev, ocekavano, hodnota);
}

}  // namespace shell
