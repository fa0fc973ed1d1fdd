// Removal of a worker from the register: what forbids it, what is lost with him.
#pragma once

#include <cstdint>
#include <string>

#include "shell/session.h"

namespace workers {

/// True when a month of the year has gross wages or a pay sheet of the worker; `text` then holds a
/// line for each, joined by line breaks.
bool byl_pracovnik_ve_vyplatach(shell::Session& session, std::int64_t cislo, std::string& text);

/// True when the worker has children or fixed items; `text` then says which.
bool je_pracovnik_ve_fixnich(shell::Session& session, std::int64_t cislo, std::string& text);

/// Deletes the worker's children and fixed items. Needs a Transaction.
void Vymaz_udaje_o_pracovnikovi(shell::Session& session, std::int64_t cislo);

}  // namespace workers
