// The archive of bank connections on TForm12: lines in fixed columns, from which a connection is
// copied into another item. It is kept with the company's data (file Fixni_archiv.ini), so that it
// lasts from one opening to the next; a new year begins with the archive of the last one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/session.h"
#include "workers/fixni_spojeni.h"

namespace workers {

/// Account in 22 characters, bank code 6, variable symbol 12, constant 6, specific 12.
std::string radek_archivu(const BankovniSpojeni& spojeni);
/// The connection back from such a line, whole.
BankovniSpojeni spojeni_z_archivu(std::string_view radek);

/// Throws base::ChybaDat when the file cannot be read.
std::vector<std::string> nacti_archiv_spojeni(const shell::Session& session);
void uloz_archiv_spojeni(const shell::Session& session, const std::vector<std::string>& radky);

}  // namespace workers
