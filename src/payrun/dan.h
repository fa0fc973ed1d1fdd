// Income tax of one worker and month: rounding of the base, withholding and advance, the limits of
// the bonus; the union fee, which depends on the result; and the texts that go with them. Pure
// functions.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/stopa.h"
#include "payrun/presnost.h"
#include "shell/control_files.h"

namespace payrun {

/// Codes of `Jaka_dan` on the card; any other number pays no tax.
enum class JakaDan { zaloha = 1, dohoda = 2, autor = 3, statutar = 4, neplati = 5 };

/// Limits of the withholding tax, crowns of income a month. Fixed in the calculation, but for the
/// one of the settings (`limit_vydelku_srazkova`).
inline constexpr int k_limit_dohody = 10000;  ///< § 6 odst. 4 zák. č. 586/1992 Sb.
inline constexpr int k_limit_autora = 7000;   ///< § 7 odst. 6 zák. č. 586/1992 Sb.
/// Base up to which the advance is 15 %, above it 23 % (§ 38h zák. č. 586/1992 Sb.).
inline constexpr int k_hranice_vyssi_sazby = 155644;
/// A bonus under this many crowns is not paid (§ 35d zák. č. 586/1992 Sb.).
inline constexpr int k_nejmensi_bonus = 50;

/// The base of the advance: above 100 crowns up to whole hundreds, otherwise up to a whole crown.
Castka zaokrouhleny_zaklad(Castka zaklad_dane);

/// The partial bases and taxes of the two rates, whole crowns.
struct DilciDane {
    Castka zaklad_15 = 0, zaklad_23 = 0, dan_15 = 0, dan_23 = 0;
};

struct DanPredSlevou {
    Castka dan = 0;
    std::string text;       ///< beginning of the note of the tax row; "" when no rule applied
    bool zalohova = false;  ///< the advance was computed: `dilci` holds its parts
    DilciDane dilci;
};

/// Tax before reliefs. `zaklad_dane` is in whole crowns and taxed; `prijem_pro_dan`, unrounded and
/// without a blocked correction, decides between withholding and advance.
DanPredSlevou dan_kc(JakaDan kod, Castka zaklad_dane, Castka prijem_pro_dan,
                     int limit_vydelku_srazkova, base::Stopa* stopa);

/// A negative tax is a bonus. It falls away when the income is under half of the minimum wage and
/// when it is under 50 crowns; it is cut at the largest monthly bonus. `prijem` is the gross wage
/// with the wage in kind. § 35d zák. č. 586/1992 Sb.
Castka dan_po_pravidlech_bonusu(Castka dan, Castka prijem, int minimalni_mzda, int bonus_maximalni);

/// "1", "2" or "3" by the place of the amount among the three of the settings ("3" when it is none
/// of them), "" for no relief.
const char* Stupen_invalidity(int odp_invalidita, const std::array<std::int16_t, 3>& castky);

/// Reliefs of a card as the question about a part month lists them; "" when there are none.
struct Slevy {
    int poplatnik = 0, invalidita = 0, ostatni = 0;
    Castka deti = 0;
};
std::string text_slev(const Slevy& slevy);

/// The whole question.
std::string otazka_na_slevy(int cislo, const std::string& prijmeni, const std::string& jmeno,
                            const std::string& text_slev);

/// The union fee from the worker's net: a rate of 1 and more is crowns, below it a share cut to
/// whole crowns; the first interval of numbers wins.
Castka odborovy_prispevek(int cislo, Castka cisty, const shell::RidiciZorv& ridici,
                          base::Stopa* stopa);

}  // namespace payrun
