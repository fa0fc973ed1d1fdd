// `hrube import`: gross items of a file, checked as entry by hand checks them.
#include <iterator>
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/texty.h"

#include "base/soubory.h"
#include "menu/import_hrubych.h"

namespace cli {

namespace {

/// Longest CSV text that is read, in bytes.
constexpr std::size_t k_nejdelsi_soubor = std::size_t{1} << 27;

class HrubeImport final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = skupina(program, "hrube", "Hrubé mzdy měsíce.")
                         .add_subcommand("import",
                                         "Zkontroluje položky ze souboru jako při ručním zadání a "
                                         "zapíše všechny, nebo žádnou.");
        pridej_mesic(*uzel, mesic_);
        uzel->add_option("SOUBOR", soubor_,
                         "soubor CSV: Cislo_pracovnika, Sloupec, Dny, Hodiny, Datum, Stredisko, "
                         "Vykon, Stroj, Hodnota_1 až Hodnota_4, Text; - je vstup");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        const bool vstup = soubor_ == "-";
        const std::string csv = vstup ? std::string(std::istreambuf_iterator<char>(kontext.in), {})
                                      : base::precti_soubor(soubor_, k_nejdelsi_soubor);
        kontext.otevri_firmu();
        const auto davka =
            menu::import_polozek(kontext.session, mesic_, csv, vstup ? "vstup" : soubor_);
        if (!davka) throw odmitni();
        if (!davka->chyby.empty()) throw odmitni(spoj(davka->chyby, "\n"));
        kontext.out << "Zapsáno položek " << davka->radky.size() << ", celkem "
                    << citelna_castka(davka->celkem) << " Kč.\n";
        return hotovo;
    }

  private:
    int mesic_ = 0;
    std::string soubor_ = "-";
};

}  // namespace

std::unique_ptr<Sloveso> hrube_import() {
    return std::make_unique<HrubeImport>();
}

}  // namespace cli
