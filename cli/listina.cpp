// `listina`: the pay sheet of a month as tables for reading.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"
#include "cli/texty.h"
#include "cli/vypis_listiny.h"

#include "paysheet/sloupce.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace cli {

namespace {

class Listina final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand("listina", "Vypíše výplatní listinu měsíce.");
        pridej_mesic(*uzel, mesic_);
        pridej_cislo(*uzel, "--pracovnik", cislo_, k_nejvyssi_cislo_pracovnika,
                     "jen jeden pracovník");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        auto& session = kontext.session;
        const auto obdobi = base::mesic_slovy(mesic_, session.rok);
        const auto tabulka = store::month_table("Listin", mesic_);
        if (!session.data().table_exists(tabulka)) {
            throw odmitni("Výplatní listina za  " + obdobi +
                          " neexistuje; vytvoří ji sloveso "
                          "vyplaty.");
        }
        const auto radky = precti(session, "SELECT * FROM " + tabulka,
                                  "ORDER BY Cislo_pracovnika, Modul, Sloupec, Pocitadlo");
        if (radky.rows.empty()) {
            throw odmitni(cislo_ ? "Pracovník " + std::to_string(cislo_) + " v listině není."
                                 : "Výplatní listina za  " + obdobi + " je prázdná.");
        }
        kontext.out << session.radek_firmy << "\nVýplatní listina za  " << obdobi << "\n\n";
        vypis_radky_listiny(radky, kontext.out);
        vypis_soucty(kontext, tabulka);
        return hotovo;
    }

  private:
    /// The rows of the chosen worker, or of all.
    store::Rows precti(shell::Session& session, const std::string& vyber, const std::string& konec,
                       const std::string& podminka = "Pocitadlo > 0") const {
        const std::string kdo = cislo_ ? " AND Cislo_pracovnika = :cislo" : "";
        store::Query q(session.data(), vyber + " WHERE " + podminka + kdo + " " + konec);
        if (cislo_) q.set("cislo", cislo_);
        return store::read_all(q);
    }

    void vypis_soucty(Kontext& kontext, const std::string& tabulka) const {
        kontext.out << "Součty modulů\n";
        Tabulka soucty({{"modul", Strana::vpravo}, {"název"}, {"součet", Strana::vpravo}});
        const auto moduly =
            precti(kontext.session, "SELECT Modul, SUM(Hodnota) AS Soucet FROM " + tabulka,
                   "GROUP BY Modul ORDER BY Modul", "Modul <= 14");
        for (const auto& radek : moduly.rows) {
            const auto modul = static_cast<int>(radek[0].as_integer());
            soucty.radek({std::to_string(modul), paysheet::modul_slovy(modul),
                          citelna_castka(radek[1].as_number())});
        }
        soucty.vypis(kontext.out, 2);
    }

    int mesic_ = 0, cislo_ = 0;
};

}  // namespace

std::unique_ptr<Sloveso> listina() {
    return std::make_unique<Listina>();
}

}  // namespace cli
