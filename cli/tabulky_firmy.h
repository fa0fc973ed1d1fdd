// Finding a company's tables by name, wherever they lie.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/kontext.h"

#include "store/catalogue.h"
#include "store/connection.h"

namespace cli {

/// Number of rows, of those that meet the condition when one is given.
std::int64_t pocet_radku(store::Connection& spojeni, std::string_view tabulka,
                         std::string_view podminka = "");

/// A company's three folders. Looking makes no files; only `spojeni` makes a missing database.
class TabulkyFirmy {
  public:
    explicit TabulkyFirmy(shell::Session& session) : session_(session) {}

    /// The catalogue's entry of a table; ends the verb with near names when there is none.
    const store::CatalogueEntry& najdi(std::string_view tabulka);
    bool existuje(store::Place misto, std::string_view tabulka) const;
    /// Names of the tables of one entry that stand in the company, in Czech order.
    std::vector<std::string> stojici(const store::CatalogueEntry& polozka);
    store::Connection& spojeni(store::Place misto);

  private:
    const std::filesystem::path& slozka(store::Place misto) const;

    shell::Session& session_;
    std::unique_ptr<store::Connection> faktury_;
};

/// "Zorv", "Ucet", "Faktury".
std::string misto_slovy(store::Place misto);

}  // namespace cli
