// The trace: how an amount came to be. Each step of a calculation tells its rule, its inputs and
// where they come from, the rounding, the law, and the result. Inputs that are results of earlier
// steps refer to them, so that the steps form a tree from a payable amount down to gross items.
//
// Calculation functions take a `Stopa*`; a null pointer means that nobody listens and costs
// nothing:
//
//     if (stopa)
//         stopa->krok("sociální pojištění")
//             .z("základ", "socialni_zaklad", zaklad)
//             .nastaveni("sazba %", sazba, "rid_zorv.idx proc_soc_pracovnik")
//             .zaokrouhleni(na_koruny_nahoru)
//             .predpis("§ 7 zák. č. 589/1992 Sb.")
//             .vysledek("socialni_kc", castka);
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/zaokrouhleni.h"

namespace base {

/// One input of a step. `krok` is the index of the step it comes from, or -1; `zdroj` then names
/// the table field, the setting or the law it was read from.
struct StopaVstup {
    std::string nazev;
    std::string hodnota;
    std::string zdroj;
    int krok = -1;
};

struct StopaKrok {
    std::string pravidlo;
    std::vector<StopaVstup> vstupy;
    std::string zaokrouhleni;
    std::string predpis;
    std::string vysledek;
    bool dosazeno = false;  ///< the value was given; `pravidlo` says by whom
};

class Stopa {
  public:
    /// Fills one step; `vysledek` ends it.
    class Zapis {
      public:
        /// An input that is the current value of the variable `promenna` (see `vysledek`).
        Zapis& z(std::string_view nazev, std::string_view promenna, Castka hodnota);
        /// An input read from a table; `zdroj` like "Os_karty.Jake_socialni".
        Zapis& udaj(std::string_view nazev, std::string_view hodnota, std::string_view zdroj);
        Zapis& udaj(std::string_view nazev, Castka hodnota, std::string_view zdroj);
        /// An input from the settings; `zdroj` like "Nastaveni.ini Legislativa2009/MinimalniMzda".
        Zapis& nastaveni(std::string_view nazev, Castka hodnota, std::string_view zdroj);
        /// A constant of the calculation itself.
        Zapis& konstanta(std::string_view nazev, Castka hodnota);
        /// A remark: which branch was taken and why.
        Zapis& vetev(std::string_view text);
        Zapis& zaokrouhleni(const Zaokrouhleni& jak);
        /// The legal source, for example "§ 38h zák. č. 586/1992 Sb.".
        Zapis& predpis(std::string_view text);
        /// Ends the step: its result becomes the current value of the variable `promenna`.
        /// Returns the step's index.
        int vysledek(std::string_view promenna, Castka hodnota);

      private:
        friend class Stopa;
        Zapis(Stopa& stopa, int index) : stopa_(stopa), index_(index) {}
        StopaKrok& krok_();
        Stopa& stopa_;
        int index_;
    };

    Zapis krok(std::string_view pravidlo);

    /// From now on the variable `promenna` is a value given instead of being computed, as `odkud`
    /// says ("zadáno ručně").
    void dosad(std::string_view promenna, Castka hodnota, std::string_view odkud);

    /// Starts the running total `promenna` anew at zero.
    void zacni_soucet(std::string_view promenna, std::string_view pravidlo);
    /// Adds to the running total (a step's result begins one as its first contribution); the
    /// contribution is the current value of `odkud` when that is a
    /// variable, otherwise a plain input.
    void pricti(std::string_view promenna, std::string_view nazev, std::string_view odkud,
                Castka castka);
    /// Index of the step that holds the variable's current value, or -1. A running total gets its
    /// step here, with the contributions so far as inputs.
    int krok_promenne(std::string_view promenna, Castka hodnota);

    const std::vector<StopaKrok>& kroky() const { return kroky_; }
    void vymaz();

    /// The tree under one step as lines of text with drawn branches; a step met again is only
    /// referred to. ""
    /// when there is no such step.
    std::string strom(int krok, int odsazeni = 0) const;

  private:
    struct Soucet {
        std::string pravidlo;
        std::vector<StopaVstup> prispevky;
        int krok = -1;  // step made for the contributions so far; -1 when one came after it
    };
    Soucet& soucet_promenne(std::string_view promenna);
    void vetve(int krok, const std::string& okraj, std::vector<bool>& videno,
               std::string& vystup) const;

    std::vector<StopaKrok> kroky_;
    std::map<std::string, int, std::less<>> promenne_;
    std::map<std::string, Soucet, std::less<>> soucty_;
};

}  // namespace base
