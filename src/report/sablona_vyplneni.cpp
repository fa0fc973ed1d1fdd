// Filling of templates: rows into groups, bands and pages.
#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "base/chyba.h"
#include "report/sablona.h"
#include "report/sablona_hodnota.h"
#include "report/sablona_predpis.h"
#include "report/sazba.h"

namespace report {

namespace {

/// What a band is filled from: one row for its columns, a range of rows for its sums.
struct Zdroj {
    std::size_t veta = 0;
    std::size_t od = 0, do_ = 0;
    MistoStrany misto;
};

class Vyplnovani {
  public:
    Vyplnovani(const PredpisSablony& predpis, const store::Rows& vety,
               const std::map<std::string, std::string>& parametry)
        : predpis_(predpis), vety_(vety), parametry_(parametry) {
        najdi_sloupce();
        for (const Skupina& skupina : predpis_.skupiny) {
            if (!skupina.kdyz || plati(*skupina.kdyz, skupina.radek_souboru)) {
                skupiny_.push_back(&skupina);
            }
        }
    }

    Document vypln() {
        Document zaklad;
        for (const Cast& cast : predpis_.nazev) {
            zaklad.nazev += cast.druh == Cast::Druh::text
                                ? cast.hodnota
                                : parametr(cast.hodnota, predpis_.radek_nazvu);
        }
        zaklad.papir = predpis_.papir;
        zaklad.velikost_pisma = predpis_.pismo;
        const std::size_t pocet = vety_.rows.size();
        const auto pasy_strany = [this](const PasSablony& pas) {
            return [this, &pas](const MistoStrany& misto) {
                return pasy(pas, {misto.prvni_veta, 0, 0, misto});
            };
        };
        Sazba sazba(std::move(zaklad), pasy(predpis_.titul, {0, 0, pocet, {}}),
                    pasy_strany(predpis_.zahlavi_strany), pasy_strany(predpis_.pata_strany));
        sazba_ = &sazba;
        skupina(0, 0, pocet);
        if (!predpis_.souhrn.radky.empty()) {
            const std::size_t posledni = pocet > 0 ? pocet - 1 : 0;
            zarad(pasy(predpis_.souhrn, {posledni, 0, pocet, {}}), posledni);
        }
        return sazba.dokonci();
    }

  private:
    [[noreturn]] void chyba(int radek, const std::string& co) const {
        throw base::ChybaDat("Sestava \"" + predpis_.soubor + "\", řádek " + std::to_string(radek) +
                             ": " + co + ".");
    }

    // Columns are looked up once, so that a missing one is told also when there is no row.
    void najdi_sloupce() {
        const auto z_pasu = [this](const PasSablony& pas) {
            for (const auto& radek : pas.radky) {
                for (const Pole& pole : radek.pole) {
                    for (const Cast& cast : pole.casti) {
                        if (cast.druh == Cast::Druh::sloupec || cast.druh == Cast::Druh::soucet) {
                            najdi_sloupec(cast.hodnota, pole.radek_souboru);
                        }
                    }
                }
            }
        };
        for (const PasSablony* pas : {&predpis_.titul, &predpis_.zahlavi_strany, &predpis_.detail,
                                      &predpis_.souhrn, &predpis_.pata_strany}) {
            z_pasu(*pas);
        }
        for (const Skupina& skupina : predpis_.skupiny) {
            najdi_sloupec(skupina.podle, skupina.radek_souboru);
            z_pasu(skupina.zahlavi);
            z_pasu(skupina.pata);
        }
    }

    void najdi_sloupec(const std::string& jmeno, int radek) {
        if (sloupce_.contains(jmeno)) return;
        try {
            sloupce_[jmeno] = static_cast<std::size_t>(vety_.column(jmeno));
        } catch (const base::ChybaDat&) {
            std::string je;
            for (const auto& sloupec : vety_.columns)
                je += (je.empty() ? "" : ", ") + sloupec;
            chyba(radek, "sloupec \"" + jmeno + "\" v datech sestavy není; jsou tam: " + je);
        }
    }

    bool plati(const Podminka& podminka, int radek) const {
        return parametr(podminka.parametr, radek) == podminka.hodnota;
    }

    const std::string& parametr(const std::string& jmeno, int radek) const {
        const auto nalezeny = parametry_.find(jmeno);
        if (nalezeny == parametry_.end()) {
            chyba(radek, "parametr \"" + jmeno + "\" nebyl sestavě předán");
        }
        return nalezeny->second;
    }

    const store::Value& hodnota(std::size_t veta, const std::string& sloupec) const {
        static const store::Value k_prazdna;
        if (veta >= vety_.rows.size()) return k_prazdna;
        return vety_.rows[veta][sloupce_.at(sloupec)];
    }

    /// Rows `od` to `do_` (not included) by the group of this level and those within it.
    void skupina(std::size_t uroven, std::size_t od, std::size_t do_) {
        if (uroven == skupiny_.size()) {
            for (std::size_t veta = od; veta < do_; ++veta)
                detail(veta);
            return;
        }
        const Skupina& skupina = *skupiny_[uroven];
        while (od < do_) {
            std::size_t konec = od + 1;
            while (konec < do_ && hodnota(konec, skupina.podle) == hodnota(od, skupina.podle))
                ++konec;
            if (skupina.nova_strana && od > 0) sazba_->nova_strana();
            pridrz(pasy(skupina.zahlavi, {od, od, konec, {}}));
            pridrzet_ += skupina.pohromade ? 1 : 0;
            this->skupina(uroven + 1, od, konec);
            pridrzet_ -= skupina.pohromade ? 1 : 0;
            auto pata = pasy(skupina.pata, {konec - 1, od, konec, {}});
            if (!pata.empty() || skupina.pohromade) zarad(std::move(pata), konec - 1);
            od = konec;
        }
    }

    void detail(std::size_t veta) {
        auto blok = pasy(predpis_.detail, {veta, 0, 0, {}});
        if (blok.empty()) return;
        if (predpis_.stridat && veta % 2 == 1) {
            for (Pas& pas : blok)
                pas.ozdoba.podbarveni = true;
        }
        zarad(std::move(blok), veta);
    }

    /// Headings of groups wait for what follows them, so that none stays alone at a page's end.
    void pridrz(std::vector<Pas> blok) { std::ranges::move(blok, std::back_inserter(drzene_)); }
    void zarad(std::vector<Pas> blok, std::size_t veta) {
        pridrz(std::move(blok));
        if (pridrzet_ == 0) sazba_->pridej(std::exchange(drzene_, {}), veta);
    }

    std::vector<Pas> pasy(const PasSablony& predpis, const Zdroj& zdroj) const {
        std::vector<Pas> vysledek;
        for (const auto& radek : predpis.radky) {
            Pas& pas = vysledek.emplace_back();
            pas.vyska_mm = radek.vyska_mm;
            pas.ozdoba = radek.ozdoba;
            pas.bunky.reserve(radek.pole.size());
            for (const Pole& pole : radek.pole) {
                pas.bunky.push_back(pole.bunka);
                pas.bunky.back().text = text(pole, zdroj);
            }
        }
        return vysledek;
    }

    std::string text(const Pole& pole, const Zdroj& zdroj) const {
        std::string vysledek;
        for (const Cast& cast : pole.casti)
            vysledek += text(cast, pole, zdroj);
        return vysledek;
    }

    std::string text(const Cast& cast, const Pole& pole, const Zdroj& zdroj) const {
        switch (cast.druh) {
            case Cast::Druh::text:
                return cast.hodnota;
            case Cast::Druh::sloupec:
                return text_hodnoty(hodnota(zdroj.veta, cast.hodnota), pole);
            case Cast::Druh::parametr:
                return parametr(cast.hodnota, pole.radek_souboru);
            case Cast::Druh::soucet:
                return text_castky(soucet(cast.hodnota, zdroj), pole);
            case Cast::Druh::pocet:
                return std::to_string(zdroj.do_ - zdroj.od);
            case Cast::Druh::strana:
                return std::to_string(zdroj.misto.strana);
            case Cast::Druh::stran:
                return std::to_string(zdroj.misto.stran);
        }
        return "";
    }

    base::Castka soucet(const std::string& sloupec, const Zdroj& zdroj) const {
        base::Castka soucet = 0;
        for (std::size_t veta = zdroj.od; veta < zdroj.do_; ++veta)
            soucet += hodnota(veta, sloupec).as_number();
        return soucet;
    }

    const PredpisSablony& predpis_;
    const store::Rows& vety_;
    const std::map<std::string, std::string>& parametry_;
    std::unordered_map<std::string, std::size_t> sloupce_;
    std::vector<const Skupina*> skupiny_;
    Sazba* sazba_ = nullptr;
    std::vector<Pas> drzene_;
    int pridrzet_ = 0;  ///< open groups that are to stay together
};

}  // namespace

Document vypln_sablonu(const Sablona& sablona, const store::Rows& vety,
                       const std::map<std::string, std::string>& parametry) {
    return Vyplnovani(sablona.predpis(), vety, parametry).vypln();
}

}  // namespace report
