#include "payrun/vstupy_mesice.h"

#include <algorithm>

#include "paysheet/sloupce.h"
#include "store/catalogue.h"
#include "store/query.h"
#include "workers/pojistovny.h"

namespace payrun {
namespace {

int cele(const store::Query& dotaz, int sloupec) {
    return static_cast<int>(dotaz.integer(sloupec));
}
Castka castka(const store::Query& dotaz, int sloupec) {
    return z_ulozeneho(dotaz.number(sloupec));
}

/// The group of a column in a list kept in ascending order; made when missing.
template <typename Skupina>
Skupina& skupina_sloupce(std::vector<Skupina>& skupiny, int sloupec) {
    const auto it =
        std::lower_bound(skupiny.begin(), skupiny.end(), sloupec,
                         [](const Skupina& s, int hledany) { return s.sloupec < hledany; });
    if (it != skupiny.end() && it->sloupec == sloupec) return *it;
    Skupina nova;
    nova.sloupec = sloupec;
    return *skupiny.insert(it, nova);
}

}  // namespace

VstupyMesice::VstupyMesice(shell::Session& session, int mesic, int posledni_mesic_zakladu)
    : session_(session), mesic_(mesic), pojistovny_(workers::Nacti_pojistovny(session)) {
    nacti_hrube();
    nacti_fixni();
    nacti_deti();
    nacti_blok();
    nacti_zaklady(posledni_mesic_zakladu);
}

void VstupyMesice::nacti_hrube() {
    store::Query q(session_.data(),
                   "SELECT Cislo_pracovnika, Modul, Sloupec, Pocitadlo, Dny_od, Dny_neod, Hod_od,"
                   " Hod_neod, Hod_vedl, Kc1, Kc_cel, Sloupec_slovy, Text FROM " +
                       store::month_table("Hrube", mesic_) + " ORDER BY Pocitadlo");
    for (q.open(); !q.eof(); q.next()) {
        HrubyRadek r;
        r.cislo = cele(q, 0);
        r.modul = cele(q, 1);
        r.sloupec = cele(q, 2);
        r.pocitadlo = q.integer(3);
        r.dny_od = castka(q, 4);
        r.dny_neod = castka(q, 5);
        r.hod_od = castka(q, 6);
        r.hod_neod = castka(q, 7);
        r.hod_vedl = castka(q, 8);
        r.kc1 = castka(q, 9);
        r.kc_cel = castka(q, 10);
        if (r.modul == 4 || r.modul == 5) {
            r.sloupec_slovy = q.text_view(11);
            r.text = q.text_view(12);
        }
        hrube_.pridej(std::move(r));
    }
    hrube_.serad();
}

void VstupyMesice::nacti_fixni() {
    store::Query q(
        session_.data(),
        "SELECT Cislo_pracovnika, Sloupec, Pocitadlo, Kcs FROM Fixni ORDER BY Pocitadlo");
    for (q.open(); !q.eof(); q.next()) {
        // An item without a column lies in no range of columns.
        if (q.is_empty(1)) continue;
        fixni_.pridej({cele(q, 0), cele(q, 1), q.integer(2), cele(q, 3)});
    }
    fixni_.serad();
}

void VstupyMesice::nacti_deti() {
    store::Query q(session_.data(),
                   "SELECT Cislo_pracovnika, Prijmeni, Jmeno, Bydliste, Rodne_cislo,"
                   " Odpocitatelna_dan, Pocitadlo FROM Deti"
                   " ORDER BY Cislo_pracovnika, Rodne_cislo, Pocitadlo");
    for (q.open(); !q.eof(); q.next()) {
        deti_.pridej({cele(q, 0), q.text(1), q.text(2), q.text(3), q.text(4), cele(q, 5)});
    }
    deti_.serad();
}

void VstupyMesice::nacti_blok() {
    const std::string tabulka = store::month_table("Blok", mesic_);
    if (!session_.data().table_exists(tabulka)) return;
    store::Query q(session_.data(),
                   "SELECT Cislo_pracovnika, socialni_zaklad_abs, socialni_zaklad_dif,"
                   " socialni_abs, socialni_dif, zdravotni_zaklad_abs, zdravotni_zaklad_dif,"
                   " zdravotni_abs, zdravotni_dif, dan_zaklad_abs, dan_zaklad_dif, dan_abs,"
                   " dan_dif, Pocitadlo FROM " +
                       tabulka + " ORDER BY Pocitadlo");
    const auto dvojice = [&q](int od) {
        return BlokovanaHodnota{q.integer(od), q.integer(od + 1)};
    };
    for (q.open(); !q.eof(); q.next()) {
        // The first row of a worker wins.
        blok_.try_emplace(cele(q, 0), BlokovaneHodnoty{dvojice(1), dvojice(3), dvojice(5),
                                                       dvojice(7), dvojice(9), dvojice(11)});
    }
}

void VstupyMesice::nacti_zaklady(int posledni_mesic) {
    for (int m = 1; m <= posledni_mesic; ++m) {
        const std::string tabulka = store::month_table("Listin", m);
        if (!session_.data().table_exists(tabulka)) continue;
        store::Query q(session_.data(),
                       "SELECT Cislo_pracovnika, Modul, SUM(Hodnota) AS soucet_zakladu FROM " +
                           tabulka +
                           " WHERE (Modul = 61) OR (Modul = 62)"
                           " GROUP BY Cislo_pracovnika, Modul");
        for (q.open(); !q.eof(); q.next()) {
            ZakladyRoku& zaklady = zaklady_[cele(q, 0)];
            (q.integer(1) == 61 ? zaklady.socialni : zaklady.zdravotni) += castka(q, 2);
        }
    }
}

const std::vector<HrubaSkupina>& VstupyMesice::hrube_podle_sloupcu(int cislo, int modul) {
    hrube_skupiny_.clear();
    for (const HrubyRadek& r : hrube(cislo)) {
        if (r.modul != modul) continue;
        HrubaSkupina& s = skupina_sloupce(hrube_skupiny_, r.sloupec);
        s.dny_od += r.dny_od;
        s.dny_neod += r.dny_neod;
        s.hod_od += r.hod_od;
        s.hod_neod += r.hod_neod;
        s.hod_vedl += r.hod_vedl;
        s.kc1 += r.kc1;
        s.kc_cel += r.kc_cel;
    }
    for (HrubaSkupina& s : hrube_skupiny_) {
        for (Castka* soucet :
             {&s.dny_od, &s.dny_neod, &s.hod_od, &s.hod_neod, &s.hod_vedl, &s.kc1, &s.kc_cel}) {
            *soucet = bez_sumu(*soucet);
        }
    }
    return hrube_skupiny_;
}

const std::vector<FixniSkupina>& VstupyMesice::fixni_podle_sloupcu(int cislo, int od, int do_) {
    fixni_skupiny_.clear();
    for (const FixniRadek& r : fixni(cislo)) {
        if (r.sloupec < od || r.sloupec > do_) continue;
        skupina_sloupce(fixni_skupiny_, r.sloupec).kcs += r.kcs;
    }
    return fixni_skupiny_;
}

const BlokovaneHodnoty& VstupyMesice::blokovane(int cislo) const {
    static const BlokovaneHodnoty zadne;
    const auto it = blok_.find(cislo);
    return it == blok_.end() ? zadne : it->second;
}

const wages::RokKalendare* VstupyMesice::kalendar(int id_rpd) {
    auto it = kalendare_.find(id_rpd);
    if (it == kalendare_.end()) {
        it =
            kalendare_.emplace(id_rpd, wages::nacti_kalendar(session_, id_rpd, session_.rok)).first;
    }
    return it->second ? &*it->second : nullptr;
}

const std::string& VstupyMesice::sloupec_slovy(int sloupec) {
    auto it = sloupce_.find(sloupec);
    if (it == sloupce_.end()) {
        it = sloupce_.emplace(sloupec, paysheet::sloupec_slovy(session_, sloupec)).first;
    }
    return it->second;
}

const std::string& VstupyMesice::jmeno_pojistovny(int cislo) {
    auto it = jmena_pojistoven_.find(cislo);
    if (it == jmena_pojistoven_.end()) {
        it = jmena_pojistoven_.emplace(cislo, workers::Jmeno_pojistovny(pojistovny_, cislo)).first;
    }
    return it->second;
}

}  // namespace payrun
