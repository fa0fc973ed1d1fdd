// `export`: a whole table as CSV or JSON.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulky_firmy.h"

#include "store/transfer.h"

namespace cli {

namespace {

class ExportTabulky final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand("export", "Vypíše celou tabulku jako CSV nebo JSON.");
        uzel->add_option("TABULKA", tabulka_, "název tabulky")->required();
        pridej_format(*uzel, format_, {"csv", "json"}, "tvar výpisu (jinak csv)");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        TabulkyFirmy firma(kontext.session);
        const auto misto = firma.najdi(tabulka_).place;
        if (!firma.existuje(misto, tabulka_)) {
            throw odmitni("Tabulka \"" + tabulka_ + "\" v této firmě ještě není.");
        }
        auto& spojeni = firma.spojeni(misto);
        kontext.out << (format_ == "json" ? store::export_json(spojeni, tabulka_)
                                          : store::export_csv(spojeni, tabulka_));
        return hotovo;
    }

  private:
    std::string tabulka_, format_ = "csv";
};

}  // namespace

std::unique_ptr<Sloveso> export_tabulky() {
    return std::make_unique<ExportTabulky>();
}

}  // namespace cli
