#include "cli/parametry.h"

#include <algorithm>

#include "cli/texty.h"

#include "base/text.h"

namespace cli {

namespace {

/// The number of a text of digits alone within the bounds; otherwise 0.
int cislo_v_mezich(const std::string& text, int nejvyse, std::size_t nejvyse_cislic) {
    const bool cislice = !text.empty() && text.size() <= nejvyse_cislic &&
                         text.find_first_not_of("0123456789") == std::string::npos;
    const int cislo = cislice ? base::je_cele_cislo(text) : 0;
    return cislo <= nejvyse ? cislo : 0;
}

}  // namespace

CLI::App& skupina(CLI::App& program, const std::string& nazev, const std::string& popis) {
    for (auto* hotova : program.get_subcommands({})) {
        if (hotova->get_name() == nazev) return *hotova;
    }
    auto* nova = program.add_subcommand(nazev, popis);
    nova->require_subcommand(1);
    return *nova;
}

void pridej_mesic(CLI::App& sloveso, int& mesic) {
    const auto nacti = [&mesic](const std::string& text) {
        mesic = cislo_v_mezich(text, 12, 2);
        if (mesic == 0) {
            throw CLI::ValidationError("MESIC", "čekám měsíc 1 až 12, zadáno \"" + text + "\"");
        }
    };
    sloveso.add_option_function<std::string>("MESIC", nacti, "měsíc 1 až 12")->required();
}

CLI::Option* pridej_cislo(CLI::App& sloveso, const std::string& nazev, int& cil, int nejvyse,
                          const std::string& popis) {
    const auto nacti = [&cil, nazev, nejvyse](const std::string& text) {
        cil = cislo_v_mezich(text, nejvyse, 6);
        if (cil == 0) {
            throw CLI::ValidationError(
                nazev, "čekám číslo 1 až " + std::to_string(nejvyse) + ", zadáno \"" + text + "\"");
        }
    };
    return sloveso.add_option_function<std::string>(nazev, nacti, popis)->type_name("N");
}

void pridej_format(CLI::App& sloveso, std::string& format, const std::vector<std::string>& tvary,
                   const std::string& popis) {
    const auto nacti = [&format, tvary](const std::string& text) {
        format = base::malymi(text);
        if (std::find(tvary.begin(), tvary.end(), format) == tvary.end()) {
            throw CLI::ValidationError(
                "--format", "čekám " + spoj(tvary, " nebo ") + ", zadáno \"" + text + "\"");
        }
    };
    sloveso.add_option_function<std::string>("--format", nacti, popis)->type_name(spoj(tvary, "|"));
}

}  // namespace cli
