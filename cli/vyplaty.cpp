// `vyplaty`: the pay run of a month.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/obrazovka_vyplat.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"

namespace cli {

namespace {

class Vyplaty final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand(
            "vyplaty", "Spočte výplaty měsíce a vytvoří jeho výplatní listinu.");
        pridej_mesic(*uzel, mesic_);
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        bool spocteno = false;
        kontext.obsluha.pri_obrazovce<payrun::TForm21>(
            [&](payrun::TForm21& obrazovka) { spocteno = proved_vypocet(obrazovka, kontext); });
        kontext.obsluha.pri_obrazovce<payrun::TForm66>(
            [&](payrun::TForm66& prohlizeni) { vypis_zaporne(prohlizeni, kontext.out); });
        kontext.hlavni_okno.mesic = mesic_;
        kontext.hlavni_okno.acVypocetVyplatExecute();
        return spocteno ? hotovo : odmitnuto;
    }

  private:
    int mesic_ = 0;
};

}  // namespace

std::unique_ptr<Sloveso> vyplaty() {
    return std::make_unique<Vyplaty>();
}

}  // namespace cli
