// The page "Nemoc 2008" of gross-wage entry: benefits that the employer paid before 2009. No column
// leads to it any more; it opens for the amount that "Zapsat a nemazat" asks for on module 4.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "shell/session.h"
#include "wages/nemoc_2008.h"
#include "wages/zapis_hrubych.h"

namespace wages {

/// The average of the first day's month, as it is offered: text and where it comes from.
struct DohledanyPrumer {
    std::string prumer;    ///< "" when there is none
    std::string poznamka;  ///< "(3/2022)", "nepropl." or "???"
};

/// Labels of the day bands; care has the first one only.
std::array<const char*, 4> popisky_pasem(DruhDavky druh);

class StrankaNemoci {
  public:
    explicit StrankaNemoci(shell::Session& session);

    // Inputs as typed; days as ddmm.
    std::string scDoklad, scPrumer, scOd, scDo;
    DruhDavky druh = DruhDavky::nemoc;
    bool jen_mesic = false;  ///< "Proplatit": only days of the month, or "celou dobu"
    std::string scDnyKalendarni, scDnyPracovni, scKVyplate;
    std::string lbPrumer;  ///< note beside the average

    /// A line of the result panel: the band's label, days, crowns a day, crowns; 0 as dots.
    struct Pasmo {
        std::string popisek, dnu, kc_denne, kc;
    };
    std::array<Pasmo, 4> pasma;
    bool vysledky_viditelne = false;
    bool castky_povolene = true;  ///< off when the organisation pays no benefits
    std::string fokus;

    /// Maternity aid has its days typed, not counted from a period.
    bool dny_se_zadavaji() const { return druh == DruhDavky::ppm; }

    void vymaz();
    void scOdExit(const KartaZadani& karta);
    /// The messages; without any, days and amounts are computed (not for maternity aid, whose days
    /// and amount are typed).
    std::vector<std::string> Udelej_kontrolu_soc_davek(const KartaZadani& karta);
    DohledanyPrumer Dohledany_prumer(const KartaZadani& karta) const;
    /// The row of module 4 as it would be written now.
    VetaHrube veta(const SloupecHrube& sloupec, const KartaZadani& karta) const;

  private:
    shell::Session& session_;
    Davka davka_;

    void Proved_vypocet_nemocenskych_davek(const KartaZadani& karta);
};

/// Calendar days of the worker's benefits in all months of the year that have gross wages.
int kalendarni_dny_nemoci_2008(shell::Session& session, int cislo);
/// Calendar days of the worker's compensations of the year.
int kalendarni_dny_nemoci(shell::Session& session, int cislo);

}  // namespace wages
