// Health insurers (and by their numbers pension funds) of the company, from `Zdr_poj`.
#pragma once

#include <string>
#include <vector>

#include "shell/session.h"

namespace workers {

/// Entries of two digits of `Cislo` followed by `Nazev`, in the order of `By_Tr1`.
std::vector<std::string> Nacti_pojistovny(shell::Session& session);

/// Name of the insurer by its number, "neznámá pojišťovna" when it is not on the list.
std::string Jmeno_pojistovny(const std::vector<std::string>& pojistovny, int cislo);

}  // namespace workers
