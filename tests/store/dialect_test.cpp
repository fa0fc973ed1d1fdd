// Runs the text files in dialect/ against a real connection in a temporary folder. A file is a list
// of sections, run in order over one set of tables:
//
//     # a comment line
//     [rows Deti]            rows added to a table of the catalogue, as CSV
//     Cislo_pracovnika,Jmeno
//     7,Eva
//
//     [query children]       a SELECT, then "----", then its rows: values joined by "|",
//     SELECT Jmeno           an empty field as "~"
//     FROM Deti WHERE Cislo_pracovnika = :cislo
//     :cislo = 7             parameters: a whole number, a day yyyy-mm-dd, or else a text
//     ----
//     Eva
//
//     [change fill]          a statement without rows, "----", the number of rows touched
//     [error unknown table]  a statement, "----", pieces of text that its error must have, one a
//     line
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "base/datum.h"
#include "store/query.h"
#include "store/transfer.h"
#include "support/docasna_slozka.h"

namespace {

struct Section {
    std::string head;
    int line = 0;
    std::vector<std::string> body;
    std::vector<std::string> parameters;
    std::vector<std::string> expected;
};

std::vector<Section> read_sections(const std::filesystem::path& file) {
    std::ifstream stream(file);
    std::vector<Section> sections;
    bool behind_rule = false;
    int number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        if (line.empty() || line.starts_with("#")) continue;
        if (line.starts_with("[")) {
            sections.push_back({line.substr(1, line.size() - 2), number, {}, {}, {}});
            behind_rule = false;
        } else if (line == "----") {
            behind_rule = true;
        } else if (behind_rule) {
            sections.back().expected.push_back(line);
        } else {
            auto& section = sections.back();
            (line.starts_with(":") ? section.parameters : section.body).push_back(line);
        }
    }
    return sections;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines)
        text += line + "\n";
    return text;
}

store::Value parameter_value(const std::string& text) {
    if (const auto day = base::datum_z_iso(text)) return *day;
    if (!text.empty() && text.find_first_not_of("0123456789") == std::string::npos) {
        return std::stoi(text);
    }
    return text;
}

std::vector<std::string> rows_of(store::Connection& connection, const Section& section) {
    store::Query query(connection, joined(section.body));
    for (const auto& line : section.parameters) {
        const auto sign = line.find(" =");
        const auto value = line.size() > sign + 3 ? line.substr(sign + 3) : "";
        query.set(line.substr(1, sign - 1), parameter_value(value));
    }
    std::vector<std::string> rows;
    for (query.open(); !query.eof(); query.next()) {
        std::string row;
        for (int i = 0; i < query.column_count(); ++i) {
            row += (i > 0 ? "|" : "") + (query.is_empty(i) ? "~" : query.text(i));
        }
        rows.push_back(row);
    }
    return rows;
}

int change(store::Connection& connection, const Section& section) {
    store::Transaction transaction(connection);
    const int touched = connection.execute(joined(section.body));
    transaction.commit();
    return touched;
}

void expect_error(store::Connection& connection, const Section& section) {
    const auto statement = joined(section.body);
    try {
        if (statement.starts_with("SELECT")) {
            rows_of(connection, section);
        } else {
            change(connection, section);
        }
        ADD_FAILURE() << "no error";
    } catch (const store::StoreError& error) {
        for (const auto& piece : section.expected) {
            EXPECT_NE(std::string(error.what()).find(piece), std::string::npos) << error.what();
        }
    }
}

void run(store::Connection& connection, const Section& section) {
    const auto kind = section.head.substr(0, section.head.find(' '));
    if (kind == "rows") {
        const auto result = store::import_csv(connection, section.head.substr(5),
                                              joined(section.body), section.head, false);
        EXPECT_EQ(joined(result.errors), "");
    } else if (kind == "query") {
        EXPECT_EQ(joined(rows_of(connection, section)), joined(section.expected));
    } else if (kind == "change") {
        EXPECT_EQ(std::to_string(change(connection, section)) + "\n", joined(section.expected));
    } else {
        ASSERT_EQ(kind, "error");
        ASSERT_FALSE(section.expected.empty());
        expect_error(connection, section);
    }
}

class Dialect : public testing::TestWithParam<std::string> {};

TEST_P(Dialect, Statements) {
    const zkouska::DocasnaSlozka folder;
    store::Connection connection(folder.cesta());
    const auto file = std::filesystem::path(ZORV_TEST_DATA) / "dialect" / (GetParam() + ".test");
    const auto sections = read_sections(file);
    ASSERT_FALSE(sections.empty()) << file;
    for (const auto& section : sections) {
        SCOPED_TRACE(file.filename().string() + ":" + std::to_string(section.line) + " " +
                     section.head);
        try {
            run(connection, section);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    }
}

std::vector<std::string> test_files() {
    std::vector<std::string> names;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path(ZORV_TEST_DATA) / "dialect")) {
        if (entry.path().extension() == ".test") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Files, Dialect, testing::ValuesIn(test_files()),
                         [](const auto& name) { return name.param; });

}  // namespace
