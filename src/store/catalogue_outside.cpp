// Layouts of the tables that belong to the accounting and invoicing modules. This program reads
// them; the fields that it does not use are those that a company's minimum needs.
#include "store/catalogue_data.h"

namespace store {

namespace {

/// The register of sales. No row is written here; the fifty columns are the register's.
constexpr auto sales = R"(
Pocitadlo autoincrement
Agenda text(10)
Doklad text(20)
Porad_cis text(25)
Vytvoreno timestamp
Zmeneno timestamp
Dat_trzby timestamp
Dat_odesl timestamp
Dat_prij timestamp
Dat_odmit timestamp
Uuid_zpravy text(36)
Prvni_zaslani boolean
Overeni boolean
Dic_popl text(12)
Dic_poverujiciho text(12)
Id_provoz int32
Id_pokl text(20)
Rezim int16
Celk_trzba number
Zakl_nepodl_dph number
Zakl_dan1 number
Dan1 number
Zakl_dan2 number
Dan2 number
Zakl_dan3 number
Dan3 number
Cest_sluz number
Pouzit_zboz1 number
Pouzit_zboz2 number
Pouzit_zboz3 number
Urceno_cerp_zuct number
Cerp_zuct number
Bkp text(44)
Pkp_1..2 text(200)
Fik text(39)
Test boolean
Chyba_kod int16
Chyba_text text(255)
Varovani_kod int16
Varovani_text text(255)
Pocet_pokusu int16
Stav int16
Storno boolean
Stornuje_doklad text(20)
Uzivatel text(30)
Pocitac text(30)
Certifikat text(100)
Poznamka text(100)
Rok int16)";

constexpr auto company_values = R"(
Pocitadlo autoincrement
Nazev text(50)
Hodnota text(255))";

constexpr auto identity = R"(
Adr1..3 text(30)
ICO text(8)
DIC text(14)
Ulice text(30)
Mesto text(30)
PSC text(6)
Telefon text(20)
Email text(50))";

constexpr auto postings = R"(
Pocitadlo autoincrement
Cfa int32
Doklad text(20)
Su int16
Au int16
St int16
Vykon int16
Kcs_Md number
Kcs_dal number
Mesic_zuctovani int16
Rok_zuctovani int16
Datum_Zuctovani date
Datum_Zapisu date
Datum_vystaveni date
Datum_splatnosti date
Davka int32
Text text(60)
Puvod text(20)
DPH_DOKLAD text(60)
DATUM_PD date
KH_SEKCE text(4)
KH_PREDMET int16
KH_REZIM int16
KH_POMER boolean
KH_44ZDPH boolean)";

constexpr auto performances = R"(
Pocitadlo autoincrement
Vykon int16
Text text(30)
St1..10 int16
Stod int16
Stdo int16)";

constexpr auto addresses = R"(
Pocitadlo autoincrement
Cislo int32
Nazev text(50)
Ulice text(30)
Mesto text(30)
PSC text(6)
ICO text(8)
DIC text(14))";

constexpr auto bank_accounts = R"(
Pocitadlo autoincrement
Nazev text(30)
Ucet text(20)
Kod_banky int16
Variabilni text(10)
Konstantni int16
Specificky text(10))";

constexpr TableText tables[] = {
    {"EET", Place::ucet, Scope::outside, "zaloz_soubory", "Evidence tržeb", sales,
     "primary Index1 Pocitadlo\nByAgendaDoklad Agenda;Doklad;Pocitadlo"},
    {"Hodnoty", Place::ucet, Scope::outside, "zaloz_soubory", "Hodnoty firmy podle názvu",
     company_values, "primary Index1 Pocitadlo\nunique By_Nazev Nazev"},
    {"Setup", Place::ucet, Scope::outside, "", "Údaje o firmě", identity, ""},
    {"Uctovano", Place::ucet, Scope::outside, "", "Účetní zápisy", postings,
     "primary Index1 Pocitadlo"},
    {"vykony", Place::ucet, Scope::outside, "", "Výkony a jejich střediska", performances,
     "primary Index1 Pocitadlo\nby_vykon Vykon;Pocitadlo"},
    {"Adresy", Place::ucet, Scope::outside, "", "Adresář", addresses, "primary Index1 Pocitadlo"},
    {"Banka", Place::faktury, Scope::outside, "", "Bankovní účty", bank_accounts,
     "primary Index1 Pocitadlo"},
};

}  // namespace

std::span<const TableText> outside_tables() {
    return tables;
}

}  // namespace store
