// What a change of the month's gross items means for its pay sheet.
#pragma once

#include "shell/session.h"

namespace menu {

/// Deletes the month's pay sheet when there is one; needs a Transaction. True when it was deleted:
/// the operator is then to be told by `ohlas_smazanou_listinu` after the commit.
bool smaz_listinu_zmeneneho_mesice(shell::Session& session, int mesic);
void ohlas_smazanou_listinu(shell::Session& session, int mesic);

}  // namespace menu
