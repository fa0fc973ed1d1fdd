// What fields take, by the open table and by mass insertion alike.
#include <cmath>
#include <limits>

#include "store/engine_fixture.h"

namespace zkouska {
namespace {

using store::FieldType;
using store::Value;

const store::TableDef all_kinds{"Druhy",
                                {{"Pocitadlo", FieldType::autoincrement},
                                 {"Male", FieldType::int16},
                                 {"Velke", FieldType::int32},
                                 {"Cislo", FieldType::number},
                                 {"Ano", FieldType::boolean},
                                 {"Den", FieldType::date},
                                 {"Cas", FieldType::timestamp},
                                 {"Text", FieldType::text, 5}},
                                {}};

std::string repeated(const std::string& text, int times) {
    std::string out;
    for (int i = 0; i < times; ++i)
        out += text;
    return out;
}

class EngineValues : public EngineTest {
  protected:
    EngineValues() { data.create_table(all_kinds); }
};

struct Case {
    const char* field;
    Value value;
    const char* refused_with;  ///< nullptr: taken and read back the same
};

const double nan = std::numeric_limits<double>::quiet_NaN();
const base::DatumCas noon{{2022, 1, 31}, 12, 0, 5};

const Case cases[] = {
    {"Pocitadlo", 5, "pole plní databáze sama"},
    {"Male", 32767, nullptr},
    {"Male", -32768, nullptr},
    {"Male", 32768, "celé číslo -32768"},
    {"Male", "12", "celé číslo -32768"},
    {"Male", true, "celé číslo -32768"},
    {"Male", 1.5, "číslo není celé"},
    {"Velke", 2147483647, nullptr},
    {"Velke", std::int64_t{2147483648}, "celé číslo -2147483648"},
    {"Velke", std::int64_t{-2147483649}, "celé číslo -2147483648"},
    {"Velke", 1e300, "číslo není celé"},
    {"Velke", nan, "není to číslo"},
    {"Velke", base::Datum{2022, 1, 1}, "celé číslo -2147483648"},
    {"Cislo", 0.1, nullptr},
    {"Cislo", -1e15, nullptr},
    {"Cislo", 5e-324, nullptr},
    {"Cislo", nan, "není to číslo"},
    {"Cislo", std::numeric_limits<double>::infinity(), "není to číslo"},
    {"Cislo", "1", "očekává se číslo"},
    {"Ano", true, nullptr},
    {"Ano", false, nullptr},
    {"Ano", 1, "logická hodnota"},
    {"Den", base::Datum{2024, 2, 29}, nullptr},
    {"Den", base::Datum{2023, 2, 29}, "takový den"},
    {"Den", noon, "očekává se datum"},
    {"Den", "2022-01-01", "očekává se datum"},
    {"Cas", noon, nullptr},
    {"Cas", base::DatumCas{{2022, 1, 1}, 24, 0, 0}, "takový den nebo čas"},
    {"Text", "", nullptr},
    {"Text", "žluťá", nullptr},
    {"Text", "€„“–", nullptr},
    {"Text", "žluťák", "text má 6 znaků"},
    {"Text", "Ω", "1250"},
    {"Text", "a\xc3", "UTF-8"},
    {"Text", std::string("a\0b", 3), "znak nula"},
    {"Text", 7, "nejvýše 5 znaků"},
};

void expect_outcome(const Case& c, const std::string& error, const Value& stored) {
    if (c.refused_with) {
        expect_error(error, {"tabulky.sqlite", "Druhy", c.field, c.refused_with});
        EXPECT_TRUE(stored.is_empty());
    } else {
        EXPECT_EQ(error, "");
        EXPECT_EQ(stored, c.value);
    }
}

TEST_F(EngineValues, TableAndInserterTakeAndRefuseTheSame) {
    store::Table table;
    open(table, "Druhy");
    store::Transaction transaction(data);
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.field) + ": " + c.value.as_text());
        table.append();
        std::string error = error_of([&] { table.set(c.field, c.value); });
        const bool is_counter = table.definition().field_index(c.field) == 0;
        expect_outcome(c, error, table.value(c.field));
        table.post();
        if (is_counter) continue;
        expect_outcome(c, error, table.value(c.field));

        store::Inserter rows(data, "Druhy", {c.field});
        error = error_of([&] { rows.set(0, c.value); });
        const std::int64_t key = rows.insert();
        table.refresh();
        ASSERT_TRUE(table.go_to(key));
        expect_outcome(c, error, table.value(c.field));
    }
}

TEST_F(EngineValues, WholeNumbersFitNumbersAndBack) {
    store::Transaction transaction(data);
    store::Inserter rows(data, "Druhy", {"Velke", "Cislo", "Text"});
    rows.set(0, 12.0);
    rows.set(1, 12);
    rows.set(2, std::string_view("abc"));
    EXPECT_EQ(rows.insert(), 1);
    EXPECT_EQ(rows.insert(), 2);
    EXPECT_EQ(read("SELECT Velke, Cislo, Text, Ano FROM Druhy"), "12|12|abc| / |||");
    store::Query query(data, "SELECT * FROM Druhy");
    query.open();
    EXPECT_EQ(query.value("Velke"), Value(12));
    EXPECT_EQ(query.value("Cislo"), Value(12.0));
}

TEST_F(EngineValues, InserterNamesWrongFieldsAndNeedsATransaction) {
    expect_error(error_of([&] { store::Inserter(data, "Druhy", {"Vaha"}); }), {"Druhy", "Vaha"});
    expect_error(error_of([&] { store::Inserter(data, "Neni", {}); }), {"Neni", "neexistuje"});
    store::Inserter rows(data, "Druhy", {"Male"});
    expect_error(error_of([&] { rows.set(1, 5); }), {"Druhy"});
    expect_error(error_of([&] { rows.insert(); }), {"Druhy", "transakci"});
}

TEST_F(EngineValues, InserterKeepsARowKeyFromOutside) {
    store::Transaction transaction(data);
    store::Inserter rows(data, "Druhy", {"Pocitadlo", "Male"});
    for (const int key : {7, 3}) {
        rows.set(0, key);
        EXPECT_EQ(rows.insert(), key);
    }
    rows.set(1, 1);
    EXPECT_EQ(rows.insert(), 8);
    for (const std::int64_t key : {std::int64_t{0}, std::int64_t{2147483648}}) {
        expect_error(error_of([&] { rows.set(0, key); }), {"Druhy", "Pocitadlo"});
    }
    rows.set(0, 2147483647);
    rows.insert();
    expect_error(error_of([&] { rows.insert(); }), {"Druhy", "vyčerpáno"});
}

TEST(EngineValue, ReadsEachKindAsEachOther) {
    struct Reading {
        Value value;
        const char* text;
        std::int64_t whole;
        double number;
        bool boolean;
    };
    const std::string small = "0." + repeated("0", 323) + "5";
    const Reading readings[] = {{Value(), "", 0, 0, false},
                                {-7, "-7", -7, -7, true},
                                {12.0, "12", 12, 12, true},
                                {-2.75, "-2.75", -2, -2.75, true},
                                {-0.0, "0", 0, 0, false},
                                {1e21, "1000000000000000000000", 9223372036854775807, 1e21, true},
                                {5e-324, small.c_str(), 0, 5e-324, true},
                                {true, "true", 1, 1, true},
                                {"12,5", "12,5", 12, 12.5, false},
                                {"abc", "abc", 0, 0, false},
                                {"True", "True", 0, 0, true},
                                {base::Datum{2022, 1, 5}, "2022-01-05", 0, 0, false},
                                {noon, "2022-01-31T12:00:05", 0, 0, false}};
    for (const Reading& r : readings) {
        SCOPED_TRACE(r.text);
        EXPECT_EQ(r.value.as_text(), r.text);
        EXPECT_EQ(r.value.as_integer(), r.whole);
        EXPECT_EQ(r.value.as_number(), r.number);
        EXPECT_EQ(r.value.as_boolean(), r.boolean);
    }
    EXPECT_EQ(Value(noon).as_date(), noon.datum);
    EXPECT_EQ(Value("2022-01-05").as_date(), base::Datum{});
}

}  // namespace
}  // namespace zkouska
