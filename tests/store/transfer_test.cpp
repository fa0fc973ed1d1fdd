// Import and export: every error told, all or nothing, and rows that come back as they were.
#include "store/transfer.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "store/catalogue.h"
#include "store/table.h"
#include "support/docasna_slozka.h"

namespace {

using store::FieldType;

const store::TableDef every_type{
    "Vse",
    {{"Pocitadlo", FieldType::autoincrement},
     {"Male", FieldType::int16},
     {"Velke", FieldType::int32},
     {"Cislo", FieldType::number},
     {"Ano", FieldType::boolean},
     {"Den", FieldType::date},
     {"Cas", FieldType::timestamp},
     {"Text", FieldType::text, 5}},
    {{"Index1", {"Pocitadlo"}, true, true, false}, {"By_Text", {"Text"}, false, true, false}}};

class Transfer : public testing::Test {
  protected:
    Transfer() { connection.create_table(every_type); }

    store::ImportResult import(std::string_view csv, bool replace = false) {
        return store::import_csv(connection, "Vse", csv, "vse.csv", replace);
    }
    std::string table(const std::string& name = "Vse") {
        return store::export_csv(connection, name);
    }

    zkouska::DocasnaSlozka folder;
    store::Connection connection{folder.cesta()};
};

const std::string header = "Pocitadlo,Male,Velke,Cislo,Ano,Den,Cas,Text\n";

TEST_F(Transfer, ReadsEveryTypeInAnyOrderOfFields) {
    const auto result = import(
        "TEXT,den,cas,ano,Cislo,Velke,Male\r\n"
        "\"a,\"\"\",2022-02-28,2022-01-05T08:00:01,TRUE,-0.1,-2147483648,-32768\r\n"
        "žluťo,,2022-01-05 08:00:01,0,1e3,2147483647,32767\r\n"
        "\r\n"
        ",,,,,,\r\n");
    EXPECT_EQ(result.errors, std::vector<std::string>{});
    EXPECT_EQ(result.rows, 3u);
    EXPECT_EQ(table(), header +
                           "1,-32768,-2147483648,-0.1,true,2022-02-28,2022-01-05T08:00:01,"
                           "\"a,\"\"\"\n"
                           "2,32767,2147483647,1000,false,,2022-01-05T08:00:01,žluťo\n"
                           "3,,,,,,,\n");
}

TEST_F(Transfer, TellsEveryErrorAndWritesNothing) {
    ASSERT_EQ(import("Text\nje\n").rows, 1u);
    const std::string before = table();
    const struct {
        const char* csv;
        std::vector<std::string> errors;  ///< what each error has behind the file's name
    } cases[] = {
        {"", {"řádek 1: chybí řádek se jmény polí"}},
        {"Text,Neni,text\n",
         {"řádek 1: pole \"Neni\"", "řádek 1: pole \"text\" je uvedeno dvakrát"}},
        {"Text,Male\na\nb,1,2\nc,1\n",
         {"řádek 2: počet hodnot je 1, očekává se 2", "řádek 3: počet hodnot je 3"}},
        {"Male\n32768\n-32769\n1.0\n\" 1\"\n+1\nx\n",
         {"řádek 2: pole Male: hodnota \"32768\" není přípustná, očekává se celé číslo -32768 až "
          "32767",
          "řádek 3", "řádek 4", "řádek 5", "řádek 6", "řádek 7"}},
        {"Velke,Male\n2147483648,a\n",
         {"pole Velke: hodnota \"2147483648\" není přípustná, očekává se celé číslo -2147483648",
          "pole Male"}},
        {"Cislo\n\"1,5\"\n1e999\nnan\ninf\n0x10\n",
         {"hodnota \"1,5\" není přípustná, očekává se číslo s desetinnou tečkou", "řádek 3",
          "řádek 4", "řádek 5", "řádek 6"}},
        {"Ano\nano\n2\n", {"očekává se logická hodnota true, false, 1 nebo 0", "řádek 3"}},
        {"Den\n1.2.2022\n2022-02-29\n2022-2-1\n",
         {"očekává se datum ve tvaru", "řádek 3", "řádek 4"}},
        {"Cas\n2022-02-28T24:00:00\n2022-02-28\n", {"očekává se datum a čas", "řádek 3"}},
        {"Text\nžluťou\nα\n",
         {"hodnota \"žluťou\" není přípustná, očekává se text, nejvýše 5 znaků", "\"α\""}},
        {"Pocitadlo\n0\n\"\"\n",
         {"hodnota \"0\" není přípustná, očekává se pořadové číslo větší než 0"}},
        {"Pocitadlo,Male\n,1\n-5,1\n", {"řádek 2: pole Pocitadlo: hodnota \"\"", "řádek 3"}},
        {"Pocitadlo\n7\n7\n1\n",
         {"řádek 3: pole Pocitadlo: hodnota \"7\" je i na řádku 2, očekává se jen jednou",
          "řádek 4: pole Pocitadlo: hodnota \"1\" už v tabulce je"}},
        {"Text\nŽa\nža\nJE\n",
         {"řádek 3: pole Text: hodnota \"ža\" je i na řádku 2",
          "řádek 4: pole Text: hodnota \"JE\" už"}},
        {"Text\n\"a\nb\n", {"řádek 2: pole v uvozovkách nekončí"}},
        {"Text\na\nb\nc\n\xC3\n", {"řádek 5: text není v kódování UTF-8"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.csv);
        const auto result = import(c.csv);
        EXPECT_EQ(result.rows, 0u);
        ASSERT_EQ(result.errors.size(), c.errors.size())
            << (result.errors.empty() ? "" : result.errors.front());
        for (std::size_t i = 0; i < c.errors.size(); ++i) {
            EXPECT_TRUE(result.errors[i].starts_with("Soubor \"vse.csv\", "));
            EXPECT_NE(result.errors[i].find(c.errors[i]), std::string::npos) << result.errors[i];
        }
        EXPECT_EQ(table(), before);
    }
}

TEST_F(Transfer, ReplaceTakesTheOldRowsAwayOnlyWhenTheNewOnesAreGood) {
    ASSERT_EQ(import("Text\na\nb\n").rows, 2u);
    EXPECT_EQ(import("Text\na\na\n", true).errors.size(), 1u);
    EXPECT_EQ(table(), header + "1,,,,,,,a\n2,,,,,,,b\n");
    EXPECT_EQ(import("Pocitadlo,Text\n9,a\n2,x\n", true).rows, 2u);
    EXPECT_EQ(table(), header + "2,,,,,,,x\n9,,,,,,,a\n");
    EXPECT_EQ(import("Text\nq\n").rows, 1u) << "the counter goes on behind the highest one";
    EXPECT_EQ(table(), header + "2,,,,,,,x\n9,,,,,,,a\n10,,,,,,,q\n");
}

TEST_F(Transfer, MissingTableOfTheCatalogueIsMadeWithItsRows) {
    const auto import_to = [&](const char* name, const char* csv) {
        return store::import_csv(connection, name, csv, "x.csv", false);
    };
    EXPECT_EQ(import_to("listin03.db", "Modul\nx\n").errors.size(), 1u);
    EXPECT_FALSE(connection.table_exists("Listin03"));
    EXPECT_EQ(import_to("listin03.db", "Modul,Hodnota\n71,2.5\n").rows, 1u);
    EXPECT_EQ(connection.describe("Listin03").fields, store::definition_of("Listin03").fields);
    EXPECT_THROW(import_to("Neni", "Modul\n1\n"), store::StoreError);
}

TEST_F(Transfer, JsonTellsEmptyFromZeroAndEscapes) {
    ASSERT_EQ(import("Male,Cislo,Ano,Den,Text\n0,0.5,true,2022-01-05,\"\"\"\\\n\t\"\n").rows, 1u);
    EXPECT_EQ(
        store::export_json(connection, "Vse"),
        "[\n  {\"Pocitadlo\": 1, \"Male\": 0, \"Velke\": null, \"Cislo\": 0.5, \"Ano\": true, "
        "\"Den\": \"2022-01-05\", \"Cas\": null, \"Text\": \"\\\"\\\\\\u000a\\u0009\"}\n]\n");
    ASSERT_EQ(import("Male\n", true).rows, 0u);
    EXPECT_EQ(store::export_json(connection, "Vse"), "[]\n");
}

/// A row of arbitrary values; about one in four is empty.
std::vector<store::Value> any_row() {
    using rc::gen::inRange;
    std::vector<store::Value> row = {
        *inRange<int>(-32768, 32768),
        *rc::gen::arbitrary<std::int32_t>(),
        std::bit_cast<double>(*rc::gen::suchThat(
            rc::gen::arbitrary<std::uint64_t>(),
            [](std::uint64_t bits) { return std::isfinite(std::bit_cast<double>(bits)); })),
        *rc::gen::arbitrary<bool>(),
        base::z_poradi(*inRange<std::int64_t>(-20000, 40000)),
        base::DatumCas{base::z_poradi(*inRange<std::int64_t>(0, 40000)), *inRange(0, 24),
                       *inRange(0, 60), *inRange(0, 60)},
    };
    std::string text;
    const auto letters = *rc::gen::container<std::vector<std::string>>(
        rc::gen::element<std::string>("a", ",", "\"", "\n", "\r\n", "Ž", "€", " ", "\\"));
    for (std::size_t i = 0; i < letters.size() && i < 20; ++i)
        text += letters[i];
    if (!text.empty()) row.emplace_back(text);
    row.resize(7);
    for (auto& value : row) {
        if (*inRange(0, 4) == 0) value = store::Value();
    }
    return row;
}

RC_GTEST_FIXTURE_PROP(Transfer, ExportReadsBackTheSame, ()) {
    const store::Transaction never_committed(connection);
    auto layout = every_type;
    layout.fields.back().size = 40;
    layout.indexes.pop_back();
    connection.create_table(layout);
    {
        store::Inserter inserter(connection, "Vse",
                                 {"Male", "Velke", "Cislo", "Ano", "Den", "Cas", "Text"});
        const int count = *rc::gen::inRange(0, 8);
        for (int i = 0; i < count; ++i) {
            const auto row = any_row();
            for (std::size_t field = 0; field < row.size(); ++field) {
                inserter.set(field, row[field]);
            }
            inserter.insert();
        }
    }
    const auto rows = [&] {
        store::Query query(connection, "SELECT * FROM Vse");
        return store::read_all(query).rows;
    };
    const auto before = rows();
    const auto result = import(table(), true);
    RC_ASSERT(result.errors == std::vector<std::string>{});
    RC_ASSERT(rows() == before);
}

}  // namespace
