#include "workers/unit7_napovedy.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fmt/format.h>

#include "base/rodne_cislo.h"
#include "base/text.h"
#include "store/query.h"

namespace workers {
namespace {

constexpr int k_nejvyssi_vek = 100;
constexpr int k_nejnizsi_vek_prace = 15;  ///< § 34 zák. č. 262/2006 Sb.
constexpr std::size_t k_cislic_s_kontrolni = 10;
constexpr std::size_t k_nejvyse_jmenovanych = 5;  ///< workers of the same birth number
/// Codes of the Czech health insurers.
constexpr std::array<std::string_view, 7> k_kody_pojistoven{"111", "201", "205", "207",
                                                            "209", "211", "213"};

struct Hledani {
    const HodnotyKarty& karta;
    const PodkladyKarty& podklady;
    const OstatniPracovnici& ostatni;
    const base::Datum& dnes;
    std::vector<ChybaKarty> nalezene;

    void napoveda(const char* ovladac, std::string text) {
        nalezene.push_back({std::move(text), ovladac});
    }
};

base::Datum po_letech(const base::Datum& den, int let) {
    return {den.rok + let, den.mesic, den.den};
}

/// Ten digits are divisible by eleven; numbers given until 1985 may instead leave ten over with a
/// last digit 0. Nine digits have no check.
bool modul_souhlasi(const std::string& cislice) {
    if (cislice.size() != k_cislic_s_kontrolni) return true;
    long long vse = 0, bez_kontrolni = 0;
    std::from_chars(cislice.data(), cislice.data() + cislice.size(), vse);
    std::from_chars(cislice.data(), cislice.data() + cislice.size() - 1, bez_kontrolni);
    return vse % 11 == 0 || (bez_kontrolni % 11 == 10 && cislice.back() == '0');
}

void over_stavbu_rc(Hledani& h) {
    const std::string& rc = h.karta.text("Rodne_cislo");
    if (!base::rodne_cislo_ok(rc)) return;
    const base::Datum den = base::rc2datum(rc);
    if (den.je_prazdne()) {
        h.napoveda("Rodne_cislo", "Rodné číslo neobsahuje existující den narození.");
    } else if (const auto narozen = base::datum_z_textu(h.karta.text("Dat_nar_text"));
               narozen && *narozen != den) {
        h.napoveda("Dat_nar_text",
                   "Datum narození neodpovídá rodnému číslu (" + base::datum_textem(den) + ").");
    }
    if (!modul_souhlasi(base::rc_bez_lomitka(rc))) {
        h.napoveda("Rodne_cislo", "Rodné číslo není dělitelné jedenácti.");
    }
}

void over_pohlavi(Hledani& h) {
    constexpr int k_muz = 0, k_zena = 1;
    const int vybrane = h.karta["CSSZ102"].index;
    const std::string podle_rc = base::pohlavi_z_rc(h.karta.text("Rodne_cislo"));
    if ((podle_rc == "M" && vybrane == k_zena) || (podle_rc == "Ž" && vybrane == k_muz)) {
        h.napoveda("CSSZ102", "Pohlaví neodpovídá rodnému číslu.");
    }
}

/// Contracts of one person that are taxed together bear the same number on purpose.
bool dani_se_spolu(int cislo, int platce, const OstatniPracovnici::Pracovnik& jiny) {
    const int spolecny = platce == 0 ? cislo : platce;
    const int jeho = jiny.kdo_plati_dan == 0 ? jiny.cislo : jiny.kdo_plati_dan;
    return spolecny == jeho;
}

void over_stejne_rc(Hledani& h) {
    const int cislo = h.karta.cislo("Cislo"), platce = h.karta.cislo("Kdo_plati_dan");
    std::vector<std::string> cizi;
    for (const auto& jiny : h.ostatni.s_rodnym_cislem(h.karta.text("Rodne_cislo"))) {
        if (jiny.pocitadlo == h.karta.pocitadlo || dani_se_spolu(cislo, platce, jiny)) continue;
        if (cizi.size() == k_nejvyse_jmenovanych) {
            cizi.emplace_back("další");
            break;
        }
        cizi.push_back(std::to_string(jiny.cislo));
    }
    if (cizi.empty()) return;
    h.napoveda("Rodne_cislo",
               fmt::format("Stejné rodné číslo má pracovník {}.", fmt::join(cizi, ", ")));
}

void over_vek(Hledani& h) {
    const auto narozen = base::datum_z_textu(h.karta.text("Dat_nar_text"));
    if (!narozen) return;
    if (*narozen > h.dnes) {
        h.napoveda("Dat_nar_text", "Datum narození je v budoucnosti.");
    } else if (po_letech(*narozen, k_nejvyssi_vek) < h.dnes) {
        h.napoveda("Dat_nar_text", fmt::format("Pracovníkovi je přes {} let.", k_nejvyssi_vek));
    }
    const auto nastup = base::datum_z_textu(h.karta.text("Zam_od"));
    if (nastup && *nastup < po_letech(*narozen, k_nejnizsi_vek_prace)) {
        h.napoveda("Zam_od", fmt::format("Nástup je před {}. narozeninami.", k_nejnizsi_vek_prace));
    }
}

void over_kod_pojistovny(Hledani& h) {
    const PojistovnaKarty* pojistovna = h.podklady.pojistovna(h.karta.cislo("Cislo_zdrav_poj"));
    if (!pojistovna || !h.karta.zadano("Cislo_zdrav_poj")) return;
    const std::string kod = base::orez(pojistovna->kod);
    if (std::ranges::find(k_kody_pojistoven, kod) != k_kody_pojistoven.end()) return;
    h.napoveda("Cislo_zdrav_poj",
               kod.empty()
                   ? fmt::format("Zdravotní pojišťovna {} nemá v číselníku kód.", pojistovna->cislo)
                   : fmt::format("Kód zdravotní pojišťovny {} není známý.", kod));
}

void over_platce_dane(Hledani& h) {
    const int platce = h.karta.cislo("Kdo_plati_dan");
    if (platce == 0) return;
    if (platce == h.karta.cislo("Cislo")) {
        h.napoveda("Kdo_plati_dan", "Pracovník má zdaňovat mzdu sám sobě.");
    } else if (!h.ostatni.jmeno(platce)) {
        h.napoveda("Kdo_plati_dan",
                   fmt::format("Pracovník {}, který má mzdu zdaňovat, neexistuje.", platce));
    }
}

constexpr void (*k_napovedy[])(Hledani&) = {over_stavbu_rc, over_stejne_rc,      over_vek,
                                            over_pohlavi,   over_kod_pojistovny, over_platce_dane};

}  // namespace

OstatniPracovnici::OstatniPracovnici(store::Connection& data) {
    store::Query dotaz(data,
                       "SELECT Pocitadlo, Cislo, Kdo_plati_dan, Rodne_cislo, Prijmeni, Jmeno FROM "
                       "Os_karty");
    for (dotaz.open(); !dotaz.eof(); dotaz.next()) {
        const Pracovnik pracovnik{dotaz.integer(0), static_cast<int>(dotaz.integer(1)),
                                  static_cast<int>(dotaz.integer(2))};
        jmena_.emplace(pracovnik.cislo, base::orez(dotaz.text(4) + " " + dotaz.text(5)));
        const std::string cislice = base::rc_bez_lomitka(dotaz.text(3));
        if (!cislice.empty()) podle_rc_[cislice].push_back(pracovnik);
    }
}

const std::vector<OstatniPracovnici::Pracovnik>& OstatniPracovnici::s_rodnym_cislem(
    std::string_view rodne_cislo) const {
    static const std::vector<Pracovnik> k_nikdo;
    const auto kde = podle_rc_.find(base::rc_bez_lomitka(rodne_cislo));
    return kde == podle_rc_.end() ? k_nikdo : kde->second;
}

const std::string* OstatniPracovnici::jmeno(int cislo) const {
    const auto kde = jmena_.find(cislo);
    return kde == jmena_.end() ? nullptr : &kde->second;
}

std::vector<ChybaKarty> najdi_napovedy(const HodnotyKarty& karta, const PodkladyKarty& podklady,
                                       const OstatniPracovnici& ostatni, const base::Datum& dnes) {
    Hledani hledani{karta, podklady, ostatni, dnes, {}};
    for (const auto hledej : k_napovedy)
        hledej(hledani);
    return std::move(hledani.nalezene);
}

}  // namespace workers
