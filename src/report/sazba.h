// Setting of bands into pages: headings and feet on every page, blocks that are not torn apart.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "report/document.h"

namespace report {

/// What a heading or foot of a page may depend on. Its height must not.
struct MistoStrany {
    int strana = 1;              ///< from 1
    int stran = 1;               ///< known only when the whole report is set
    std::size_t prvni_veta = 0;  ///< the row that the page begins with
};
using PasyStrany = std::function<std::vector<Pas>(const MistoStrany&)>;

class Sazba {
  public:
    /// `titul` stands above the heading of the first page.
    Sazba(Document zaklad, std::vector<Pas> titul, PasyStrany zahlavi, PasyStrany pata);

    /// Bands that stay on one page together; what is higher than a page is divided between bands.
    /// `veta` is the row that they belong to.
    void pridej(std::vector<Pas> blok, std::size_t veta);
    /// What follows begins a new page.
    void nova_strana();
    /// Sets headings and feet and gives the document away.
    Document dokonci();

  private:
    void zacni_stranu(std::size_t veta);
    /// Room for bands on a page, without its heading and foot.
    double vyska_obsahu() const;

    Document document_;
    std::vector<Pas> titul_;
    PasyStrany zahlavi_, pata_;
    double vyska_zahlavi_, vyska_paty_;
    double y_ = 0;
    bool zalomit_ = true;
    std::vector<std::size_t> prvni_vety_;  ///< for each page
};

}  // namespace report
