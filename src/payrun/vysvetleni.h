// Explains the stored amounts of one worker's month: runs the calculation again with the trace on,
// without writing, and compares with the stored rows.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/stopa.h"
#include "shell/session.h"

namespace payrun {

struct VysvetlenyRadek {
    int modul = 0;
    int sloupec = 0;  ///< 0 for a value row
    std::string co_je_to;
    std::string poznamka;
    std::optional<base::Castka> vypocteno;  ///< nothing: the calculation makes no such row now
    std::optional<base::Castka> ulozeno;    ///< nothing: the sheet holds no such row
    bool souhlasi = false;                  ///< both are there and equal within 0.001
    int krok = -1;                          ///< step of the trace behind the computed amount
};

struct Vysvetleni {
    int cislo = 0;
    std::string jmeno;
    int mesic = 0;
    bool pracovnik_nalezen = false;
    bool listina_existuje = false;
    base::Stopa stopa;
    std::vector<VysvetlenyRadek> radky;  ///< in the order of writing
    std::vector<std::string> chyby;      ///< what the run would put into its list of errors
};

/// A question about reliefs of a part month is answered from the stored rows, never asked.
Vysvetleni vysvetli_pracovnika(shell::Session& session, int mesic, int cislo);

}  // namespace payrun
