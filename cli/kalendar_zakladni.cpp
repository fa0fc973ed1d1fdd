// `kalendar zakladni`: adds the two basic work calendars of the year.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"

#include "wages/kalendar.h"

namespace cli {

namespace {

class KalendarZakladni final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        return skupina(program, "kalendar", "Pracovní kalendáře.")
            .add_subcommand("zakladni", "Přidá základní kalendáře roku (8:00 a 7:30 denně).");
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        wages::acPridatZakladniExecute(kontext.session);
        kontext.out << "Základní kalendáře roku " << kontext.session.rok << " jsou přidané.\n";
        return hotovo;
    }
};

}  // namespace

std::unique_ptr<Sloveso> kalendar_zakladni() {
    return std::make_unique<KalendarZakladni>();
}

}  // namespace cli
