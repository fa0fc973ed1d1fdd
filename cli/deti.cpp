// `deti`: children claimed for the tax benefit, month by month.
#include <CLI/CLI.hpp>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/slovesa.h"

#include "workers/unit100_seznam_deti.h"

namespace cli {

namespace {

class Deti final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        return program.add_subcommand("deti",
                                      "Vypíše děti uplatňované pro daňové zvýhodnění po měsících.");
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        workers::tisk_deti(kontext.session);
        return hotovo;
    }
};

}  // namespace

std::unique_ptr<Sloveso> deti() {
    return std::make_unique<Deti>();
}

}  // namespace cli
