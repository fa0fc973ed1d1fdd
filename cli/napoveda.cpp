#include "cli/napoveda.h"

#include "cli/texty.h"

#include "base/text.h"

namespace cli {

namespace {

constexpr std::size_t k_sirka_nazvu = 30;

std::string radek_napovedy(const std::string& nazev, const std::string& popis) {
    const std::string levy = "  " + nazev;
    if (base::pocet_znaku(levy) >= k_sirka_nazvu) {
        return levy + "\n" + base::mezery(static_cast<int>(k_sirka_nazvu)) + popis + "\n";
    }
    return base::na_sirku(levy, k_sirka_nazvu) + popis + "\n";
}

}  // namespace

CeskaNapoveda::CeskaNapoveda() {
    label("Usage", "Použití");
    label("OPTIONS", "VOLBY");
    label("SUBCOMMAND", "SLOVESO");
    label("Positionals", "Argumenty");
}

std::string CeskaNapoveda::make_option(const CLI::Option* volba, bool pozicni) const {
    return radek_napovedy(make_option_name(volba, pozicni) + make_option_opts(volba),
                          volba->get_description());
}

std::string CeskaNapoveda::make_option_opts(const CLI::Option* volba) const {
    const std::string typ =
        volba->get_positional() || volba->get_type_size() == 0 ? "" : " " + volba->get_type_name();
    return typ + (volba->get_required() ? " (povinné)" : "");
}

std::string CeskaNapoveda::make_subcommand(const CLI::App* sloveso) const {
    return radek_napovedy(sloveso->get_name(), sloveso->get_description());
}

namespace {

/// The arguments that nothing took, and the verbs that may have been meant.
std::string neznamy_argument(const CLI::App& program) {
    const auto zbyle = program.remaining(true);
    std::vector<std::string> slovesa;
    for (const auto* sloveso : program.get_subcommands({}))
        slovesa.push_back(sloveso->get_name());
    return "Neznámý nebo nadbytečný argument: " + spoj(zbyle, " ") + "." +
           veta_o_podobnych(zbyle.front(), slovesa);
}

}  // namespace

std::string chyba_argumentu(const CLI::App& program, const CLI::ParseError& chyba) {
    std::string text = chyba.what();
    const bool chybi_sloveso = text.starts_with("A subcommand");
    if (dynamic_cast<const CLI::ExtrasError*>(&chyba) ||
        (chybi_sloveso && program.remaining_size(true) > 0)) {
        return neznamy_argument(program);
    }
    if (chybi_sloveso) return "Chybí sloveso.";
    if (dynamic_cast<const CLI::RequiredError*>(&chyba)) {
        return "Chybí povinný argument " + text.substr(0, text.find(" is required")) + ".";
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&chyba)) {
        return "Volba " + text.substr(0, text.find(':')) + " potřebuje jednu hodnotu.";
    }
    return text;
}

}  // namespace cli
