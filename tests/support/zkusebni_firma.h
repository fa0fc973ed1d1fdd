// A made-up company in a temporary folder, opened in a session with the scripted operator.
#pragma once

#include <string>
#include <string_view>

#include "base/hodiny.h"
#include "shell/session.h"
#include "support/docasna_slozka.h"
#include "support/skriptovana_obsluha.h"

namespace zkouska {

/// The clock stands at 15 January of the company's year; random numbers count up from 1.
class ZkusebniFirma {
  public:
    /// Makes the company (its name ends in two digits, "FIRMA22"), its accounting minimum, all
    /// long-lived tables and the pay-sheet structure "1" to "18", and opens it.
    explicit ZkusebniFirma(std::string nazev = "FIRMA22");

    DocasnaSlozka slozka;
    SkriptovanaObsluha obsluha;
    base::PevneHodiny hodiny;
    struct Citac final : base::Nahoda {
        int dalsi = 0;
        int pod(int hranice) override { return ++dalsi % hranice; }
    } nahoda;
    shell::Session session;

    store::Connection& data() { return session.data(); }
    /// Adds rows from a CSV text; a month table is made when missing. Errors fail the test.
    void vloz(std::string_view tabulka, std::string_view csv);
    /// The rows of a SELECT as lines of values joined by "|", empty fields as "".
    std::string vypis(std::string_view dotaz);
};

}  // namespace zkouska
