// Czech order: in ORDER BY, in indexes, and its short cut for plain letters.
#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <sqlite3.h>

#include "base/text.h"
#include "store/collation_test.h"
#include "store/engine_fixture.h"
#include "store/sqlite_functions.h"
#include "support/skriptovana_obsluha.h"

namespace zkouska {
namespace {

int sign(int n) {
    return n < 0 ? -1 : n > 0 ? 1 : 0;
}

std::string text_of(const std::string& letters, const std::vector<unsigned>& choices) {
    std::string out;
    for (const unsigned choice : choices)
        out += letters[choice % letters.size()];
    return out;
}

class EngineOrder : public EngineTest {
  protected:
    EngineOrder() { data.create_table(people); }
    const std::vector<std::string> in_order{"0",  "9",  "a",       "A",    "á", "Á",
                                            "c",  "C",  "Čech",    "h",    "H", "Hybš",
                                            "ch", "Ch", "Chalupa", "Ivan", "ž", "Ž"};

    std::string joined() const {
        std::string out;
        for (const std::string& word : in_order)
            out += (out.empty() ? "" : " / ") + word;
        return out;
    }
};

TEST_F(EngineOrder, OrderByFollowsCzechInEveryOrderOfEntry) {
    auto words = in_order;
    for (int seed = 0; seed < 5; ++seed) {
        data.create_table(people);
        std::rotate(words.begin(), words.begin() + 5, words.end());
        std::reverse(words.begin() + seed, words.end());
        add("Lide", "Prijmeni", {words.begin(), words.end()});
        EXPECT_EQ(read("SELECT Prijmeni FROM Lide ORDER BY Prijmeni"), joined());
    }
}

TEST_F(EngineOrder, ExactIndexFollowsTheSameOrder) {
    data.add_index("Lide", {"Presne", {"Prijmeni"}, false, false, true});
    add("Lide", "Prijmeni", {in_order.rbegin(), in_order.rend()});
    store::Table table;
    open(table, "Lide", "Presne");
    std::string walked;
    for (; !table.eof(); table.next()) {
        walked += (walked.empty() ? "" : " / ") + table.text("Prijmeni");
    }
    EXPECT_EQ(walked, joined());
}

TEST_F(EngineOrder, UniqueIndexWithoutCaseRefusesNamesThatDifferInCaseOnly) {
    data.create_table(
        {"Hodnoty",
         {{"Pocitadlo", store::FieldType::autoincrement}, {"Nazev", store::FieldType::text, 50}},
         {{"By_Nazev", {"Nazev"}, false, true, false}}});
    add("Hodnoty", "Nazev", {"čárka", "carka"});
    expect_error(error_of([&] { add("Hodnoty", "Nazev", {"ČÁRKA"}); }), {"Hodnoty", "jen jednou"});
    EXPECT_EQ(read("SELECT Nazev FROM Hodnoty"), "čárka / carka");
}

TEST_F(EngineOrder, EqualityIsExact) {
    add("Lide", "Prijmeni", {"Novák", "novák", "Novak"});
    EXPECT_EQ(read("SELECT Pocitadlo FROM Lide WHERE Prijmeni = 'novák'"), "2");
    EXPECT_EQ(read("SELECT Pocitadlo FROM Lide WHERE UPPER(Prijmeni) = 'NOVÁK'"), "1 / 2");
}

TEST_F(EngineOrder, StartTestPassesAgainAndAgain) {
    SkriptovanaObsluha operator_;
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(store::test_ceskeho_trideni(folder.cesta(), operator_, true));
    }
}

int against_czech(void*, int a_size, const void* a, int b_size, const void* b) {
    const std::string_view first(static_cast<const char*>(a), static_cast<std::size_t>(a_size));
    return -first.compare({static_cast<const char*>(b), static_cast<std::size_t>(b_size)});
}

/// Leaves the folder's indexes as a library with another Czech order would have made them.
void sort_by_another_version(const std::filesystem::path& folder) {
    sqlite3* file = nullptr;
    ASSERT_EQ(sqlite3_open((folder / store::Connection::file_name()).c_str(), &file), SQLITE_OK);
    for (const char* name : {"CS", "CS_CI"})
        sqlite3_create_collation(file, name, SQLITE_UTF8, nullptr, against_czech);
    EXPECT_EQ(sqlite3_exec(file, "REINDEX; PRAGMA user_version=7", nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(file);
}

TEST_F(EngineOrder, IndexesOfAnotherVersionOfTheOrderAreMadeAnewAtOpening) {
    data.add_index("Lide", {"Presne", {"Prijmeni"}, false, false, true});
    add("Lide", "Prijmeni", {in_order.begin(), in_order.end()});
    for (const store::Access access : {store::Access::read_write, store::Access::read_only}) {
        sort_by_another_version(folder.cesta());
        EXPECT_NE(data.integrity_check(), "ok");
        store::Connection again(folder.cesta(), access);
        EXPECT_EQ(again.integrity_check(), "ok");
        EXPECT_EQ(read(again, "SELECT Prijmeni FROM Lide ORDER BY Prijmeni"), joined());
        EXPECT_EQ(read(again, "SELECT Prijmeni FROM Lide WHERE Prijmeni = 'Ch'"), "Ch");
    }
}

// The short cut must never disagree with the full order, on letters where it is taken and around.
RC_GTEST_PROP(EngineCollation, ShortCutAgreesWithTheFullOrder,
              (const std::vector<unsigned>& first, const std::vector<unsigned>& second)) {
    const std::string letters = "abcchCHhHzZ019 cC-_";
    const std::string a = text_of(letters, first), b = text_of(letters, second);
    const int full = base::porovnej_cesky(a, b);
    RC_ASSERT(sign(store::compare_no_case(a, b)) == sign(base::porovnej_cesky_bez_velikosti(a, b)));
    RC_ASSERT(sign(store::compare_exact(a, b)) == (full != 0 ? sign(full) : sign(a.compare(b))));
}

TEST(EngineCollation, EveryPairOfShortPlainTextsAgreesWithTheFullOrder) {
    const std::string letters = " 059abcdghiyzABCDGHIYZ";
    std::vector<std::string> texts{""};
    for (const char a : letters) {
        texts.push_back({a});
        for (const char b : letters)
            texts.push_back({a, b});
    }
    for (const std::string& a : texts) {
        for (const std::string& b : texts) {
            const int full = base::porovnej_cesky(a, b);
            ASSERT_EQ(sign(store::compare_exact(a, b)), full != 0 ? sign(full) : sign(a.compare(b)))
                << a << '|' << b;
            ASSERT_EQ(sign(store::compare_no_case(a, b)),
                      sign(base::porovnej_cesky_bez_velikosti(a, b)))
                << a << '|' << b;
        }
    }
}

}  // namespace
}  // namespace zkouska
