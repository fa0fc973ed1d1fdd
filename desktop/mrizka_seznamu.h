// The grid of a list of rows: chosen fields under captions, the cursor, and what Enter and a double
// click do.
#pragma once

#include <QTableView>
#include <string>
#include <vector>

#include "desktop/vazba.h"
#include "workers/ciselnik_seznam.h"

namespace desktop {

struct SloupecMrizky {
    std::string pole;    ///< column of the screen's rows
    std::string nadpis;  ///< as the operator reads it
};

class MrizkaSeznamu final : public QTableView {
  public:
    /// Named "mrizka". The binding repaints it; `pri_volbe` is called by Enter and a double click.
    MrizkaSeznamu(Vazba& vazba, workers::SeznamVet& form, std::vector<SloupecMrizky> sloupce,
                  const QString& pristupny_nazev, Vazba::Metoda pri_volbe);

    /// The column that takes the room left over; without one the last does.
    void roztahni(int sloupec) { roztazeny_ = sloupec; }
    /// Other columns from the next repainting on.
    void nastav_sloupce(std::vector<SloupecMrizky> sloupce) { sloupce_ = std::move(sloupce); }

  protected:
    void keyPressEvent(QKeyEvent* klavesa) override;

  private:
    std::vector<SloupecMrizky> sloupce_;
    store::Rows ukazane_;
    int roztazeny_ = -1;
    Vazba::Metoda pri_volbe_;

    void roztahni_sloupec();
};

}  // namespace desktop
