// Arguments that several verbs share. A wrong one ends the verb as wrong usage, with a Czech text.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace cli {

/// Help of the group of verbs "firma".
inline constexpr const char* k_popis_firem = "Firmy: založení, seznam, stav roku.";

/// The node of a group of verbs ("firma"), made at the first call.
CLI::App& skupina(CLI::App& program, const std::string& nazev, const std::string& popis);

/// Positional MESIC: "1" to "12", also with a leading zero.
void pridej_mesic(CLI::App& sloveso, int& mesic);

/// A whole number from 1 to `nejvyse`; `nazev` is "CISLO" or "--pracovnik". Returns the option.
CLI::Option* pridej_cislo(CLI::App& sloveso, const std::string& nazev, int& cil, int nejvyse,
                          const std::string& popis);

/// Option --format: one of the given forms; `format` keeps its value when the option is left out.
void pridej_format(CLI::App& sloveso, std::string& format, const std::vector<std::string>& tvary,
                   const std::string& popis);

/// Largest number of a worker.
inline constexpr int k_nejvyssi_cislo_pracovnika = 999999;

}  // namespace cli
