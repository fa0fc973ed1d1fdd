// A month's run in a made-up company, as the tests of the pay run start it.
#pragma once

#include <string>

#include "payrun/unit21_vypocet_vyplat.h"
#include "support/zkusebni_firma.h"

namespace zkouska {

/// Makes `HrubeMM` when missing and a new, empty `ListinMM`, and sets the month of the session.
void priprav_mesic(ZkusebniFirma& firma, int mesic);

/// The whole month: sheet, screen, "Zpracuj výplaty". The screen stays open.
void zpracuj(payrun::TForm21& obrazovka);

/// Prepares the month, runs it and returns the lines of the list of errors.
std::vector<std::string> spocti_mesic(ZkusebniFirma& firma, int mesic = 1);

/// Rows of a sheet in the order of writing, a line each: worker, module, column, amount, note.
std::string listina(ZkusebniFirma& firma, const std::string& tabulka = "Listin01");

/// The amount of a worker's row, "" for an empty field and "-" when there is no such row.
std::string hodnota(ZkusebniFirma& firma, int cislo, int modul,
                    const std::string& tabulka = "Listin01");
/// The note of a worker's first row of the module.
std::string poznamka(ZkusebniFirma& firma, int cislo, int modul);

}  // namespace zkouska
