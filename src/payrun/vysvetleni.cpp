#include "payrun/vysvetleni.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/datum.h"
#include "payrun/pracovnik_mesice.h"
#include "payrun/zaporne_povoleni.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace payrun {
namespace {

constexpr Castka k_shoda = 0.001L;

/// The stored rows of one worker in the order of writing; an empty amount is 0.
std::vector<PametVeta> ulozene_vety(store::Connection& data, int mesic, int cislo) {
    std::vector<PametVeta> vety;
    store::Query q(data, "SELECT Modul, Sloupec, Co_je_to, Poznamka, Hodnota, Pocitadlo FROM " +
                             store::month_table("Listin", mesic) +
                             " WHERE Cislo_pracovnika = :cislo ORDER BY Pocitadlo");
    q.set("cislo", cislo);
    for (q.open(); !q.eof(); q.next()) {
        vety.push_back({static_cast<int>(q.integer(0)), static_cast<int>(q.integer(1)), q.text(2),
                        q.text(3), z_ulozeneho(q.number(4)), -1});
    }
    return vety;
}

/// The reliefs of a part month were given when any of their rows was written.
bool slevy_byly_priznany(const std::vector<PametVeta>& vety) {
    static const std::set<int> moduly_slev{65, 66, 67, 68, 88};
    return std::any_of(vety.begin(), vety.end(),
                       [](const PametVeta& v) { return moduly_slev.contains(v.modul); });
}

VysvetlenyRadek radek(const PametVeta& veta) {
    VysvetlenyRadek r;
    r.modul = veta.modul;
    r.sloupec = veta.sloupec;
    r.co_je_to = veta.co_je_to;
    r.poznamka = veta.poznamka;
    r.krok = veta.krok;
    return r;
}

/// Pairs the n-th computed row of a module and column with the n-th stored one; stored rows that
/// the calculation no longer makes come last.
std::vector<VysvetlenyRadek> porovnej(const std::vector<PametVeta>& vypoctene,
                                      const std::vector<PametVeta>& ulozene) {
    std::multimap<std::pair<int, int>, std::size_t> volne;
    for (std::size_t i = 0; i < ulozene.size(); ++i) {
        volne.emplace(std::pair{ulozene[i].modul, ulozene[i].sloupec}, i);
    }
    std::vector<VysvetlenyRadek> radky;
    for (const PametVeta& veta : vypoctene) {
        VysvetlenyRadek r = radek(veta);
        r.vypocteno = veta.hodnota;
        if (const auto it = volne.lower_bound({veta.modul, veta.sloupec});
            it != volne.end() && it->first == std::pair{veta.modul, veta.sloupec}) {
            r.ulozeno = ulozene[it->second].hodnota;
            const Castka rozdil = *r.vypocteno - *r.ulozeno;
            r.souhlasi = rozdil <= k_shoda && rozdil >= -k_shoda;
            volne.erase(it);
        }
        radky.push_back(std::move(r));
    }
    std::set<std::size_t> zbyle;
    for (const auto& [klic, poradi] : volne)
        zbyle.insert(poradi);
    for (const std::size_t poradi : zbyle) {
        VysvetlenyRadek r = radek(ulozene[poradi]);
        r.ulozeno = ulozene[poradi].hodnota;
        radky.push_back(std::move(r));
    }
    return radky;
}

/// The month's calculation over again, traced for the wanted worker alone.
class Opakovani {
  public:
    Opakovani(shell::Session& session, Vysvetleni& vysvetleni, bool slevy_priznany)
        : vysvetleni_(vysvetleni),
          parametry_{session.ridici_zorv,
                     session.nastaveni,
                     session.rok,
                     vysvetleni.mesic,
                     base::pracovni_dny_mesice(vysvetleni.mesic, session.rok),
                     jsou_povoleny_zaporne(session.data())},
          vstupy_(session, vysvetleni.mesic, vysvetleni.mesic - 1),
          karty_(nacti_karty(session.data(), vysvetleni.mesic)),
          stav_{chyby_, {}, {}, {}},
          zapisovac_(chyby_),
          vypocet_(parametry_, vstupy_, zapisovac_, stav_,
                   [slevy_priznany](const Karta&, const std::string&) { return slevy_priznany; }) {}

    /// The rows of the wanted worker.
    std::vector<PametVeta> proved() {
        bool hledany_v_a = false;
        for (const Karta& karta : karty_) {
            if (karta.cislo != vysvetleni_.cislo) continue;
            if (!vysvetleni_.pracovnik_nalezen) {
                vysvetleni_.jmeno = karta.prijmeni + " " + karta.jmeno_s_titulem;
            }
            vysvetleni_.pracovnik_nalezen = true;
            hledany_v_a = hledany_v_a || PracovnikMesice::faze(karta) == Faze::A;
        }
        if (!vysvetleni_.pracovnik_nalezen) return {};
        projdi(Faze::A, true);
        // Whether anybody took over the base of a worker of the first pass shows at the end only.
        projdi(Faze::B, hledany_v_a);
        if (hledany_v_a) pridej_nespotrebovane();
        return std::move(hledane_.vety);
    }

  private:
    void projdi(Faze faze, bool vsechny) {
        for (const Karta& karta : karty_) {
            if (!vsechny && karta.cislo > vysvetleni_.cislo) return;
            if (PracovnikMesice::faze(karta) != faze || !vypocet_.je_v_mesici(karta)) continue;
            const std::size_t chyb = chyby_.size();
            if (karta.cislo == vysvetleni_.cislo) {
                vypocet_.spocti(karta, hledane_, &vysvetleni_.stopa);
                vysvetleni_.chyby.insert(vysvetleni_.chyby.end(),
                                         chyby_.begin() + static_cast<std::ptrdiff_t>(chyb),
                                         chyby_.end());
            } else {
                // A base that is merged into the wanted worker's belongs to his tree.
                const bool sloucen = karta.kdo_plati_dan == vysvetleni_.cislo;
                vypocet_.spocti(karta, ostatni_, sloucen ? &vysvetleni_.stopa : nullptr);
            }
        }
    }

    void pridej_nespotrebovane() {
        const std::vector<std::string> hlasky =
            stav_.sloucene_zdaneni.hlasky_o_nespotrebovanych(vysvetleni_.cislo);
        vysvetleni_.chyby.insert(vysvetleni_.chyby.end(), hlasky.begin(), hlasky.end());
    }

    Vysvetleni& vysvetleni_;
    ParametryMesice parametry_;
    VstupyMesice vstupy_;
    std::vector<Karta> karty_;
    std::vector<std::string> chyby_;
    StavBehu stav_;
    Zapisovac zapisovac_;
    PracovnikMesice vypocet_;
    PametVet hledane_;
    ZadnyCil ostatni_;
};

}  // namespace

Vysvetleni vysvetli_pracovnika(shell::Session& session, int mesic, int cislo) {
    Vysvetleni vysvetleni;
    vysvetleni.cislo = cislo;
    vysvetleni.mesic = mesic;
    store::Connection& data = session.data();
    vysvetleni.listina_existuje = data.table_exists(store::month_table("Listin", mesic));
    std::vector<PametVeta> ulozene;
    if (vysvetleni.listina_existuje) ulozene = ulozene_vety(data, mesic, cislo);
    Opakovani opakovani(session, vysvetleni, slevy_byly_priznany(ulozene));
    vysvetleni.radky = porovnej(opakovani.proved(), ulozene);
    return vysvetleni;
}

}  // namespace payrun
