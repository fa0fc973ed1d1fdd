// All together or not at all: transactions over tables and layouts, nested ones.
#include "store/engine_fixture.h"

namespace zkouska {
namespace {

using store::Transaction;

class EngineTransaction : public EngineTest {
  protected:
    EngineTransaction() {
        data.create_table(people);
        add("Lide", "Prijmeni", {"A", "B"});
    }
    void insert(const char* surname) {
        data.execute(std::string("INSERT INTO Lide (Prijmeni) VALUES ('") + surname + "')");
    }
    std::string surnames() { return read("SELECT Prijmeni FROM Lide"); }
};

TEST_F(EngineTransaction, RowsAndLayoutsAreTakenBackTogether) {
    store::TableDef second = people;
    second.name = "Druha";
    data.create_table(second);
    {
        Transaction transaction(data);
        insert("C");
        data.execute("UPDATE Lide SET Prijmeni = 'X' WHERE Prijmeni = 'A'");
        data.rename_table("Druha", "Treti");
        data.delete_table("Lide");
        data.create_table({"Nova", {{"A", store::FieldType::int16}}, {}});
        data.execute("ALTER TABLE Treti ADD Kod VARCHAR(3)");
        EXPECT_EQ(data.tables(), (std::vector<std::string>{"Nova", "Treti"}));
        EXPECT_EQ(data.describe("Treti").indexes, people.indexes);
    }
    EXPECT_EQ(data.tables(), (std::vector<std::string>{"Druha", "Lide"}));
    EXPECT_EQ(data.describe("Druha"), second);
    EXPECT_EQ(surnames(), "A / B");
    EXPECT_EQ(data.integrity_check(), "ok");
}

TEST_F(EngineTransaction, InnerRollbackTakesBackTheInnerChangesOnly) {
    Transaction outer(data);
    insert("C");
    {
        Transaction inner(data);
        insert("D");
        {
            Transaction innermost(data);
            insert("E");
            innermost.commit();
        }
        EXPECT_EQ(surnames(), "A / B / C / D / E");
    }
    EXPECT_EQ(surnames(), "A / B / C");
    {
        Transaction inner(data);
        insert("F");
        inner.commit();
    }
    outer.commit();
    EXPECT_EQ(read(data, "SELECT Prijmeni FROM Lide"), "A / B / C / F");
}

TEST_F(EngineTransaction, InnerCommitIsLostWithTheOuter) {
    {
        Transaction outer(data);
        Transaction inner(data);
        insert("C");
        inner.commit();
        EXPECT_NE(error_of([&] { inner.commit(); }), "");
        outer.rollback();
        outer.rollback();
        EXPECT_NE(error_of([&] { outer.commit(); }), "");
        expect_error(error_of([&] { insert("D"); }), {"transakci"});
    }
    EXPECT_EQ(surnames(), "A / B");
}

TEST_F(EngineTransaction, OuterCannotEndBeforeTheInner) {
    Transaction outer(data);
    Transaction inner(data);
    expect_error(error_of([&] { outer.commit(); }), {"mimo pořadí"});
    insert("C");
    inner.commit();
    outer.commit();
    EXPECT_EQ(surnames(), "A / B / C");
}

TEST_F(EngineTransaction, RefusedRowLeavesTheRestOfTheTransaction) {
    data.create_table({"Hodnoty",
                       {{"Nazev", store::FieldType::text, 50}},
                       {{"By_Nazev", {"Nazev"}, false, true, false}}});
    store::Table table;
    open(table, "Hodnoty");
    Transaction transaction(data);
    for (const char* name : {"jedna", "JEDNA", "dvě"}) {
        table.append();
        table.set("Nazev", name);
        const std::string error = error_of([&] { table.post(); });
        EXPECT_EQ(!error.empty(), std::string("JEDNA") == name) << error;
        EXPECT_EQ(table.is_editing(), !error.empty());
        table.cancel();
    }
    transaction.commit();
    EXPECT_EQ(read("SELECT Nazev FROM Hodnoty"), "jedna / dvě");
}

TEST_F(EngineTransaction, CommitThatAReaderBlocksTakesEverythingBack) {
    store::Connection reader(folder.cesta(), store::Access::read_only);
    store::Query query(reader, "SELECT * FROM Lide");
    query.open();
    {
        Transaction transaction(data);
        insert("C");
        expect_error(error_of([&] { transaction.commit(); }), {"právě používá jiný program"});
    }
    query.close();
    EXPECT_EQ(surnames(), "A / B");
    Transaction transaction(data);
    insert("D");
    transaction.commit();
    EXPECT_EQ(surnames(), "A / B / D");
}

}  // namespace
}  // namespace zkouska
