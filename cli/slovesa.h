// All verbs, in the order in which the help lists them.
#pragma once

#include <memory>
#include <vector>

#include "cli/sloveso.h"

namespace cli {

std::unique_ptr<Sloveso> firma_zaloz();
std::unique_ptr<Sloveso> firma_seznam();
std::unique_ptr<Sloveso> firma_stav();
std::unique_ptr<Sloveso> tabulky();
std::unique_ptr<Sloveso> import_tabulky();
std::unique_ptr<Sloveso> export_tabulky();
std::unique_ptr<Sloveso> sql();
std::unique_ptr<Sloveso> nastaveni();
std::unique_ptr<Sloveso> ridici();
std::unique_ptr<Sloveso> kalendar_seznam();
std::unique_ptr<Sloveso> kalendar_zakladni();
std::unique_ptr<Sloveso> pracovnici();
std::unique_ptr<Sloveso> pracovnik();
std::unique_ptr<Sloveso> fixni();
std::unique_ptr<Sloveso> deti();
std::unique_ptr<Sloveso> hrube_import();
std::unique_ptr<Sloveso> nahrada();
std::unique_ptr<Sloveso> vyplaty();
std::unique_ptr<Sloveso> listina();
std::unique_ptr<Sloveso> proc();

inline std::vector<std::unique_ptr<Sloveso>> vsechna_slovesa() {
    std::vector<std::unique_ptr<Sloveso>> slovesa;
    for (const auto vyrob : {firma_zaloz,       firma_seznam, firma_stav, tabulky, import_tabulky,
                             export_tabulky,    sql,          nastaveni,  ridici,  kalendar_seznam,
                             kalendar_zakladni, pracovnici,   pracovnik,  fixni,   deti,
                             hrube_import,      nahrada,      vyplaty,    listina, proc}) {
        slovesa.push_back(vyrob());
    }
    return slovesa;
}

}  // namespace cli
