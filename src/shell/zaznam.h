// How a binary control record is described: one table of fields, from which reading, writing,
// listing and setting by name all follow. Used by control_files.cpp alone.
//
// Numbers are little-endian. A text of n characters takes a length byte and n bytes of code page
// 1250; the bytes behind its length and the bytes between fields mean nothing and are kept as read.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace shell {

/// Where the value of one element lives in memory; its type is the element's kind in the file.
using Clen =
    std::variant<std::uint8_t*, std::int16_t*, std::int32_t*, double*, bool*, std::string*>;

/// One element of a record: a plain field, or one item of an array.
struct Prvek {
    std::string nazev;     ///< "modul2", "text_os_oh.1", "nejdou_stare.1.1"
    std::size_t posun;     ///< offset in the record
    std::size_t velikost;  ///< bytes in the record
    Clen clen;
};

/// Takes the element's value out of the record. Throws base::ChybaDat naming `soubor`, field and
/// offset for a text longer than its field and for a real that is no finite number.
void precti_prvek(const Prvek& prvek, std::span<const std::byte> zaznam, std::string_view soubor);
/// Puts the element's value into the record. Throws base::ChybaDat naming the field for a text that
/// does not fit or lies outside code page 1250.
void zapis_prvek(const Prvek& prvek, std::span<std::byte> zaznam);

/// The value as text, its kind in words, and setting from text ("" or what was expected).
std::string hodnota_prvku(const Prvek& prvek);
std::string typ_prvku(const Prvek& prvek);
std::string nastav_prvek(const Prvek& prvek, std::string_view hodnota);

/// A field of a record: an element or an array of them lying one behind another.
template <class Zaznam>
struct Pole {
    std::string_view nazev;
    std::size_t posun;
    std::size_t velikost;  ///< bytes of one element
    std::size_t pocet;     ///< elements in all
    std::size_t rozmeru;   ///< 0 for a plain field, 1 or 2 for an array
    std::size_t radek;     ///< elements in a row of a two-dimensional array
    Clen (*clen)(Zaznam&, std::size_t);

    constexpr std::size_t konec() const { return posun + pocet * velikost; }
};

namespace popis {

template <class T>
struct Tvar {
    using Hodnota = T;
    static constexpr std::size_t pocet = 1, rozmeru = 0, radek = 1;
    static T& vyber(T& clen, std::size_t) { return clen; }
};
template <class T, std::size_t N>
struct Tvar<std::array<T, N>> {
    using Hodnota = T;
    static constexpr std::size_t pocet = N, rozmeru = 1, radek = N;
    static T& vyber(std::array<T, N>& clen, std::size_t i) { return clen[i]; }
};
template <class T, std::size_t M, std::size_t N>
struct Tvar<std::array<std::array<T, M>, N>> {
    using Hodnota = T;
    static constexpr std::size_t pocet = N * M, rozmeru = 2, radek = M;
    static T& vyber(std::array<std::array<T, M>, N>& clen, std::size_t i) {
        return clen[i / M][i % M];
    }
};

template <class Ukazatel>
struct Rozklad;
template <class Z, class T>
struct Rozklad<T Z::*> {
    using Zaznam = Z;
    using Typ = T;
};

}  // namespace popis

/// Describes the field of member `Ukazatel`: kind and number of elements follow from its type, the
/// length of a text is given in `znaku`.
template <auto Ukazatel>
constexpr auto pole(std::string_view nazev, std::size_t posun, std::size_t znaku = 0) {
    using Zaznam = typename popis::Rozklad<decltype(Ukazatel)>::Zaznam;
    using Tvar = popis::Tvar<typename popis::Rozklad<decltype(Ukazatel)>::Typ>;
    using Hodnota = typename Tvar::Hodnota;
    constexpr bool je_text = std::is_same_v<Hodnota, std::string>;
    const std::size_t velikost = je_text ? znaku + 1 : sizeof(Hodnota);
    return Pole<Zaznam>{
        nazev,
        posun,
        velikost,
        Tvar::pocet,
        Tvar::rozmeru,
        Tvar::radek,
        [](Zaznam& zaznam, std::size_t i) -> Clen { return &Tvar::vyber(zaznam.*Ukazatel, i); }};
}

/// Where the last field ends; no size at all when a field begins before the previous one ends.
template <class Zaznam, std::size_t N>
constexpr std::size_t konec_poli(const std::array<Pole<Zaznam>, N>& tabulka) {
    std::size_t konec = 0;
    for (const Pole<Zaznam>& p : tabulka) {
        if (p.posun < konec) return static_cast<std::size_t>(-1);
        konec = p.konec();
    }
    return konec;
}

/// Calls `akce` with every element of the record, in order of offset.
template <class Zaznam, std::size_t N, class Akce>
void kazdy_prvek(const std::array<Pole<Zaznam>, N>& tabulka, Zaznam& zaznam, Akce akce) {
    for (const Pole<Zaznam>& p : tabulka) {
        for (std::size_t i = 0; i < p.pocet; ++i) {
            std::string nazev(p.nazev);
            if (p.rozmeru == 2) nazev += "." + std::to_string(i / p.radek + 1);
            if (p.rozmeru >= 1) nazev += "." + std::to_string(i % p.radek + 1);
            akce(Prvek{std::move(nazev), p.posun + i * p.velikost, p.velikost, p.clen(zaznam, i)});
        }
    }
}

}  // namespace shell
