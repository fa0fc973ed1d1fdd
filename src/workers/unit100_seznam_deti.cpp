#include "workers/unit100_seznam_deti.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <tuple>
#include <unordered_map>

#include "base/text.h"
#include "report/nahled.h"
#include "report/tabulkova.h"
#include "store/catalogue.h"
#include "store/query.h"
#include "workers/fixni.h"

namespace workers {

namespace {

constexpr int k_mesicu = 12;
constexpr const char* k_bez_naroku = "...";
constexpr double k_sirka_ditete_mm = 85, k_sirka_mesice_mm = 15.5;

/// The note of the pay sheet's row: surname 30, first name 20, residence 30, birth number 13,
/// amount 7 characters.
struct PoznamkaDitete {
    explicit PoznamkaDitete(std::string_view text)
        : dite(base::orez(base::znaky(text, 1, 30)) + " " + base::orez(base::znaky(text, 31, 20))),
          rodne_cislo(base::orez(base::znaky(text, 81, 13))),
          castka(base::je_cele_cislo(base::znaky(text, 94, 7))) {}
    std::string dite, rodne_cislo;
    int castka;
};

struct Zamestnani {
    std::string pracovnik;
    base::Datum od, do_;  ///< no date: open

    bool trva(int mesic, int rok) const {
        const base::Datum prvni{rok, mesic, 1};
        const base::Datum posledni{rok, mesic, base::dni_v_mesici(mesic, rok)};
        return (od.je_prazdne() || od <= posledni) && (do_.je_prazdne() || do_ >= prvni);
    }
};
using Karty = std::unordered_map<std::int64_t, Zamestnani>;

Karty nacti_karty(shell::Session& session) {
    Karty karty;
    store::Query d(session.data(), "SELECT Cislo, Prijmeni, Jmeno, Zam_od, Zam_do FROM Os_karty");
    const auto datum = [&d](int sloupec) {
        return base::datum_z_textu(base::orez(d.text_view(sloupec))).value_or(base::Datum{});
    };
    for (d.open(); !d.eof(); d.next())
        karty.try_emplace(d.integer(0),
                          Zamestnani{d.text(1) + " " + d.text(2), datum(3), datum(4)});
    return karty;
}

std::string jmeno_z_karty(const Karty& karty, std::int64_t cislo) {
    const auto karta = karty.find(cislo);
    return karta == karty.end() ? k_pracovnik_neni : karta->second.pracovnik;
}

/// The children that the pay sheet of the month gives a benefit for.
void pridej_z_listiny(shell::Session& session, const Karty& karty, int mesic,
                      const std::string& tabulka, std::vector<MesicDitete>& radky) {
    store::Query d(session.data(),
                   "SELECT Cislo_pracovnika, Poznamka FROM " + tabulka + " WHERE Modul = 88");
    for (d.open(); !d.eof(); d.next()) {
        PoznamkaDitete p(d.text_view(1));
        radky.push_back({d.integer(0), jmeno_z_karty(karty, d.integer(0)), std::move(p.dite),
                         std::move(p.rodne_cislo), mesic, k_z_listiny, p.castka});
    }
}

/// The children claimed in months without a pay sheet.
void pridej_z_evidence(shell::Session& session, const Karty& karty, const std::vector<int>& mesice,
                       std::vector<MesicDitete>& radky) {
    store::Query d(session.data(),
                   "SELECT Cislo_pracovnika, Prijmeni, Jmeno, Rodne_cislo, Odpocitatelna_dan"
                   " FROM Deti WHERE Odpocitatelna_dan <> 0");
    for (d.open(); !d.eof(); d.next()) {
        const auto karta = karty.find(d.integer(0));
        for (const int mesic : mesice) {
            if (karta != karty.end() && !karta->second.trva(mesic, session.rok)) continue;
            radky.push_back({d.integer(0), jmeno_z_karty(karty, d.integer(0)),
                             base::orez(d.text(1)) + " " + base::orez(d.text(2)),
                             base::orez(d.text(3)), mesic, k_z_evidence,
                             static_cast<int>(d.integer(4))});
        }
    }
}

/// What makes two rows one child.
auto klic(const MesicDitete& r) {
    return std::tuple(r.cislo_pracovnika, r.rodne_cislo, r.rodne_cislo.empty() ? r.dite : "");
}

std::string znacka(const MesicDitete& r) {
    return r.poznamka == k_z_listiny ? std::to_string(r.castka) : fmt::format("({})", r.castka);
}

report::TabulkovaSestava prazdny_seznam(const shell::Session& session) {
    report::TabulkovaSestava s;
    s.nazev = "DĚTI  UPLATŇOVANÉ  PRO  DAŇOVÉ  ZVÝHODNĚNÍ";
    s.zahlavi = {fmt::format("{}   vytištěno {}", session.radek_firmy,
                             base::datum_textem(session.hodiny().dnes())),
                 "částka: podle výplatní listiny, (částka): podle evidence dětí, ...: neuplatněno"};
    s.sloupce.push_back({"dítě", k_sirka_ditete_mm, report::Zarovnani::vlevo, false});
    for (int mesic = 1; mesic <= k_mesicu; ++mesic)
        s.sloupce.push_back(
            {std::to_string(mesic), k_sirka_mesice_mm, report::Zarovnani::vpravo, false});
    s.na_sirku = true;
    return s;
}

}  // namespace

std::vector<MesicDitete> zdroj_seznamu_deti(shell::Session& session) {
    std::vector<MesicDitete> radky;
    const Karty karty = nacti_karty(session);
    std::vector<int> bez_listiny;
    for (int mesic = 1; mesic <= k_mesicu; ++mesic) {
        const std::string tabulka = store::month_table("Listin", mesic);
        if (session.data().table_exists(tabulka)) {
            pridej_z_listiny(session, karty, mesic, tabulka, radky);
        } else {
            bez_listiny.push_back(mesic);
        }
    }
    pridej_z_evidence(session, karty, bez_listiny, radky);
    std::stable_sort(radky.begin(), radky.end(), [](const MesicDitete& a, const MesicDitete& b) {
        return std::tuple(klic(a), a.Mesic) < std::tuple(klic(b), b.Mesic);
    });
    return radky;
}

report::Document seznam_deti(shell::Session& session) {
    report::TabulkovaSestava s = prazdny_seznam(session);
    const std::vector<MesicDitete> radky = zdroj_seznamu_deti(session);
    for (std::size_t i = 0; i < radky.size(); ++i) {
        const MesicDitete& r = radky[i];
        if (i == 0 || r.cislo_pracovnika != radky[i - 1].cislo_pracovnika) {
            s.radky.push_back({fmt::format("{}  {}", r.cislo_pracovnika, r.pracovnik)});
        }
        if (i == 0 || klic(r) != klic(radky[i - 1])) {
            s.radky.push_back({fmt::format("    {}, rod.č. {}", r.dite, r.rodne_cislo)});
            s.radky.back().resize(k_mesicu + 1, k_bez_naroku);
        }
        s.radky.back()[static_cast<std::size_t>(r.Mesic)] = znacka(r);
    }
    return report::sestav_tabulku(s);
}

void tisk_deti(shell::Session& session) {
    report::TFUsrPrev nahled(seznam_deti(session));
    session.obsluha().ukaz_modalne(nahled);
}

}  // namespace workers
