// The catalogue: names that lead to an entry, order of creation, layouts the store can keep.
#include "store/catalogue.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "base/text.h"
#include "store/connection.h"
#include "support/docasna_slozka.h"

namespace {

using store::FieldType;

TEST(Catalogue, EntryIsFoundByFullNameInAnyCase) {
    const std::pair<const char*, const char*> cases[] = {
        {"Os_karty", "Os_karty"},   {"OS_KARTY.DB", "Os_karty"}, {"hrube01.db", "Hrube"},
        {"LISTIN12", "Listin"},     {"Blok05", "Blok"},          {"Rocni2022", "RocniYYYY"},
        {"rocni.db", "Rocni"},      {"zaporna", "Zaporna"},      {"setup.DB", "Setup"},
        {"mala_org.db", "MALA_ORG"}};
    for (const auto& [name, entry] : cases) {
        ASSERT_NE(store::find_entry(name), nullptr) << name;
        EXPECT_EQ(store::find_entry(name)->definition.name, entry) << name;
    }
    for (const char* unknown : {"", ".db", "Hrube", "Hrube00", "Hrube13", "Hrube1", "Hrube001",
                                "Os_karty01", "Rocni22", "Isp", "Os_kartyMM"}) {
        EXPECT_EQ(store::find_entry(unknown), nullptr) << unknown;
    }
}

TEST(Catalogue, LayoutBearsTheNameOfItsMonthOrYear) {
    EXPECT_EQ(store::definition_of("LISTIN03.DB").name, "Listin03");
    EXPECT_EQ(store::definition_of("rocni2022").name, "Rocni2022");
    EXPECT_EQ(store::definition_of("DETI").name, "Deti");
    EXPECT_EQ(store::month_table("Hrube", 3), "Hrube03");
    try {
        store::definition_of("Neni.db");
        FAIL();
    } catch (const store::StoreError& error) {
        EXPECT_NE(std::string(error.what()).find("\"Neni\""), std::string::npos);
    }
}

TEST(Catalogue, OpeningMakesAttendanceFirstAndSubmissionsLast) {
    const auto& made = store::tables_made_at_opening();
    std::vector<std::string> payroll;
    for (std::size_t i = 0; i < made.size(); ++i) {
        const auto& entry = store::catalogue()[i];
        EXPECT_EQ(entry.definition.name, made[i]);
        EXPECT_NE(entry.maker, "");
        if (entry.place == store::Place::zorv) payroll.push_back(made[i]);
    }
    EXPECT_EQ(payroll, (std::vector<std::string>{"Doch", "Ridici", "Os_karty", "Deti", "Fixni",
                                                 "Zdr_poj", "Stroje", "Uctuj_hr", "Uctuj_ci",
                                                 "Nahrady", "Rpd", "SlevySocPoj", "epodani"}));
}

TEST(Catalogue, FieldsStandWhereTheyShould) {
    const struct {
        const char* table;
        int position;
        store::FieldDef field;
        int count;
    } cases[] = {
        {"Os_karty", 32, {"Prum_nemoc_12", FieldType::number}, 168},
        {"Os_karty", 159, {"AA1592", FieldType::text, 20}, 168},
        {"Os_karty", 167, {"DOVOLENA_NEVYCERPANO_HOD", FieldType::number}, 168},
        {"Ridici", 14, {"Konstanta_1", FieldType::number}, 31},
        {"Zdr_poj", 8, {"Kod_zp", FieldType::text, 3}, 9},
        {"Rpd", 4, {"Typ", FieldType::int16}, 18},
        {"Rpd", 17, {"Fond12", FieldType::text, 186}, 18},
        {"epodani", 2, {"Soubor", FieldType::text, 100}, 7},
        {"Dochazka", 34, {"Typ1", FieldType::text, 1}, 69},
        {"Rocni2022", 33, {"korekce_33", FieldType::int32}, 34},
        {"Hrube01", 20, {"Kc4", FieldType::number}, 33},
        {"Listin01", 20, {"Mod_sl", FieldType::int16}, 21},
        {"Zaporna", 20, {"Mod_sl", FieldType::int16}, 21},
        {"Blok01", 13, {"dan_dif", FieldType::int32}, 14},
        {"Uctuj_ci", 9, {"U8", FieldType::int16}, 10},
        {"EET", 0, {"Pocitadlo", FieldType::autoincrement}, 50},
        {"TMP", 27, {"H12", FieldType::number}, 34},
    };
    for (const auto& c : cases) {
        const auto table = store::definition_of(c.table);
        ASSERT_EQ(table.fields.size(), static_cast<std::size_t>(c.count)) << c.table;
        EXPECT_EQ(table.fields[static_cast<std::size_t>(c.position)], c.field) << c.field.name;
    }
}

TEST(Catalogue, IndexesBeginWithTheirKeyAndEndInTheCounter) {
    EXPECT_EQ(store::definition_of("Fixni").indexes,
              (std::vector<store::IndexDef>{
                  {"Index1", {"Pocitadlo"}, true, true, false},
                  {"By_Cislo", {"Cislo_pracovnika", "Sloupec", "Pocitadlo"}},
                  {"By_Sloupec", {"Sloupec", "Cislo_pracovnika", "Pocitadlo"}}}));
    EXPECT_TRUE(store::definition_of("Hodnoty").indexes[1].unique);
    // The attendance of days has the one index that minds letter case.
    for (const auto& entry : store::catalogue()) {
        for (const auto& index : entry.definition.indexes) {
            EXPECT_EQ(index.case_sensitive,
                      entry.definition.name == "Doch" && index.name == "By_Tr1")
                << entry.definition.name << " " << index.name;
        }
    }
}

TEST(Catalogue, EveryLayoutCanBeMadeAndReadsBackTheSame) {
    const zkouska::DocasnaSlozka folder;
    store::Connection connection(folder.cesta());
    const store::Transaction transaction(connection);
    std::set<std::string> names;
    for (const auto& entry : store::catalogue()) {
        const auto& name = entry.definition.name;
        SCOPED_TRACE(name);
        EXPECT_TRUE(names.insert(base::malymi(name)).second);
        EXPECT_NE(entry.meaning, "");
        connection.create_table(entry.definition);
        const auto described = connection.describe(name);
        EXPECT_EQ(described.fields, entry.definition.fields);
        const auto by_name = [](auto indexes) {
            std::sort(indexes.begin(), indexes.end(),
                      [](const auto& a, const auto& b) { return a.name < b.name; });
            return indexes;
        };
        EXPECT_EQ(by_name(described.indexes), by_name(entry.definition.indexes));
    }
}

}  // namespace
