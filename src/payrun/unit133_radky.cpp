#include "payrun/unit133_radky.h"

#include <deque>
#include <map>
#include <utility>

#include "base/text.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace payrun {

namespace {

struct Cas {
    Castka dny = 0;
    Castka hodiny = 0;
};

/// Times of the gross items of one worker by module and column. An item of the modules 4 and 5
/// makes a row of its own, items of other modules are summed by column.
using Casy = std::map<std::pair<int, int>, std::deque<Cas>>;

enum class Jednotka { koruny, dny, hodiny };

/// What the value of a module's rows is.
Jednotka jednotka(int modul) {
    switch (modul) {
        case 51:
        case 52:
        case 71:
            return Jednotka::dny;
        case 53:
        case 54:
        case 55:
        case 72:
            return Jednotka::hodiny;
        default:
            return Jednotka::koruny;
    }
}

constexpr std::string_view k_staly_plat = "ST PLAT: ";
constexpr std::string_view k_osobni_ohodnoceni = "OS OH ";
// Days and hours in the note of the fixed salary, each this wide.
constexpr std::size_t k_dny_v_poznamce = 16, k_hodiny_v_poznamce = 26, k_sirka_casu = 10;

std::string podminka(std::optional<int> cislo) {
    return cislo ? " WHERE Cislo_pracovnika = :cislo" : "";
}

std::unordered_map<int, Casy> nacti_casy(shell::Session& session, int mesic,
                                         std::optional<int> cislo) {
    std::unordered_map<int, Casy> casy;
    const std::string hrube = store::month_table("Hrube", mesic);
    if (!session.data().table_exists(hrube)) return casy;
    store::Query q(session.data(),
                   "SELECT Cislo_pracovnika, Modul, Sloupec, Dny_od, Dny_neod, Hod_od, Hod_neod,"
                   " Hod_vedl FROM " +
                       hrube + podminka(cislo) + " ORDER BY Pocitadlo");
    if (cislo) q.set("cislo", *cislo);
    for (q.open(); !q.eof(); q.next()) {
        const auto modul = static_cast<int>(q.integer(1));
        auto& fronta =
            casy[static_cast<int>(q.integer(0))][{modul, static_cast<int>(q.integer(2))}];
        if (fronta.empty() || modul == 4 || modul == 5) fronta.emplace_back();
        const auto castka = [&q](int sloupec) { return z_ulozeneho(q.number(sloupec)); };
        fronta.back().dny += castka(3) + castka(4);
        fronta.back().hodiny += castka(5) + castka(6) + castka(7);
    }
    return casy;
}

std::optional<Castka> nebo_nic(Castka cas) {
    if (base::je_nula(cas)) return std::nullopt;
    return bez_sumu(cas);
}

void dopln_cas(RadekListiny& radek, Casy& casy) {
    switch (jednotka(radek.modul)) {
        case Jednotka::dny:
            radek.dny = std::exchange(radek.hodnota, std::nullopt);
            return;
        case Jednotka::hodiny:
            radek.hodiny = std::exchange(radek.hodnota, std::nullopt);
            return;
        case Jednotka::koruny:
            break;
    }
    if (radek.poznamka.starts_with(k_osobni_ohodnoceni)) return;
    if (radek.poznamka.starts_with(k_staly_plat)) {
        const auto cas = [&](std::size_t od) {
            return nebo_nic(
                base::je_desetinne_cislo(base::znaky(radek.poznamka, od, k_sirka_casu)));
        };
        radek.dny = cas(k_dny_v_poznamce);
        radek.hodiny = cas(k_hodiny_v_poznamce);
        return;
    }
    const auto it = casy.find({radek.modul, radek.sloupec});
    if (it == casy.end() || it->second.empty()) return;
    radek.dny = nebo_nic(it->second.front().dny);
    radek.hodiny = nebo_nic(it->second.front().hodiny);
    it->second.pop_front();
}

std::unordered_map<int, RadkyListiny> nacti(shell::Session& session, int mesic,
                                            std::optional<int> cislo) {
    std::unordered_map<int, RadkyListiny> radky;
    std::unordered_map<int, Casy> casy = nacti_casy(session, mesic, cislo);
    store::Query q(session.data(),
                   "SELECT Cislo_pracovnika, Modul, Sloupec, Co_je_to, Hodnota, Poznamka FROM " +
                       store::month_table("Listin", mesic) + podminka(cislo) +
                       " ORDER BY Modul, Sloupec, Pocitadlo");
    if (cislo) q.set("cislo", *cislo);
    for (q.open(); !q.eof(); q.next()) {
        const auto kdo = static_cast<int>(q.integer(0));
        RadekListiny r;
        r.modul = static_cast<int>(q.integer(1));
        r.sloupec = static_cast<int>(q.integer(2));
        r.co_je_to = q.text(3);
        if (!q.is_empty(4)) r.hodnota = z_ulozeneho(q.number(4));
        r.poznamka = q.text(5);
        dopln_cas(r, casy[kdo]);
        radky[kdo].push_back(std::move(r));
    }
    return radky;
}

}  // namespace

RadkyListiny nacti_radky_listiny(shell::Session& session, int mesic, int cislo) {
    return std::move(nacti(session, mesic, cislo)[cislo]);
}

std::unordered_map<int, RadkyListiny> nacti_radky_vsech(shell::Session& session, int mesic) {
    return nacti(session, mesic, std::nullopt);
}

}  // namespace payrun
