// Export of tables and query results as CSV and JSON.
#include "store/transfer.h"

#include <fmt/format.h>

#include "store/csv.h"
#include "store/engine_sql.h"

namespace store {

namespace {

Rows all_rows(Connection& connection, std::string_view table) {
    Query query(connection, "SELECT * FROM " + in_quotes(table));
    return read_all(query);
}

std::string json_text(std::string_view text) {
    std::string json = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            json += fmt::format("\\u{:04x}", static_cast<unsigned>(c));
        } else {
            json += c;
        }
    }
    return json + '"';
}

std::string json_value(const Value& value) {
    const auto& held = value.variant();
    const bool bare = std::holds_alternative<std::int64_t>(held) ||
                      std::holds_alternative<double>(held) || std::holds_alternative<bool>(held);
    if (value.is_empty()) return "null";
    return bare ? value.as_text() : json_text(value.as_text());
}

}  // namespace

std::string export_csv(Connection& connection, std::string_view table) {
    return rows_to_csv(all_rows(connection, table));
}

std::string export_json(Connection& connection, std::string_view table) {
    return rows_to_json(all_rows(connection, table));
}

std::string rows_to_csv(const Rows& rows) {
    std::string csv = csv_line(rows.columns) + "\n";
    std::vector<std::string> cells(rows.columns.size());
    for (const auto& row : rows.rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            cells[i] = row[i].as_text();
        csv += csv_line(cells) + "\n";
    }
    return csv;
}

std::string rows_to_json(const Rows& rows) {
    std::string json = "[";
    for (const auto& row : rows.rows) {
        json += json.size() == 1 ? "\n  {" : ",\n  {";
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (i > 0) json += ", ";
            json += json_text(rows.columns[i]) + ": " + json_value(row[i]);
        }
        json += "}";
    }
    return json + (rows.rows.empty() ? "]\n" : "\n]\n");
}

}  // namespace store
