// CSV: what is read, what is refused and on which line, and that written lines read back.
#include "store/csv.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "base/chyba.h"

namespace {

using Fields = std::vector<std::string>;

TEST(Csv, Reads) {
    const struct {
        const char* text;
        std::vector<Fields> rows;
        std::vector<std::size_t> lines;
    } cases[] = {
        {"", {}, {}},
        {"a,b\n1,2\n", {{"a", "b"}, {"1", "2"}}, {1, 2}},
        {"a,b\r\n1,2", {{"a", "b"}, {"1", "2"}}, {1, 2}},
        {"\xEF\xBB\xBFž\n", {{"ž"}}, {1}},
        {"\n\r\na\n\nb\n", {{"a"}, {"b"}}, {3, 5}},
        {",\n", {{"", ""}}, {1}},
        {"a,\n", {{"a", ""}}, {1}},
        {"\"a,b\",\"\"\"x\"\"\",\"\"\n", {{"a,b", "\"x\"", ""}}, {1}},
        {"\"1\n2\r\n3\",x\ny,z\n", {{"1\n2\r\n3", "x"}, {"y", "z"}}, {1, 4}},
        {" a , b \n", {{" a ", " b "}}, {1}},
    };
    for (const auto& c : cases) {
        const auto rows = store::parse_csv(c.text, "x.csv");
        ASSERT_EQ(rows.size(), c.rows.size()) << c.text;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].fields, c.rows[i]) << c.text;
            EXPECT_EQ(rows[i].line, c.lines[i]) << c.text;
        }
    }
}

TEST(Csv, RefusesNamingFileAndLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"a\nb\"c\n", "řádek 2: uvozovka uvnitř pole"},
        {"a\n\"b\"c\n", "řádek 2: text za koncovou uvozovkou"},
        {"a\n\"b\nc\nd", "řádek 2: pole v uvozovkách nekončí"},
        {"a\rb\n", "řádek 1: znak CR bez znaku LF"},
        {"a\nb\nc\xFF\n", "řádek 3: text není v kódování UTF-8"},
    };
    for (const auto& [text, message] : cases) {
        try {
            store::parse_csv(text, "mzdy.csv");
            ADD_FAILURE() << text;
        } catch (const base::ChybaDat& error) {
            EXPECT_EQ(std::string(error.what()),
                      "Soubor \"mzdy.csv\", " + std::string(message) + ".");
        }
    }
}

RC_GTEST_PROP(Csv, WrittenLinesReadBack, ()) {
    const auto character =
        rc::gen::element<std::string>("a", ",", "\"", "\n", "\r", "ž", " ", "\xEF\xBB\xBF", "");
    const auto pieces = rc::gen::container<std::vector<std::string>>(character);
    const auto rows = *rc::gen::container<std::vector<std::vector<std::vector<std::string>>>>(
        rc::gen::container<std::vector<std::vector<std::string>>>(pieces));
    std::string text;
    std::vector<Fields> expected;
    for (const auto& row : rows) {
        Fields fields;
        for (const auto& parts : row) {
            fields.emplace_back();
            for (const auto& part : parts)
                fields.back() += part;
        }
        text += store::csv_line(fields) + "\n";
        const bool blank = fields.empty() || (fields.size() == 1 && fields[0].empty());
        if (!blank) expected.push_back(fields);
    }
    std::vector<Fields> read;
    for (const auto& row : store::parse_csv(text, "x.csv"))
        read.push_back(row.fields);
    RC_ASSERT(read == expected);
}

}  // namespace
