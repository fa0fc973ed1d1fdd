// The database file of a folder, and tables made, described, renamed and deleted.
#include <filesystem>
#include <fstream>
#include <set>

#include "store/catalogue.h"
#include "store/engine_fixture.h"

namespace zkouska {
namespace {

using store::Access;
using store::Connection;
using store::FieldType;
using store::TableDef;
using store::Transaction;

class EngineConnection : public EngineTest {
  protected:
    std::filesystem::path file() const { return folder / std::string(Connection::file_name()); }
};

TEST_F(EngineConnection, NamesAreTheSameInAnyCaseAndWithExtension) {
    data.create_table(people);
    for (const char* name : {"Lide", "LIDE", "lide.db", "Lide.DB"}) {
        EXPECT_TRUE(data.table_exists(name)) << name;
        EXPECT_EQ(data.describe(name).name, "Lide");
    }
    for (const char* name : {"Lid", "Lidé", "db", ".db", "", "sqlite_master", "sqlite_sequence"}) {
        EXPECT_FALSE(data.table_exists(name)) << name;
    }
    expect_error(error_of([&] { data.describe("Neni.db"); }), {"tabulky.sqlite", "Neni"});
    expect_error(error_of([&] { data.delete_table("Neni"); }), {"Neni", "neexistuje"});
    expect_error(error_of([&] { data.rename_table("Neni", "Jina"); }), {"Neni", "neexistuje"});
}

TEST_F(EngineConnection, ListsTablesInCzechOrder) {
    const TableDef one_field{"", {{"A", FieldType::int16}}, {}};
    for (const char* name : {"Isp", "Chyby.db", "hrube01", "Doch", "Hodnoty"}) {
        TableDef table = one_field;
        table.name = name;
        data.create_table(table);
    }
    const std::vector<std::string> expected{"Doch", "Hodnoty", "hrube01", "Chyby", "Isp"};
    EXPECT_EQ(data.tables(), expected);
}

TEST_F(EngineConnection, DescribesEveryTableOfTheCatalogueAsItWasMade) {
    std::set<std::string> seen;
    for (const store::CatalogueEntry& entry : store::catalogue()) {
        if (!seen.insert(entry.definition.name).second) continue;
        data.create_table(entry.definition);
        EXPECT_EQ(Connection(folder.cesta()).describe(entry.definition.name), entry.definition)
            << entry.definition.name;
    }
    EXPECT_EQ(data.integrity_check(), "ok");
}

TEST_F(EngineConnection, RefusesBrokenDefinitions) {
    const TableDef broken[] = {
        {"", {{"A", FieldType::int16}}, {}},
        {"T", {}, {}},
        {"T", {{"A", FieldType::int16}, {"a", FieldType::int16}}, {}},
        {"T", {{"A", FieldType::text, 256}}, {}},
        {"T", {{"A", FieldType::text, 0}}, {}},
        {"T", {{"A", FieldType::int16}}, {{"I", {"B"}, false, false, false}}}};
    for (const TableDef& table : broken) {
        EXPECT_NE(error_of([&] { data.create_table(table); }), "");
    }
    EXPECT_TRUE(data.tables().empty());
}

TEST_F(EngineConnection, OpenTableIsNeitherOverwrittenNorDeletedNorRenamedNorAltered) {
    data.create_table(people);
    store::Table first, second;
    open(first, "Lide");
    open(second, "lide");
    const auto refuse_all = [&] {
        for (const std::string& error :
             {error_of([&] { data.create_table(people); }),
              error_of([&] { data.delete_table("LIDE"); }),
              error_of([&] { data.rename_table("lide", "Jina"); }), error_of([&] {
                  data.add_index("lide", {"I", {"Cislo"}});
              }),
              error_of([&] { data.execute("ALTER TABLE lide ADD X INTEGER"); })}) {
            expect_error(error, {"Lide", "otevřena"});
        }
    };
    refuse_all();
    first.close();
    refuse_all();
    second.close();
    data.rename_table("lide", "Jina.db");
    EXPECT_FALSE(data.table_exists("Lide"));
}

TEST_F(EngineConnection, OverwritingMakesAnEmptyTableOfTheNewLayout) {
    data.create_table(people);
    add("Lide", "Prijmeni", {"A"});
    const TableDef other{"LIDE", {{"X", FieldType::date}}, {}};
    data.create_table(other);
    EXPECT_EQ(data.describe("Lide"), other);
    EXPECT_EQ(read("SELECT COUNT(*) FROM Lide"), "0");
}

TEST_F(EngineConnection, RenameKeepsLayoutRowsAndCounter) {
    data.create_table(people);
    add("Lide", "Prijmeni", {"A", "B"});
    data.rename_table("lide.db", "Zaporna.db");
    data.create_table(people);
    TableDef expected = people;
    expected.name = "Zaporna";
    EXPECT_EQ(data.describe("Zaporna"), expected);
    expect_error(error_of([&] { data.rename_table("Lide", "ZAPORNA"); }), {"ZAPORNA", "existuje"});
    add("Zaporna", "Prijmeni", {"C"});
    EXPECT_EQ(read("SELECT Pocitadlo, Prijmeni FROM Zaporna"), "1|A / 2|B / 3|C");
    data.rename_table("Zaporna", "ZAPORNA");
    EXPECT_EQ(data.describe("zaporna").name, "ZAPORNA");
    EXPECT_EQ(data.describe("zaporna").indexes, people.indexes);
}

TEST_F(EngineConnection, IndexIsAddedToAnExistingTableOnly) {
    data.create_table({"Lide", people.fields, {}});
    store::pridej_index(data, "Neni.db", "By_X", 2, {"X"});
    store::pridej_index(data, "lide.db", "Index1", 1, {"pocitadlo"});
    store::pridej_index(data, "lide", "By_Cislo", 2, {"CISLO", "Pocitadlo"});
    const std::vector<store::IndexDef> expected{
        {"Index1", {"Pocitadlo"}, true, true, false},
        {"By_Cislo", {"Cislo", "Pocitadlo"}, false, false, false}};
    EXPECT_EQ(data.describe("Lide").indexes, expected);
    expect_error(error_of([&] { data.add_index("Lide", {"BY_CISLO", {"Kc"}}); }), {"BY_CISLO"});
    expect_error(error_of([&] { data.add_index("Lide", {"By_X", {"X"}}); }), {"Lide", "X"});
}

TEST_F(EngineConnection, AlterIsSeenByDescribeAndDropsIndexesOfADroppedField) {
    data.create_table(people);
    add("Lide", "Prijmeni", {"A"});
    data.execute("ALTER TABLE Lide ADD COLUMN Kod VARCHAR(3)");
    data.execute("ALTER TABLE Lide DROP Prijmeni");
    const TableDef table = data.describe("Lide");
    EXPECT_EQ(table.field_index("Prijmeni"), -1);
    EXPECT_EQ(table.fields.back(), (store::FieldDef{"Kod", FieldType::text, 3}));
    EXPECT_EQ(table.indexes, std::vector{people.indexes[0]});
    EXPECT_NE(error_of([&] { data.execute("ALTER TABLE Lide ADD Kod NUMERIC"); }), "");
    EXPECT_EQ(data.describe("Lide"), table);
    EXPECT_EQ(read("SELECT * FROM Lide"), "1|||||");
}

TEST_F(EngineConnection, AnotherConnectionSeesANewLayout) {
    data.create_table(people);
    Connection other(folder.cesta(), Access::read_only);
    EXPECT_EQ(read(other, "SELECT * FROM Lide"), "");
    data.execute("ALTER TABLE Lide ADD Kod VARCHAR(3)");
    data.create_table({"Jina", {{"A", FieldType::int16}}, {}});
    EXPECT_GE(other.describe("Lide").field_index("Kod"), 0);
    EXPECT_TRUE(other.table_exists("Jina"));
    data.delete_table("Lide");
    EXPECT_FALSE(other.table_exists("Lide"));
    expect_error(error_of([&] { store::Query(other, "SELECT * FROM Lide"); }), {"Lide"});
}

TEST_F(EngineConnection, ExecuteTellsRowsAndNeedsATransaction) {
    data.create_table(people);
    for (const char* change :
         {"INSERT INTO Lide (Cislo) VALUES (1)", "DELETE FROM Lide", "UPDATE Lide SET Cislo = 1"}) {
        expect_error(error_of([&] { data.execute(change); }), {"Lide", "transakci"});
    }
    add("Lide", "Cislo", {1, 2, 3});
    EXPECT_EQ(execute("UPDATE Lide SET Kc = 1 WHERE Cislo >= 2"), 2);
    EXPECT_EQ(execute("DELETE FROM Lide"), 3);
    expect_error(error_of([&] { data.execute("SELECT * FROM Lide"); }), {"Lide", "SELECT"});
}

TEST_F(EngineConnection, FileIsReadableByItsOwnerAlone) {
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(file()).permissions(),
              perms::owner_read | perms::owner_write);
}

TEST_F(EngineConnection, ReadOnlyReadsAndRefusesEveryWrite) {
    data.create_table(people);
    add("Lide", "Prijmeni", {"A"});
    Connection reader(folder.cesta(), Access::read_only);
    EXPECT_EQ(read(reader, "SELECT Prijmeni FROM Lide"), "A");
    for (const std::string& error :
         {error_of([&] { Transaction transaction(reader); }),
          error_of([&] { reader.create_table(people); }),
          error_of([&] { reader.delete_table("Lide"); }),
          error_of([&] { reader.rename_table("Lide", "X"); }),
          error_of([&] { reader.execute("DELETE FROM Lide"); }),
          error_of([&] { reader.execute("ALTER TABLE Lide DROP Kc"); })}) {
        expect_error(error, {"tabulky.sqlite", "jen pro čtení"});
    }
    EXPECT_EQ(read("SELECT Prijmeni FROM Lide"), "A");
}

TEST(EngineFile, BrokenFilesAndMissingFoldersAreNamed) {
    const DocasnaSlozka folder;
    const auto file = folder / "tabulky.sqlite";
    expect_error(error_of([&] { Connection(folder / "neni"); }), {"neni", "neexistuje"});
    expect_error(error_of([&] { Connection(folder.cesta(), Access::read_only); }),
                 {"tabulky.sqlite", "neexistuje"});
    std::ofstream(file) << std::string(5000, 'x');
    expect_error(error_of([&] { Connection c(folder.cesta()); }), {file.c_str(), "poškozený"});
    std::filesystem::remove(file);
    {
        Connection data(folder.cesta());
        data.create_table(people);
    }
    {
        std::fstream damaged(file, std::ios::in | std::ios::out | std::ios::binary);
        damaged.seekp(100);
        damaged << std::string(2000, '\x7f');
    }
    expect_error(error_of([&] { Connection c(folder.cesta()); }), {file.c_str(), "poškozený"});
}

TEST_F(EngineConnection, LockOfAnotherWriterIsSaidAndPasses) {
    data.create_table(people);
    Connection other(folder.cesta());
    {
        Transaction transaction(other);
        other.execute("INSERT INTO Lide (Cislo) VALUES (1)");
        expect_error(error_of([&] { Transaction second(data); }),
                     {"tabulky.sqlite", "právě používá jiný program"});
        EXPECT_EQ(read("SELECT COUNT(*) FROM Lide"), "0");
        transaction.commit();
    }
    EXPECT_EQ(execute("UPDATE Lide SET Cislo = 2"), 1);
}

}  // namespace
}  // namespace zkouska
