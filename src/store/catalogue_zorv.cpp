// Layouts of the payroll's own tables of a year.
#include "store/catalogue_data.h"

namespace store {

namespace {

constexpr auto attendance_days = R"(
POCITADLO autoincrement
CISLO_PRACOVNIKA int32
MESIC int16
DEN int16
FOND number
ZRATKA text(10)
POPIS text(100)
ODPRAC number
NEODPRAC number)";

constexpr auto columns = R"(
Pocitadlo autoincrement
Modul int16
Sloupec int16
text text(30)
Jake_dny int16
Jake_hodiny int16
Datum boolean
Stredisko boolean
Vykon boolean
Stroj boolean
nadpis_1 text(15)
predrazeno_1 int16
Min_1 int32
Max_1 int32
Konstanta_1 number
nadpis_2 text(15)
predrazeno_2 int16
Min_2 int32
Max_2 int32
Konstanta_2 number
nadpis_3 text(15)
predrazeno_3 int16
Min_3 int32
Max_3 int32
Konstanta_3 number
nadpis_4 text(15)
predrazeno_4 int16
Min_4 int32
Max_4 int32
Konstanta_4 number
var_vyp int16)";

constexpr auto cards = R"(
Pocitadlo autoincrement
Cislo int32
Cislo_min_rok int32
Prijmeni text(30)
Prijmeni_puvodni text(30)
Jmeno text(20)
Titul text(15)
Ulice text(30)
Bydliste text(30)
PSC text(6)
Rodne_cislo text(13)
Dat_nar_text text(10)
Dat_nar_cislo int32
Posta text(15)
Misto_narozeni text(50)
Zam_od text(10)
Zam_do text(10)
Clenstvi_OS boolean
Cely_plat_sporit int16
Sazba_OT number
Prum_nemoc_0..12 number
Jake_socialni int16
Jake_zdravotni int16
Jaka_dan int16
Kdo_plati_dan int32
Zamestnanec boolean
Duchodce boolean
Student boolean
tpd number
Staly_plat int32
Os_oh_1..5 int32
Stredisko int16
Vykon int16
Dovolena_nevycerpano number
Dovolena_narok number
Vyplatni_misto int16
Osobni_ucet int16
Cislo_zdrav_poj int16
Cislo_penz_fondu int16
penz_fond_podnik_sazba number
penz_fond_podnik_smlouva number
Invalidita int16
Odp_poplatnik int32
Odp_invalidita int32
Odp_ostatni int32
Osamela_osoba boolean
Volit_1..10 int32
Text_ml_1..12 text(50)
Udaj_pro_ISP text(80)
CSSZ101 text(2)
CSSZ102..103 text(1)
CSSZ104 int16
CSSZ105 text(2)
CSSZ106 text(1)
CSSZ107 text(2)
CSSZ108..110 number
CSSZ111 text(1)
CSSZ112 text(6)
CSSZ113 text(100)
CSSZ114 text(6)
CSSZ121..122 text(48)
CSSZ123 text(8)
CSSZ124 text(5)
CSSZ131 text(100)
CSSZ132..133 text(48)
CSSZ134 text(8)
CSSZ135 text(11)
CSSZ136 text(2)
CSSZ137 text(25)
Podepsal_prohlaseni boolean
Rocni_zuctovani boolean
PdovD4min number
PdovH4min number
PdovD1akt number
PdovD2akt number
PdovD3akt number
PdovD4akt number
PdovH1akt number
PdovH2akt number
PdovH3akt number
PdovH4akt number
Odp_manzelka int32
Prum_dov_den number
Prum_dov_hod number
Benefit1..13 number
Id_rpd int32
Id_rpd_min int32
Vzdy_superhruba boolean
KratitPlat boolean
Splnuje_slevy boolean
Cssz_druh_cinnosti text(1)
Zam_maleho_rozsahu boolean
Cnp_specifikace text(1)
Cssz_insp text(100)
Cssz_inso text(100)
AA0750 text(20)
AA0085 text(20)
AA0568 text(20)
AA1598 text(20)
AA1597 text(20)
AA1596 text(20)
AA1595 text(20)
AA1587 text(20)
AA1586 text(20)
AA0745 text(20)
AA1591..1594 text(20)
AA0749 text(20)
AA0603 text(20)
AA0744 text(20)
PROHLASENI_MESICE text(26)
NEREZIDENT boolean
DOVOLENA_NEVYCERPANO_HOD number)";

constexpr auto children = R"(
Pocitadlo autoincrement
Cislo_pracovnika int32
Prijmeni text(30)
Jmeno text(20)
Bydliste text(30)
Poradi int16
Datum_narozeni date
Rodne_cislo text(13)
Odpocitatelna_dan int16)";

constexpr auto fixed_items = R"(
Pocitadlo autoincrement
Cislo_pracovnika int32
Sloupec int16
Kcs int32
Ucet text(20)
Kod_banky int16
Variabilni text(10)
Konstantni int16
Specificky text(10))";

constexpr auto insurers = R"(
Pocitadlo autoincrement
Cislo int16
Nazev text(30)
Ucet text(20)
Kod_banky int16
Variabilni text(10)
Konstantni int16
Specificky text(10)
Kod_zp text(3))";

constexpr auto machines = R"(
Pocitadlo autoincrement
Stroj int32
Su int16
Au int16
St int16
Vykon int16
Sazba number)";

constexpr auto rules_of_gross_wages = R"(
Pocitadlo autoincrement
Sloupec int16
U1z int16
U2z int16
U3z int16
U4z int16
U1c int16
U2c int16
U3c int16
U4c int16)";

constexpr auto rules_of_other_columns = R"(
Pocitadlo autoincrement
Sloupec int16
U1..8 int16)";

constexpr auto external_input = R"(
Pocitadlo autoincrement
Cislo_prace int32
Sazba number
Text text(40))";

constexpr auto compensations = R"(
Pocitadlo autoincrement
Vytvoreno timestamp
Zmeneno timestamp
Cislo_pracovnika int32
Id_hrube int32
Mesic int16
Typ_nahrady int16
Typ_obdobi int16
Cislo_dokladu text(10)
Trvani_od date
Trvani_do date
Dnu_kalendarnich number
Dnu_pracovnich number
Prum_hod_vydelek number
Red_hod_vydelek number
Fond_A text(5)
Fond_B text(5)
Fond_C text(5)
Hod_nahrada_A number
Hod_nahrada_B number
Nahrada_A number
Nahrada_B number
Celkova_nahrada number
Vyloucene_dny int16)";

constexpr auto calendars = R"(
Pocitadlo autoincrement
Vytvoreno timestamp
Zmeneno timestamp
Rok int32
Typ int16
Nazev text(30)
Fond1..12 text(186))";

constexpr auto submissions = R"(
Pocitadlo autoincrement
Cislo_pracovnika int32
Soubor text(100)
Druh_podani text(10)
Typ_podani int16
Odeslano timestamp
Platnost_ke_dni date)";

constexpr auto attendance_months = R"(
Pocitadlo autoincrement
Cislo_pracovnika int32
Mesic int16
Hod1..31 number
Typ1..31 text(1)
Poznamka text(255)
Suma_hod number
Suma_odprac int32
Suma_neodprac int32)";

constexpr auto annual_corrections = R"(
pocitadlo_fk int32
korekce_1..33 int32)";

constexpr auto old_annual_corrections = R"(
Pocitadlo autoincrement
Cislo_pracovnika int32
Dodatecny_prijem int32
Pojistne int32
Zaloha_na_dan int32
text1 text(20)
Odpoc_1 int32
text2 text(20)
Odpoc_2 int32
text3 text(20)
Odpoc_3 int32)";

constexpr auto insurance_discounts = R"(
Pocitadlo autoincrement
Cislo_pracovnika int32
Mesic int16
Sleva number)";

constexpr auto insurer_notices = R"(
Kod text(1)
Cislo_pojistence text(13)
Jmeno text(70)
Bydliste text(70)
Datum_zmeny text(10))";

constexpr TableText tables[] = {
    {"Doch", Place::zorv, Scope::year_empty, "zaloz_soubory", "Dny docházky", attendance_days,
     "primary Index1 POCITADLO\nexact By_Tr1 CISLO_PRACOVNIKA;MESIC;POCITADLO"},
    {"Ridici", Place::zorv, Scope::year, "zaloz_ridici_databazi", "Sloupce výplatní listiny",
     columns, "primary Index1 Pocitadlo\nBy_tr1 Modul;Sloupec;Pocitadlo"},
    {"Os_karty", Place::zorv, Scope::year, "zaloz_kartoteku", "Osobní karty pracovníků", cards, ""},
    {"Deti", Place::zorv, Scope::year, "zaloz_deti", "Děti pro daňové zvýhodnění", children,
     "primary Index1 Pocitadlo\nBy_Tr1 Cislo_pracovnika;Rodne_cislo;Pocitadlo"},
    {"Fixni", Place::zorv, Scope::year, "zaloz_fixni", "Fixní položky pracovníků", fixed_items,
     "primary Index1 Pocitadlo\nBy_Cislo Cislo_pracovnika;Sloupec;Pocitadlo\n"
     "By_Sloupec Sloupec;Cislo_pracovnika;Pocitadlo"},
    {"Zdr_poj", Place::zorv, Scope::year, "zaloz_zdravotni_pojistovny",
     "Zdravotní pojišťovny a penzijní fondy", insurers,
     "primary Index1 Pocitadlo\nBy_Tr1 Cislo;Pocitadlo"},
    {"Stroje", Place::zorv, Scope::year, "zaloz_stroje", "Stroje, jejich účty a sazby", machines,
     "primary Index1 Pocitadlo\nBy_Tr1 Stroj;Pocitadlo"},
    {"Uctuj_hr", Place::zorv, Scope::year, "zaloz_predpis_pro_hrube_zorv",
     "Účtovací předpis hrubých mezd", rules_of_gross_wages,
     "primary Index1 Pocitadlo\nBy_Tr1 Sloupec;Pocitadlo"},
    {"Uctuj_ci", Place::zorv, Scope::year, "zaloz_predpis_pro_ciste_zorv",
     "Účtovací předpis ostatních sloupců", rules_of_other_columns,
     "primary Index1 Pocitadlo\nBy_Tr1 Sloupec;Pocitadlo"},
    {"Nahrady", Place::zorv, Scope::year_empty, "zaloz_soubory", "Doklady náhrad a nemocí",
     compensations, "primary ByPocitadlo Pocitadlo\nByCisPracMesic Cislo_pracovnika;Mesic"},
    {"Rpd", Place::zorv, Scope::year, "zaloz_soubory", "Rozvrhy pracovní doby", calendars,
     "primary ByPocitadlo Pocitadlo\nByRokTypNazev Rok;Typ;Nazev"},
    {"SlevySocPoj", Place::zorv, Scope::year_empty, "zaloz_soubory", "Slevy na sociálním pojištění",
     insurance_discounts, ""},
    {"epodani", Place::zorv, Scope::year_empty, "zaloz_soubory", "Odeslaná elektronická podání",
     submissions, "primary ByPocitadlo Pocitadlo"},
    {"Vstup_ex", Place::zorv, Scope::year, "zaloz_soubor_pro_externi_vstup",
     "Sazby externího vstupu", external_input,
     "primary Index1 Pocitadlo\nBy_Tr1 Cislo_prace;Pocitadlo"},
    {"Dochazka", Place::zorv, Scope::year_empty, "zaloz_soubory", "Docházka po měsících",
     attendance_months, "primary Index1 Pocitadlo\nBy_Tr1 Cislo_pracovnika;Mesic;Pocitadlo"},
    {"RocniYYYY", Place::zorv, Scope::year_empty, "zaloz_rocni", "Korekce ročního zúčtování daně",
     annual_corrections, ""},
    {"Rocni", Place::zorv, Scope::year_empty, "", "Korekce ročního zúčtování starších let",
     old_annual_corrections, "primary Index1 Pocitadlo\nBy_Tr1 Cislo_pracovnika;Pocitadlo"},
    {"MALA_ORG", Place::zorv, Scope::year, "TForm59", "Hromadné oznámení zdravotním pojišťovnám",
     insurer_notices, "by_jmeno Jmeno"},
};

}  // namespace

std::span<const TableText> payroll_tables() {
    return tables;
}

}  // namespace store
