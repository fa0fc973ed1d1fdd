// What all screens of fixed items share: which columns may have one, the texts beside an item, its
// deletion, the key filter of its crowns.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/session.h"

namespace workers {

inline constexpr const char* k_pracovnik_neni = "  pracovník není v souboru";
inline constexpr const char* k_neni_modul_pro_fixni =
    "Fixní položky nelze zadávat - není definován modul 5 ani modul 10 ani modul 13.";
/// Refusal of the register's correction, which does without advances.
inline constexpr const char* k_neni_modul_pro_opravu =
    "Fixní položky nelze zadávat - není definován modul 5 ani modul 10.";

inline constexpr const char* k_nezadane_koruny = "Nezadali jste koruny.";

/// Most digits of an item's fields.
inline constexpr int k_cislic_pracovnika = 6, k_cislic_sloupce = 2, k_cislic_korun = 7;

/// True when any of the modules 5, 10 and 13 has a column.
bool je_modul_pro_fixni(const shell::RidiciZorv& ridici);
/// True when module 5 or 10 has a column.
bool je_modul_pro_opravu_fixnich(const shell::RidiciZorv& ridici);

/// Is the column one of module 5, module 10 or the column of module 13?
bool sloupec_fixnich(const shell::RidiciZorv& ridici, int sloupec);
/// Is the column a deduction (module 10), which alone has a bank connection?
bool sloupec_srazek(const shell::RidiciZorv& ridici, int sloupec);
/// "Sloupec musí být v intervalu 7 - 8 nebo 13 - 14 nebo 17." with the configured modules.
std::string veta_o_intervalu(const shell::RidiciZorv& ridici);
/// `Interval_souhlasi` of the forms: true for a column of a fixed item, otherwise shows the
/// sentence.
bool Interval_souhlasi(shell::Session& session, int sloupec);
/// The legend of the permitted columns, lines "Dávka: 7-8" and "Srážka: 13-14".
std::vector<std::string> Napln_listbox_na_form12(const shell::RidiciZorv& ridici);

/// Surname and first name of the worker, k_pracovnik_neni when he has no card.
std::string jmeno_pracovnika(shell::Session& session, std::int64_t cislo);

/// True when `znak` may be typed at the end of `dosud` as the crowns of a column: digits, and a
/// minus in front on a column whose caption holds "---".
bool klavesa_korun(const shell::Session& session, int sloupec, char znak, std::string_view dosud);

/// "Opravdu chcete smazat označenou položku?"; yes deletes the row of `Fixni`. True when deleted.
bool smaz_fixni_polozku(shell::Session& session, std::int64_t pocitadlo);

}  // namespace workers
