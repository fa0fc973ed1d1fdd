// `tabulky`: every table that the payroll knows, and which of them the company has.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"
#include "cli/tabulky_firmy.h"

namespace cli {

namespace {

class Tabulky final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        return program.add_subcommand(
            "tabulky", "Vypíše tabulky firmy: kde leží, zda existují, kolik mají řádků.");
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        TabulkyFirmy firma(kontext.session);
        Tabulka tabulka(
            {{"tabulka"}, {"složka"}, {"existuje"}, {"řádků", Strana::vpravo}, {"význam"}});
        for (const auto& polozka : store::catalogue()) {
            const auto misto = misto_slovy(polozka.place);
            const auto stojici = firma.stojici(polozka);
            for (const auto& nazev : stojici) {
                const auto radku = pocet_radku(firma.spojeni(polozka.place), nazev);
                tabulka.radek({nazev, misto, "ano", std::to_string(radku), polozka.meaning});
            }
            if (stojici.empty()) {
                tabulka.radek({nazev_v_seznamu(polozka), misto, "ne", "", polozka.meaning});
            }
        }
        tabulka.vypis(kontext.out);
        return hotovo;
    }

  private:
    static std::string nazev_v_seznamu(const store::CatalogueEntry& polozka) {
        return polozka.definition.name + (polozka.scope == store::Scope::month ? "MM" : "");
    }
};

}  // namespace

std::unique_ptr<Sloveso> tabulky() {
    return std::make_unique<Tabulky>();
}

}  // namespace cli
