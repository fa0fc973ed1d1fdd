// A connection in a folder of its own, and short ways to fill and read tables.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/query.h"
#include "store/table.h"
#include "support/docasna_slozka.h"

namespace zkouska {

inline const store::TableDef people{"Lide.db",
                                    {{"Pocitadlo", store::FieldType::autoincrement},
                                     {"Cislo", store::FieldType::int32},
                                     {"Prijmeni", store::FieldType::text, 30},
                                     {"Kc", store::FieldType::number},
                                     {"Zenaty", store::FieldType::boolean},
                                     {"Narozen", store::FieldType::date}},
                                    {{"Index1", {"Pocitadlo"}, true, true, false},
                                     {"By_Jmeno", {"Prijmeni", "Pocitadlo"}, false, false, false}}};

/// The message of the StoreError that the action throws; "" when it throws none.
template <class Action>
std::string error_of(Action action) {
    try {
        action();
    } catch (const store::StoreError& error) {
        return error.what();
    }
    return "";
}

inline void expect_error(const std::string& message, std::initializer_list<const char*> parts) {
    EXPECT_FALSE(message.empty()) << "no error";
    for (const char* part : parts) {
        EXPECT_NE(message.find(part), std::string::npos) << '"' << part << "\" not in: " << message;
    }
}

class EngineTest : public ::testing::Test {
  protected:
    DocasnaSlozka folder;
    store::Connection data{folder.cesta()};

    /// Rows of a SELECT: values joined by "|", rows by " / ".
    std::string read(std::string_view select) { return read(data, select); }
    static std::string read(store::Connection& connection, std::string_view select) {
        store::Query query(connection, select);
        std::string out;
        for (query.open(); !query.eof(); query.next()) {
            if (!out.empty()) out += " / ";
            for (int i = 0; i < query.column_count(); ++i) {
                out += (i == 0 ? "" : "|") + query.text(i);
            }
        }
        return out;
    }

    void add(std::string_view table, std::string_view field,
             const std::vector<store::Value>& values) {
        store::Transaction transaction(data);
        store::Inserter rows(data, table, {std::string(field)});
        for (const store::Value& value : values) {
            rows.set(0, value);
            rows.insert();
        }
        transaction.commit();
    }

    int execute(std::string_view statement) {
        store::Transaction transaction(data);
        const int rows = data.execute(statement);
        transaction.commit();
        return rows;
    }

    void open(store::Table& table, std::string_view name, std::string_view index = "") {
        table.set_connection(data);
        table.set_table_name(name);
        table.set_index_name(index);
        table.open();
    }

    /// Surnames of an open table from the first row to the end.
    static std::string walk(store::Table& table) {
        std::string out;
        for (table.first(); !table.eof(); table.next())
            out += table.text("Prijmeni") + " ";
        return out;
    }
};

}  // namespace zkouska
