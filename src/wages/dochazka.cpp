#include "wages/dochazka.h"

#include <algorithm>
#include <cctype>
#include <fmt/format.h>

#include "base/text.h"
#include "store/catalogue.h"
#include "store/table.h"

namespace wages {
namespace {

constexpr const char* k_tabulka = "Dochazka";
constexpr std::array k_zkratky_dnu{"Po", "Út", "St", "Čt", "Pá", "So", "Ne"};

/// "Hod1,Hod2,..."
std::string pole_dnu(const char* nazev) {
    std::vector<std::string> pole;
    for (std::size_t den = 1; den <= k_dnu_dochazky; ++den)
        pole.push_back(nazev + std::to_string(den));
    return fmt::format("{}", fmt::join(pole, ","));
}

/// `Pocitadlo` of the sheet, 0 when there is none.
std::int64_t najdi_list(shell::Session& session, int cislo_pracovnika, int mesic) {
    store::Query dotaz(session.data(),
                       "SELECT Pocitadlo FROM Dochazka WHERE Cislo_pracovnika = :cislo AND "
                       "Mesic = :mesic");
    dotaz.set("cislo", cislo_pracovnika).set("mesic", mesic).open();
    return dotaz.integer("Pocitadlo");
}

void vypln_vetu(store::Table& dochazka, const ListDochazky& list) {
    for (std::size_t i = 0; i < k_dnu_dochazky; ++i) {
        dochazka.set(fmt::format("Hod{}", i + 1), list.hodiny[i]);
        dochazka.set(fmt::format("Typ{}", i + 1), list.kody[i]);
    }
    dochazka.set("Poznamka", list.poznamka);
    dochazka.set("Suma_hod", list.suma_hod);
    dochazka.set("Suma_odprac", list.suma_odprac);
    dochazka.set("Suma_neodprac", list.suma_neodprac);
}

}  // namespace

std::optional<char> kod_z_klavesy(char znak) {
    const char velky = static_cast<char>(std::toupper(static_cast<unsigned char>(znak)));
    const bool je =
        velky == ' ' || std::any_of(k_kody_nepritomnosti.begin(), k_kody_nepritomnosti.end(),
                                    [velky](const KodNepritomnosti& k) { return k.kod == velky; });
    return je ? std::optional(velky) : std::nullopt;
}

const char* zkratka_dne(int den_v_tydnu) {
    return k_zkratky_dnu.at(static_cast<std::size_t>(den_v_tydnu - 1));
}

void secti(ListDochazky& list, int dnu) {
    list.suma_hod = 0;
    list.suma_odprac = 0;
    for (std::size_t i = 0; i < k_dnu_dochazky; ++i) {
        list.suma_hod += list.hodiny[i];
        const bool odpracovany = list.hodiny[i] > 0 || list.kody[i] == k_kod_svatku;
        if (static_cast<int>(i) < dnu && odpracovany) ++list.suma_odprac;
    }
    list.suma_neodprac = dnu - list.suma_odprac;
}

store::Rows dochazka_mesice(shell::Session& session, int mesic, const std::string& cislo,
                            const std::string& prijmeni) {
    std::vector<std::string> podminky;
    if (base::neprazdny(cislo)) podminky.push_back("(Cislo=:cislo)");
    if (base::neprazdny(prijmeni)) podminky.push_back("(UPPER(Prijmeni) LIKE :prijmeni)");
    store::Query dotaz(
        session.data(),
        fmt::format("SELECT Pocitadlo, Cislo, Prijmeni, Jmeno, {}, {},"
                    "Poznamka, Suma_hod, Suma_odprac, Suma_neodprac FROM Os_karty AS o "
                    "LEFT OUTER JOIN Dochazka AS d ON o.Cislo=d.Cislo_pracovnika AND Mesic=:mesic "
                    "{}{} ORDER BY Cislo",
                    pole_dnu("Hod"), pole_dnu("Typ"), podminky.empty() ? "" : "WHERE ",
                    fmt::join(podminky, " AND ")));
    dotaz.set("mesic", mesic);
    if (base::neprazdny(cislo)) dotaz.set("cislo", base::je_cele_cislo(cislo));
    if (base::neprazdny(prijmeni))
        dotaz.set("prijmeni", "%" + base::velkymi(base::orez(prijmeni)) + "%");
    return store::read_all(dotaz);
}

ListDochazky list_dochazky(const store::Rows& vety, std::size_t radek) {
    const auto hodnota = [&](const std::string& pole) -> const store::Value& {
        return vety.rows.at(radek).at(static_cast<std::size_t>(vety.column(pole)));
    };
    ListDochazky list;
    for (std::size_t i = 0; i < k_dnu_dochazky; ++i) {
        list.hodiny[i] = hodnota(fmt::format("Hod{}", i + 1)).as_number();
        list.kody[i] = hodnota(fmt::format("Typ{}", i + 1)).as_text();
    }
    list.poznamka = hodnota("Poznamka").as_text();
    list.suma_hod = hodnota("Suma_hod").as_number();
    list.suma_odprac = static_cast<int>(hodnota("Suma_odprac").as_integer());
    list.suma_neodprac = static_cast<int>(hodnota("Suma_neodprac").as_integer());
    return list;
}

void uloz_dochazku(shell::Session& session, int cislo_pracovnika, int mesic,
                   const ListDochazky& list) {
    store::Table dochazka;
    dochazka.set_connection(session.data());
    dochazka.set_table_name(k_tabulka);
    dochazka.open();
    store::Transaction transakce(session.data());
    const std::int64_t pocitadlo = najdi_list(session, cislo_pracovnika, mesic);
    if (pocitadlo != 0 && dochazka.locate("Pocitadlo", pocitadlo)) {
        dochazka.edit();
    } else {
        dochazka.append();
        dochazka.set("Cislo_pracovnika", cislo_pracovnika);
        dochazka.set("Mesic", mesic);
    }
    vypln_vetu(dochazka, list);
    dochazka.post();
    transakce.commit();
}

void zaloz_dochazku(shell::Session& session) {
    store::Transaction transakce(session.data());
    if (!session.data().table_exists(k_tabulka))
        session.data().create_table(store::definition_of(k_tabulka));
    transakce.commit();
}

}  // namespace wages
