// Layouts of the month tables, and of the work tables with fixed names.
#include "store/catalogue_data.h"

namespace store {

namespace {

constexpr auto gross_wages = R"(
Pocitadlo autoincrement
Mesic int16
Cislo_pracovnika int32
Prijmeni text(30)
Jmeno text(20)
Modul int16
Sloupec int16
Sloupec_slovy text(30)
Dny_od number
Dny_neod number
Hod_od number
Hod_neod number
Hod_vedl number
Datum text(6)
Stredisko int16
Vykon int16
Stroj int32
Kc1..4 number
Kc_cel number
Text text(60)
Volit_1..10 int32)";

constexpr auto pay_sheet = R"(
Pocitadlo autoincrement
Mesic int16
Cislo_pracovnika int32
Prijmeni text(30)
Jmeno text(20)
Modul int16
Sloupec int16
Co_je_to text(30)
Hodnota number
Poznamka text(100)
Volit_1..10 int32
Mod_sl int16)";

constexpr auto blocked_values = R"(
Pocitadlo autoincrement
Cislo_pracovnika int32
socialni_zaklad_abs int32
socialni_zaklad_dif int32
socialni_abs int32
socialni_dif int32
zdravotni_zaklad_abs int32
zdravotni_zaklad_dif int32
zdravotni_abs int32
zdravotni_dif int32
dan_zaklad_abs int32
dan_zaklad_dif int32
dan_abs int32
dan_dif int32)";

constexpr auto leave_overview = R"(
POCITADLO autoincrement
CISLO int32
PRIJMENI text(30)
JMENO text(20)
D1 number
H1 number
D2 number
H2 number
D3 number
H3 number
D4 number
H4 number
D5 number
H5 number
D6 number
H6 number
D7 number
H7 number
D8 number
H8 number
D9 number
H9 number
D10 number
H10 number
D11 number
H11 number
D12 number
H12 number
NAROK_D number
NAROK_H number
CERPANO_D number
CERPANO_H number
ZBYVA_D number
ZBYVA_H number)";

constexpr TableText tables[] = {
    {"Hrube", Place::zorv, Scope::month, "zaloz_hrube_zorv", "Hrubé mzdy měsíce", gross_wages, ""},
    {"Listin", Place::zorv, Scope::month, "zaloz_vyplatni_listinu", "Výplatní listina měsíce",
     pay_sheet, ""},
    {"Blok", Place::zorv, Scope::month, "zaloz_soubor_pro_blokovani", "Blokované hodnoty měsíce",
     blocked_values, ""},
    {"Zaporna", Place::zorv, Scope::work, "zaloz_vyplatni_listinu",
     "Výplatní listina se zápornou výplatou", pay_sheet, ""},
    {"TMP", Place::zorv, Scope::work, "TForm192", "Přehled čerpání dovolené", leave_overview,
     "primary BY:POCITADLO POCITADLO\nBY_CISLO CISLO;POCITADLO\n"
     "By_PRIJMENI PRIJMENI;JMENO;POCITADLO"},
};

}  // namespace

std::span<const TableText> month_tables() {
    return tables;
}

}  // namespace store
