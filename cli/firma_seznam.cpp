// `firma seznam`: companies under the data root.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"

namespace cli {

namespace {

class FirmaSeznam final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        return skupina(program, "firma", k_popis_firem)
            .add_subcommand("seznam", "Vypíše firmy v kořenu dat.");
    }

    int proved(Kontext& kontext) override {
        for (const auto& firma : shell::seznam_firem(kontext.koren_dat()))
            kontext.out << firma << '\n';
        return hotovo;
    }
};

}  // namespace

std::unique_ptr<Sloveso> firma_seznam() {
    return std::make_unique<FirmaSeznam>();
}

}  // namespace cli
