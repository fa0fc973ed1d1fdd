// `import`: rows of a CSV text into a table, all or none.
#include <iterator>
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulky_firmy.h"
#include "cli/texty.h"

#include "base/soubory.h"
#include "menu/import_hrubych.h"
#include "store/transfer.h"

namespace cli {

namespace {

/// Longest CSV text that is read, in bytes.
constexpr std::size_t k_nejdelsi_soubor = std::size_t{1} << 30;

class ImportTabulky final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand(
            "import", "Přidá do tabulky řádky ze souboru CSV, všechny, nebo žádný.");
        uzel->add_option("TABULKA", tabulka_, "název tabulky, třeba Os_karty nebo Hrube01")
            ->required();
        uzel->add_option("SOUBOR", soubor_,
                         "soubor CSV v UTF-8 s názvy polí na prvním řádku; - je vstup");
        uzel->add_flag("--nahradit", nahradit_, "dosavadní řádky tabulky smaže");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        const std::string csv = precti(kontext.in);
        kontext.otevri_firmu();
        TabulkyFirmy firma(kontext.session);
        const auto& polozka = firma.najdi(tabulka_);
        const auto vysledek = zapis(kontext, firma, polozka, csv);
        if (!vysledek.errors.empty()) throw odmitni(spoj(vysledek.errors, "\n"));
        kontext.out << store::definition_of(tabulka_).name << ": zapsáno řádků " << vysledek.rows
                    << ".\n";
        return hotovo;
    }

  private:
    std::string precti(std::istream& in) const {
        if (soubor_ != "-") return base::precti_soubor(soubor_, k_nejdelsi_soubor);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

    store::ImportResult zapis(Kontext& kontext, TabulkyFirmy& firma,
                              const store::CatalogueEntry& polozka, const std::string& csv) const {
        const std::string zdroj = soubor_ == "-" ? "vstup" : soubor_;
        try {
            if (const auto mesic = menu::mesic_hrubych(tabulka_)) {
                const auto vysledek =
                    menu::import_hrubych(kontext.session, *mesic, csv, zdroj, nahradit_);
                if (!vysledek) throw odmitni();
                return *vysledek;
            }
            return store::import_csv(firma.spojeni(polozka.place), tabulka_, csv, zdroj, nahradit_);
        } catch (const store::StoreError&) {
            throw;
        } catch (const base::ChybaDat& chyba) {
            // The text itself is no CSV: the operator's fault, not the data's.
            throw odmitni(chyba.what());
        }
    }

    std::string tabulka_, soubor_ = "-";
    bool nahradit_ = false;
};

}  // namespace

std::unique_ptr<Sloveso> import_tabulky() {
    return std::make_unique<ImportTabulky>();
}

}  // namespace cli
