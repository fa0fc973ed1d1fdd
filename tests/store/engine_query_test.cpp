// Reading the rows of a query, also while tables change under it.
#include "store/engine_fixture.h"

namespace zkouska {
namespace {

using store::Query;
using store::Transaction;
using store::Value;

class EngineQuery : public EngineTest {
  protected:
    EngineQuery() {
        data.create_table(people);
        Transaction transaction(data);
        store::Inserter rows(data, "Lide", {"Cislo", "Prijmeni", "Kc", "Zenaty", "Narozen"});
        for (int i = 1; i <= 3; ++i) {
            rows.set(0, i);
            rows.set(1, "P" + std::to_string(i));
            rows.set(2, i + 0.25);
            rows.set(3, i == 2);
            rows.set(4, Value(base::Datum{2000, 1, i}));
            rows.insert();
        }
        rows.insert();
        transaction.commit();
    }
};

TEST_F(EngineQuery, ReadsEveryKindByNameAndPosition) {
    Query query(data, "SELECT * FROM Lide WHERE Cislo = :cislo");
    query.set("CISLO", 2).open();
    EXPECT_EQ(query.column_count(), 6);
    EXPECT_EQ(query.column_name(2), "Prijmeni");
    EXPECT_EQ(query.column("KC"), 3);
    EXPECT_EQ(query.integer("cislo"), 2);
    EXPECT_EQ(query.text("cislo"), "2");
    EXPECT_EQ(query.number("Kc"), 2.25);
    EXPECT_EQ(query.integer("Kc"), 2);
    EXPECT_EQ(query.text_view(3), "2.25");
    EXPECT_TRUE(query.boolean("zenaty"));
    EXPECT_EQ(query.text("zenaty"), "true");
    EXPECT_EQ(query.value("Zenaty"), Value(true));
    EXPECT_EQ(query.date("Narozen"), (base::Datum{2000, 1, 2}));
    EXPECT_EQ(query.value("Narozen"), Value(base::Datum{2000, 1, 2}));
    query.next();
    EXPECT_TRUE(query.eof());
    query.next();
    EXPECT_EQ(query.text("Prijmeni"), "");
    expect_error(error_of([&] { query.column("Vaha"); }), {"Lide", "Vaha"});
    expect_error(error_of([&] { query.value(6); }), {"Lide", "6"});
    expect_error(error_of([&] { query.set("jiny", 1); }), {"Lide", "jiny"});
    expect_error(error_of([&] { Query(data, "DELETE FROM Lide"); }), {"Lide", "není to dotaz"});
    query.set("cislo", 3).open();
    EXPECT_EQ(query.text("Prijmeni"), "P3");
}

TEST_F(EngineQuery, EmptyFieldsReadAsZeroAndSumsPassOverThem) {
    Query empty(data, "SELECT * FROM Lide WHERE Cislo IS NULL");
    empty.open();
    EXPECT_TRUE(empty.is_empty(empty.column("Kc")));
    EXPECT_EQ(empty.integer("Cislo"), 0);
    EXPECT_EQ(empty.text("Prijmeni"), "");
    EXPECT_EQ(empty.number("Kc"), 0);
    EXPECT_FALSE(empty.boolean("Zenaty"));
    EXPECT_TRUE(empty.date("Narozen").je_prazdne());
    EXPECT_EQ(read("SELECT SUM(Kc) AS Soucet, COUNT(*) AS Pocet FROM Lide"), "6.75|4");
    Query none(data, "SELECT SUM(Kc) AS Soucet FROM Lide WHERE Cislo = 99");
    none.open();
    ASSERT_FALSE(none.eof());
    EXPECT_TRUE(none.value("Soucet").is_empty());
    EXPECT_EQ(none.number("soucet"), 0);
    none.next();
    EXPECT_TRUE(none.eof());
}

TEST_F(EngineQuery, ManyQueriesOfOneTextRunAtOnce) {
    const char* text = "SELECT Prijmeni FROM Lide WHERE Cislo >= :od";
    Query outer(data, text);
    std::string pairs;
    for (outer.set("od", 2).open(); !outer.eof(); outer.next()) {
        Query inner(data, text);
        for (inner.set("od", 1).open(); !inner.eof(); inner.next()) {
            pairs += outer.text("Prijmeni") + inner.text("Prijmeni") + " ";
        }
    }
    EXPECT_EQ(pairs, "P2P1 P2P2 P2P3 P3P1 P3P2 P3P3 ");
    Query fresh(data, text);
    fresh.open();
    EXPECT_TRUE(fresh.eof()) << "a parameter of an earlier use was kept";
}

// Work tables come and go, and a worker's change is taken back, while a list is being walked.
TEST_F(EngineQuery, WalkGoesOnWhileTablesComeAndGo) {
    Query query(data, "SELECT * FROM Lide WHERE Cislo IS NOT NULL");
    std::string walked;
    for (query.open(); !query.eof(); query.next()) {
        walked += query.text("Prijmeni") + query.text("Kc") + query.text("Zenaty") + " ";
        data.create_table({"Prace", {{"A", store::FieldType::int16}}, {}});
        data.delete_table("Prace");
    }
    EXPECT_EQ(walked, "P11.25false P22.25true P33.25false ");
    walked.clear();
    for (query.open(); !query.eof(); query.next()) {
        Transaction transaction(data);
        data.execute("UPDATE Lide SET Kc = 0");
        walked += std::string(query.text_view(query.column("Prijmeni")));
    }
    EXPECT_EQ(walked, "P1P2P3");
    query.open();
    data.delete_table("Lide");
    EXPECT_EQ(query.integer("Cislo"), 1);
    query.close();
    EXPECT_TRUE(query.eof());
    EXPECT_NE(error_of([&] { query.open(); }), "");
}

TEST_F(EngineQuery, RowsWrittenDuringAWalkGoToAnotherTable) {
    store::TableDef copy = people;
    copy.name = "Kopie";
    data.create_table(copy);
    Transaction transaction(data);
    store::Inserter rows(data, "Kopie", {"Prijmeni"});
    Query query(data, "SELECT Prijmeni FROM Lide ORDER BY Prijmeni DESC");
    for (query.open(); !query.eof(); query.next()) {
        rows.set(0, query.text_view(0));
        rows.insert();
    }
    transaction.commit();
    EXPECT_EQ(read("SELECT Prijmeni FROM Kopie"), "P3 / P2 / P1 / ");
}

TEST_F(EngineQuery, MaterializedResultKeepsColumnsAndValues) {
    Query query(data, "SELECT Cislo, Narozen FROM Lide WHERE Cislo < 3 ORDER BY Cislo DESC");
    const store::Rows rows = store::read_all(query);
    EXPECT_EQ(rows.columns, (std::vector<std::string>{"Cislo", "Narozen"}));
    ASSERT_EQ(rows.rows.size(), 2u);
    EXPECT_EQ(rows.rows[0][static_cast<std::size_t>(rows.column("NAROZEN"))],
              Value(base::Datum{2000, 1, 2}));
    expect_error(error_of([&] { rows.column("x"); }), {"x"});
}

// Statements that differ from worker to worker must neither pile up nor mix.
TEST_F(EngineQuery, ThousandsOfDifferentTextsStayRight) {
    for (int i = 0; i < 2000; ++i) {
        const std::string wanted = std::to_string(i % 3 + 1);
        ASSERT_EQ(read("SELECT Prijmeni FROM Lide WHERE Cislo = " + wanted + " AND Cislo < " +
                       std::to_string(i + 10)),
                  "P" + wanted);
    }
}

}  // namespace
}  // namespace zkouska
