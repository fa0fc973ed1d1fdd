#include "workers/unit13_fixni_pracovnika.h"

namespace workers {

TForm13::TForm13(shell::Session& session, std::int64_t pocitadlo, int cislo_pracovnika)
    : PolozkaFixnich(session, pocitadlo, cislo_pracovnika) {
    cislo_povoleno = false;
}

}  // namespace workers
