// The explanation of an amount as a tree of nodes, from the amount down to gross items, settings
// and the card. A step that feeds several others has its branches where it is met first; elsewhere
// it stands without them and gets them when they are asked for.
#pragma once

#include <string>
#include <vector>

#include "base/stopa.h"

namespace base {

enum class DruhUzlu {
    vypocet,    ///< result of a step of the calculation
    udaj,       ///< read from a table
    nastaveni,  ///< read from the settings
    konstanta,  ///< fixed in the calculation
    poznamka    ///< which way the calculation took; has no value
};

struct UzelVypoctu {
    DruhUzlu druh = DruhUzlu::vypocet;
    std::string nazev;     ///< what it is for the step above
    std::string pravidlo;  ///< the step's rule, where it says more than the name
    std::string hodnota;   ///< decimal comma, no trailing zeros
    std::string zdroj;     ///< "Os_karty.Staly_plat"
    std::string zaokrouhleni, predpis;
    int krok = -1;           ///< step of the trace, -1 for what was read
    bool znovu = false;      ///< the step's branches stand elsewhere in the tree
    std::vector<int> vetve;  ///< indexes of the nodes below
};

class StromVypoctu {
  public:
    StromVypoctu() = default;
    /// The tree under a step; without such a step it is empty. The trace must outlive the tree.
    StromVypoctu(const Stopa& stopa, int krok);

    /// The root is the first one.
    const std::vector<UzelVypoctu>& uzly() const { return uzly_; }
    const UzelVypoctu& uzel(int index) const { return uzly_.at(static_cast<std::size_t>(index)); }
    /// True when the node has branches, made already or not.
    bool ma_vetve(int index) const;
    /// Makes the branches of a node met again, one level of them.
    void rozbal(int index);

  private:
    void pridej_vetve(int index);

    const Stopa* stopa_ = nullptr;
    std::vector<UzelVypoctu> uzly_;
};

}  // namespace base
