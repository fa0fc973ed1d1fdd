// Operations on an open table.
#include "store/engine_fixture.h"

namespace zkouska {
namespace {

using store::Table;
using store::Transaction;
using store::Value;

class EngineTable : public EngineTest {
  protected:
    EngineTable() { data.create_table(people); }
};

TEST_F(EngineTable, OpensOnceAndFixesItsSourceWhileOpen) {
    Table table;
    expect_error(error_of([&] { table.open(); }), {"spojení"});
    table.set_connection(data);
    table.set_table_name("Neni.db");
    expect_error(error_of([&] { table.open(); }), {"tabulky.sqlite", "Neni", "neexistuje"});
    table.set_table_name("LIDE.DB");
    table.set_index_name("By_Neco");
    expect_error(error_of([&] { table.open(); }), {"LIDE", "By_Neco"});
    table.set_index_name("by_jmeno");
    table.open();
    table.open();
    EXPECT_EQ(table.definition(), data.describe("lide"));
    expect_error(error_of([&] { table.set_table_name("Jina"); }), {"Lide", "otevřena"});
    expect_error(error_of([&] { table.set_index_name(""); }), {"otevřena"});
    expect_error(error_of([&] { table.set_connection(data); }), {"otevřena"});
    table.close();
    table.close();
    EXPECT_FALSE(table.is_open());
    expect_error(error_of([&] { table.next(); }), {"není otevřena"});
}

TEST_F(EngineTable, EmptyTableIsAtItsEndAtOnceAndReadsEmpty) {
    Table table;
    open(table, "Lide");
    EXPECT_TRUE(table.eof() && table.bof());
    EXPECT_EQ(table.record_count(), 0u);
    EXPECT_EQ(table.record_number(), 0u);
    for (auto move : {&Table::first, &Table::next, &Table::prior, &Table::last})
        (table.*move)();
    EXPECT_TRUE(table.value("Kc").is_empty());
    EXPECT_FALSE(table.locate("Prijmeni", "x"));
    expect_error(error_of([&] { table.edit(); }), {"prázdná"});
    Transaction transaction(data);
    expect_error(error_of([&] { table.remove(); }), {"prázdná"});
}

TEST_F(EngineTable, WalksInOrderOfEntryAndStopsAtBothEnds) {
    add("Lide", "Prijmeni", {"Novák", "Adam", "Malá"});
    Table table;
    open(table, "lide");
    EXPECT_EQ(walk(table), "Novák Adam Malá ");
    EXPECT_EQ(table.record_number(), 3u);
    table.next();
    EXPECT_TRUE(table.eof());
    EXPECT_EQ(table.text("PRIJMENI"), "Malá");
    table.prior();
    EXPECT_FALSE(table.eof());
    EXPECT_EQ(table.text("prijmeni"), "Adam");
    table.first();
    table.prior();
    EXPECT_TRUE(table.bof());
    table.last();
    EXPECT_EQ(table.record_number(), 3u);
    EXPECT_FALSE(table.eof());
    expect_error(error_of([&] { table.value("Vaha"); }), {"Lide", "Vaha"});
}

TEST_F(EngineTable, IndexFixesTheOrderAndFollowsChanges) {
    add("Lide", "Prijmeni", {"Novák", "adam", "Chalupa", "Hybš", "Ivan", "Adam"});
    Table table;
    open(table, "Lide", "By_Jmeno");
    EXPECT_EQ(walk(table), "adam Adam Hybš Chalupa Ivan Novák ");
    Transaction transaction(data);
    table.append();
    table.set("Prijmeni", "Ježek");
    table.post();
    EXPECT_EQ(table.text("Prijmeni"), "Ježek");
    EXPECT_EQ(table.record_number(), 6u);
    table.prior();
    EXPECT_EQ(table.text("Prijmeni"), "Ivan");
    table.edit();
    table.set("Prijmeni", "Žák");
    table.post();
    EXPECT_EQ(table.record_number(), 7u);
    EXPECT_EQ(walk(table), "adam Adam Hybš Chalupa Ježek Novák Žák ");
}

TEST_F(EngineTable, RowChangesOnlyByPostInsideATransaction) {
    Table table;
    open(table, "Lide");
    expect_error(error_of([&] { table.set("Kc", 1); }), {"není rozepsaný"});
    expect_error(error_of([&] { table.post(); }), {"není rozepsaný"});
    table.append();
    EXPECT_TRUE(table.is_editing());
    table.set("Prijmeni", "Novák");
    table.set("Kc", 12.5);
    EXPECT_EQ(table.number("Kc"), 12.5);
    expect_error(error_of([&] { table.next(); }), {"rozepsaný"});
    expect_error(error_of([&] { table.append(); }), {"rozepsaný"});
    expect_error(error_of([&] { table.post(); }), {"Lide", "transakci"});
    {
        Transaction transaction(data);
        table.post();
        EXPECT_EQ(table.integer("Pocitadlo"), 1);
        table.edit();
        table.edit();
        table.set("Prijmeni", "Jiný");
        table.cancel();
        EXPECT_EQ(table.text("Prijmeni"), "Novák");
        table.edit();
        table.clear("Kc");
        table.post();
        transaction.commit();
    }
    table.insert();
    table.set("Prijmeni", "Nezapsaný");
    table.close();
    EXPECT_EQ(read("SELECT Pocitadlo, Prijmeni, Kc FROM Lide"), "1|Novák|");
    open(table, "Lide");
    expect_error(error_of([&] { table.remove(); }), {"transakci"});
}

TEST_F(EngineTable, RemoveMovesToTheNextRow) {
    add("Lide", "Prijmeni", {"A", "B", "C"});
    Table table;
    open(table, "Lide");
    Transaction transaction(data);
    table.next();
    table.remove();
    EXPECT_EQ(table.text("Prijmeni"), "C");
    EXPECT_FALSE(table.eof());
    table.remove();
    EXPECT_TRUE(table.eof());
    EXPECT_EQ(table.text("Prijmeni"), "A");
    table.remove();
    EXPECT_TRUE(table.eof() && table.bof());
    EXPECT_EQ(table.record_count(), 0u);
}

TEST_F(EngineTable, LocatesByEveryKindOfFieldAndTextsWithoutCase) {
    add("Lide", "Prijmeni", {"prijmeni", "ŽÁK", "Chalupa", "PRIJMENI"});
    execute(
        "UPDATE Lide SET Cislo = 7, Kc = 0.5, Zenaty = TRUE, Narozen = '2001-02-03' "
        "WHERE Prijmeni = 'Chalupa'");
    execute("UPDATE Lide SET Cislo = 0 WHERE Prijmeni = 'PRIJMENI'");
    struct Case {
        const char* field;
        Value value;
        std::int64_t row;  ///< 0: not found, the position stays
    };
    const Case cases[] = {{"Prijmeni", "PRIJMENI", 1},
                          {"Prijmeni", "žák", 2},
                          {"prijmeni", "zak", 0},
                          {"Cislo", 7, 3},
                          {"Cislo", 0, 4},
                          {"Cislo", "7", 3},
                          {"Kc", 0.5, 3},
                          {"Zenaty", true, 3},
                          {"Zenaty", false, 0},
                          {"Narozen", base::Datum{2001, 2, 3}, 3},
                          {"Cislo", Value(), 1},
                          {"Prijmeni", "", 0}};
    for (const char* index : {"", "By_Jmeno"}) {
        Table table;
        open(table, "Lide", index);
        for (const Case& c : cases) {
            ASSERT_TRUE(table.go_to(2));
            EXPECT_EQ(table.locate(c.field, c.value), c.row != 0) << c.field;
            EXPECT_EQ(table.bookmark(), c.row == 0 ? 2 : c.row) << c.field << c.value.as_text();
        }
    }
}

TEST_F(EngineTable, BookmarkSurvivesMovesAndRefresh) {
    add("Lide", "Prijmeni", {"A", "B", "C"});
    Table table;
    open(table, "Lide");
    table.last();
    const Table::Bookmark last = table.bookmark();
    table.first();
    add("Lide", "Prijmeni", {"D"});
    execute("UPDATE Lide SET Prijmeni = 'AA' WHERE Prijmeni = 'A'");
    EXPECT_EQ(table.text("Prijmeni"), "AA");
    EXPECT_EQ(table.record_count(), 3u);
    table.refresh();
    EXPECT_EQ(table.record_count(), 4u);
    EXPECT_EQ(table.text("Prijmeni"), "AA");
    EXPECT_TRUE(table.go_to(last));
    EXPECT_EQ(table.text("Prijmeni"), "C");
    execute("DELETE FROM Lide WHERE Prijmeni = 'C'");
    EXPECT_TRUE(table.value("Prijmeni").is_empty());
    table.refresh();
    EXPECT_EQ(table.text("Prijmeni"), "D");
    EXPECT_FALSE(table.go_to(last));
    EXPECT_TRUE(table.locate("Prijmeni", "d"));
}

// Rows are read some ahead, which must never show: neither old values nor those of another row.
TEST_F(EngineTable, LongWalkSeesEveryChangeMadeOnItsWay) {
    std::vector<Value> numbers;
    for (int i = 1; i <= 300; ++i)
        numbers.emplace_back(i);
    add("Lide", "Cislo", numbers);
    Table table;
    open(table, "Lide");
    Transaction transaction(data);
    for (int i = 1; i <= 300; ++i, table.next()) {
        ASSERT_EQ(table.integer("Cislo"), i > 100 ? i + 1000 : i);
        if (i == 100) data.execute("UPDATE Lide SET Cislo = Cislo + 1000 WHERE Cislo > 100");
        if (i % 7 != 0) continue;
        table.edit();
        table.set("Kc", i);
        table.post();
        ASSERT_EQ(table.number("Kc"), i);
    }
    EXPECT_TRUE(table.eof());
    for (int i = 300; i >= 1; --i, table.prior()) {
        ASSERT_EQ(table.number("Kc"), i % 7 == 0 ? i : 0);
    }
    EXPECT_TRUE(table.bof());
}

TEST_F(EngineTable, CounterIsNeverReused) {
    add("Lide", "Prijmeni", {"A", "B", "C"});
    execute("DELETE FROM Lide WHERE Pocitadlo = 3");
    add("Lide", "Prijmeni", {"D"});
    EXPECT_EQ(read("SELECT Pocitadlo FROM Lide"), "1 / 2 / 4");
    execute("DELETE FROM Lide");
    store::Connection again(folder.cesta());
    Transaction transaction(again);
    store::Inserter rows(again, "Lide", {"Prijmeni"});
    EXPECT_EQ(rows.insert(), 5);
    transaction.commit();
    data.create_table(people);
    add("Lide", "Prijmeni", {"nová"});
    EXPECT_EQ(read("SELECT Pocitadlo FROM Lide"), "1");
}

TEST_F(EngineTable, EmptyDiffersFromZero) {
    Table table;
    open(table, "Lide");
    Transaction transaction(data);
    table.append();
    table.post();
    for (const char* field : {"Cislo", "Prijmeni", "Kc", "Zenaty", "Narozen"}) {
        EXPECT_TRUE(table.value(field).is_empty()) << field;
    }
    EXPECT_EQ(table.integer("Cislo"), 0);
    EXPECT_EQ(table.text("Prijmeni"), "");
    EXPECT_EQ(table.number("Kc"), 0);
    EXPECT_FALSE(table.boolean("Zenaty"));
    EXPECT_TRUE(table.date("Narozen").je_prazdne());
    table.append();
    table.set("Cislo", 0);
    table.post();
    EXPECT_EQ(read("SELECT COUNT(*) FROM Lide WHERE Cislo = 0"), "1");
    EXPECT_EQ(read("SELECT COUNT(*) FROM Lide WHERE Cislo IS NULL"), "1");
    transaction.commit();
}

TEST_F(EngineTable, FollowsARolledBackTransaction) {
    add("Lide", "Prijmeni", {"A"});
    Table table;
    open(table, "Lide");
    {
        Transaction transaction(data);
        table.append();
        table.set("Prijmeni", "B");
        table.post();
        EXPECT_EQ(table.record_count(), 2u);
    }
    EXPECT_EQ(table.record_count(), 1u);
    EXPECT_EQ(table.text("Prijmeni"), "A");
}

}  // namespace
}  // namespace zkouska
