// The view of an explanation: how an amount came to be, as a tree that opens branch by branch.
#pragma once

#include <QTreeWidget>
#include <functional>

#include "base/strom_vypoctu.h"

namespace desktop {

class StromVypoctuPohled final : public QTreeWidget {
  public:
    /// `rozbal` makes the branches of a node that has none yet.
    StromVypoctuPohled(const base::StromVypoctu& strom, std::function<void(int uzel)> rozbal);

    /// Shows the tree anew, its first two levels open.
    void ukaz();

  private:
    void pridej(QTreeWidgetItem& rodic, int uzel);
    void pridej_vetve(QTreeWidgetItem& polozka);

    const base::StromVypoctu& strom_;
    std::function<void(int uzel)> rozbal_;
};

/// The colour that marks a kind of node, and what the legend calls it.
struct PopisUzlu {
    base::DruhUzlu druh;
    const char* slovy;
    const char* barva;
};
const std::vector<PopisUzlu>& popisy_uzlu();
/// A dot of that colour.
QPixmap znacka_uzlu(base::DruhUzlu druh, int velikost);

}  // namespace desktop
