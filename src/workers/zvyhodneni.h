// Statutory monthly tax benefit for a child.
#pragma once

namespace workers {

/// Crowns a month for a child of the given order (1 first, 2 second, 3 and more) by the law in
/// force in that month (§ 35c zák. č. 586/1992 Sb.); 0 outside the years 2000 to 2022.
int mesicni_zvyhodneni_na_dite(int poradi, int mesic, int rok);

}  // namespace workers
