#include "wages/bunky_kalendare.h"

#include <algorithm>
#include <fmt/format.h>
#include <numeric>
#include <vector>

#include "base/datum.h"
#include "base/text.h"

namespace wages {
namespace {

constexpr int k_minut_za_hodinu = 60;
constexpr int k_minut_za_den = 24 * k_minut_za_hodinu;

/// The typed text with a colon between hours and minutes; "" when it has no such form.
std::string s_dvojteckou(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == ',' || c == '.'; }, ':');
    const auto dvojtecka = text.find(':');
    if (dvojtecka != std::string::npos) return text.size() - dvojtecka == 3 ? text : "";
    if (text.size() <= 2) return text + ":00";
    if (text.size() > 4) return "";
    return text.insert(text.size() - 2, ":");
}

}  // namespace

BunkyRoku prazdne_bunky() {
    BunkyRoku rok;
    for (BunkyMesice& mesic : rok)
        mesic.fill(k_bez_prace);
    return rok;
}

BunkyMesice bunky_z_textu(std::string_view text) {
    BunkyMesice bunky;
    bunky.fill(k_bez_prace);
    const std::vector<std::string> casti = base::rozdel_text(text, ';');
    for (std::size_t i = 0; i < std::min(casti.size(), bunky.size()); ++i)
        bunky[i] = casti[i];
    return bunky;
}

std::string text_z_bunek(const BunkyMesice& bunky) {
    return fmt::format("{}", fmt::join(bunky, ";"));
}

std::optional<std::string> bunka_z_textu(std::string_view text) {
    const std::string orezany = base::orez(text);
    if (orezany.empty()) return k_bez_prace;
    const std::string cas = s_dvojteckou(orezany);
    // What is no time reads as 0, so only zeros may read as 0.
    const int minut = base::cas_na_minuty(cas);
    const bool same_nuly = cas.find_first_not_of("0:") == std::string::npos && cas.size() > 3;
    if ((minut == 0 && !same_nuly) || minut > k_minut_za_den) return std::nullopt;
    return cas_textem(minut);
}

int minut_mesice(const BunkyMesice& bunky) {
    return std::accumulate(bunky.begin(), bunky.end(), 0, [](int soucet, const std::string& bunka) {
        return soucet + base::cas_na_minuty(bunka);
    });
}

int minut_roku(const BunkyRoku& bunky) {
    return std::accumulate(bunky.begin(), bunky.end(), 0, [](int soucet, const BunkyMesice& mesic) {
        return soucet + minut_mesice(mesic);
    });
}

std::string cas_textem(int minut) {
    return fmt::format("{}:{:02}", minut / k_minut_za_hodinu, minut % k_minut_za_hodinu);
}

bool vlozi_se_do_nasledujiciho(const VolbyEnteru& volby, bool volno, std::string_view hodnota) {
    return volby.vkladat_do_nasledujiciho && (!volno || volby.prepisovat_svatky) &&
           (hodnota == k_bez_prace || volby.prepisovat_vyplnene);
}

}  // namespace wages
