// `kalendar seznam`: lists the work calendars.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"

#include "wages/unit_rpd.h"

namespace cli {

namespace {

class KalendarSeznam final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        return skupina(program, "kalendar", "Pracovní kalendáře.")
            .add_subcommand("seznam", "Vypíše pracovní kalendáře a jejich roční fondy.");
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        Tabulka tabulka({{"id", Strana::vpravo},
                         {"rok", Strana::vpravo},
                         {"typ"},
                         {"název"},
                         {"fond hodin", Strana::vpravo}});
        for (const store::Row& veta : wages::seznam_kalendaru(kontext.session).rows) {
            std::vector<std::string> bunky;
            for (const store::Value& hodnota : veta)
                bunky.push_back(hodnota.as_text());
            tabulka.radek(std::move(bunky));
        }
        tabulka.vypis(kontext.out);
        return hotovo;
    }
};

}  // namespace

std::unique_ptr<Sloveso> kalendar_seznam() {
    return std::make_unique<KalendarSeznam>();
}

}  // namespace cli
