// The bank connection of a fixed item: where its payment goes.
#pragma once

#include <string>
#include <string_view>

#include "store/value.h"

namespace workers {

/// Fields as typed. The symbols may hold placeholders for the bank order: "IČO", "dd", "mm", "rr",
/// "rrrr", "MM".
struct BankovniSpojeni {
    std::string Ucet, Kod_banky, Variabilni, Konstantni, Specificky;
    bool operator==(const BankovniSpojeni&) const = default;
};

/// Longest texts that the fields take, in characters.
inline constexpr int k_delka_uctu = 20, k_delka_kodu_banky = 4, k_delka_symbolu = 10,
                     k_delka_konstantniho = 4;

/// True for an account beginning with "NE" in any case: its item is left out of bank orders.
bool ucet_mimo_prikaz(std::string_view ucet);

/// The rule for the bank fields: all blank, or an account "NE" alone, or an account with bank code,
/// variable and constant symbol; the specific one is free then.
bool Kombinace_uctu_dobra(const BankovniSpojeni& spojeni);

/// True when a Czech account, "prefix-number" or a number alone, satisfies the weighted sum modulo
/// 11 in both parts and its length: at most 6 digits before the dash, 2 to 10 digits of the number,
/// of which at least two differ from 0 (vyhláška č. 169/2011 Sb.).
bool ucet_modulo_11(std::string_view ucet);

/// A stored code with its leading zeros, as "0800"; an empty or zero field is blank.
std::string kod_s_nulami(const store::Value& kod);

/// The connection as one line, "19-2000145399/0800  VS 123  KS 0558  SS 7"; "" when there is none.
std::string spojeni_slovy(const BankovniSpojeni& spojeni);

}  // namespace workers
