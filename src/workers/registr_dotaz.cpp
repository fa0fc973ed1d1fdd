#include "workers/registr_dotaz.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "base/text.h"

namespace workers {

namespace {

/// A check box of the filter: its caption and its condition.
struct Zaskrtavatko {
    bool FiltrRegistru::*zaskrtnuto;
    const char* popisek;
    const char* podminka;
};

constexpr Zaskrtavatko k_zaskrtavatka[] = {
    {&FiltrRegistru::maji_deti, "Mají děti",
     "(EXISTS (SELECT * FROM DETI WHERE OS_KARTY.CISLO=DETI.CISLO_PRACOVNIKA))"},
    {&FiltrRegistru::maji_epodani, "Mají ePodání",
     "(EXISTS (SELECT * FROM EPODANI WHERE OS_KARTY.CISLO=EPODANI.CISLO_PRACOVNIKA))"},
    {&FiltrRegistru::rocni_zuctovani, "Roční zúčtování", "(ROCNI_ZUCTOVANI=TRUE)"},
    {&FiltrRegistru::aktivni, "Aktivní", "((TRIM(ZAM_DO)=\"\") OR (ZAM_DO IS NULL))"},
    {&FiltrRegistru::nema_kalendar, "Nemá kalendář", "(ID_RPD=0)"},
};

constexpr std::array<const char*, 4> k_order_by{
    "ORDER BY cislo, pocitadlo", "ORDER BY prijmeni, jmeno, pocitadlo",
    "ORDER BY jmeno, prijmeni, pocitadlo", "ORDER BY dat_nar_cislo, pocitadlo"};

bool omezuje(const VolitelneHledisko& volitelne) {
    return volitelne.hledisko > 0 && base::neprazdny(volitelne.hodnota);
}

std::vector<std::string> podminky(const FiltrRegistru& filtr) {
    std::vector<std::string> vysledek;
    for (const Zaskrtavatko& z : k_zaskrtavatka) {
        if (filtr.*z.zaskrtnuto) vysledek.emplace_back(z.podminka);
    }
    if (base::neprazdny(filtr.cislo)) vysledek.push_back("(CISLO=" + filtr.cislo + ")");
    for (const VolitelneHledisko& v : filtr.volitelne) {
        if (omezuje(v)) vysledek.push_back(fmt::format("(VOLIT_{}={})", v.hledisko, v.hodnota));
    }
    if (base::neprazdny(filtr.jmeno)) {
        vysledek.emplace_back("(UPPER(PRIJMENI) LIKE :jmeno OR UPPER(JMENO) LIKE :jmeno)");
    }
    return vysledek;
}

}  // namespace

std::string dotaz_registru(const FiltrRegistru& filtr, std::string_view sloupce) {
    const std::vector<std::string> vsechny = podminky(filtr);
    return fmt::format("SELECT {} FROM OS_KARTY\r\n{}{}{}", sloupce,
                       vsechny.empty() ? "" : "WHERE ", fmt::join(vsechny, " AND "),
                       vsechny.empty() ? "" : "\r\n") +
           k_order_by.at(static_cast<std::size_t>(filtr.poradi));
}

std::string vzor_jmena(const FiltrRegistru& filtr) {
    return "%" + base::velkymi(filtr.jmeno) + "%";
}

store::Rows pracovnici_registru(const shell::Session& session, const FiltrRegistru& filtr,
                                std::string_view sloupce) {
    store::Connection jen_ke_cteni(session.cesta_dat, store::Access::read_only);
    store::Query dotaz(jen_ke_cteni, dotaz_registru(filtr, sloupce));
    if (base::neprazdny(filtr.jmeno)) dotaz.set("jmeno", vzor_jmena(filtr));
    return store::read_all(dotaz);
}

std::vector<std::string> filtr_slovy(const FiltrRegistru& filtr,
                                     const std::array<std::string, 10>& hlediska) {
    std::vector<std::string> radky;
    for (const Zaskrtavatko& z : k_zaskrtavatka) {
        if (filtr.*z.zaskrtnuto) radky.emplace_back(z.popisek);
    }
    if (base::neprazdny(filtr.cislo)) radky.push_back("Číslo pracovníka: " + filtr.cislo);
    for (const VolitelneHledisko& v : filtr.volitelne) {
        if (!omezuje(v)) continue;
        radky.push_back(fmt::format("{}: {}", hlediska.at(static_cast<std::size_t>(v.hledisko) - 1),
                                    v.hodnota));
    }
    if (base::neprazdny(filtr.jmeno)) radky.push_back("Jméno obsahuje: " + filtr.jmeno);
    return radky;
}

}  // namespace workers
