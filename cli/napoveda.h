// Czech help and Czech messages about wrong arguments.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace cli {

/// Help in Czech, its columns aligned by characters.
class CeskaNapoveda final : public CLI::Formatter {
  public:
    CeskaNapoveda();
    std::string make_option(const CLI::Option* volba, bool pozicni) const override;
    std::string make_option_opts(const CLI::Option* volba) const override;
    std::string make_subcommand(const CLI::App* sloveso) const override;
};

/// What was wrong with the arguments, as a sentence.
std::string chyba_argumentu(const CLI::App& program, const CLI::ParseError& chyba);

}  // namespace cli
