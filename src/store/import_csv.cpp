// Import of CSV: every cell is read and checked first, then all rows are written at once.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <fmt/format.h>
#include <limits>
#include <optional>
#include <unordered_map>

#include "base/kodova_stranka.h"
#include "base/text.h"
#include "store/catalogue.h"
#include "store/csv.h"
#include "store/engine_sql.h"
#include "store/table.h"
#include "store/transfer.h"

namespace store {

namespace {

template <class Number>
std::optional<Number> number_from(const std::string& cell) {
    Number number{};
    const char* const end = cell.data() + cell.size();
    const auto read = std::from_chars(cell.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end) return {};
    return number;
}

std::optional<Value> whole_number(const std::string& cell, std::int64_t low, std::int64_t high) {
    const auto number = number_from<std::int64_t>(cell);
    if (!number || *number < low || *number > high) return {};
    return Value(*number);
}

std::optional<Value> boolean(const std::string& cell) {
    if (cell == "1" || same_name(cell, "true")) return Value(true);
    if (cell == "0" || same_name(cell, "false")) return Value(false);
    return {};
}

std::optional<Value> text(const std::string& cell, int size) {
    const bool good = base::pocet_znaku(cell) <= static_cast<std::size_t>(size) &&
                      base::je_v_1250(cell) && cell.find('\0') == std::string::npos;
    if (!good) return {};
    return Value(cell);
}

/// The value of a cell, or nothing when the field cannot hold it. An empty cell is an empty field;
/// only the row key cannot be empty.
std::optional<Value> value_of(const std::string& cell, const FieldDef& field) {
    using Int16 = std::numeric_limits<std::int16_t>;
    using Int32 = std::numeric_limits<std::int32_t>;
    if (field.type == FieldType::autoincrement) return whole_number(cell, 1, Int32::max());
    if (cell.empty()) return Value();
    switch (field.type) {
        case FieldType::int16:
            return whole_number(cell, Int16::min(), Int16::max());
        case FieldType::int32:
            return whole_number(cell, Int32::min(), Int32::max());
        case FieldType::number: {
            const auto number = number_from<double>(cell);
            if (!number || !std::isfinite(*number)) return {};
            return Value(*number);
        }
        case FieldType::boolean:
            return boolean(cell);
        case FieldType::date: {
            const auto day = base::datum_z_iso(cell);
            return day ? std::optional<Value>(*day) : std::nullopt;
        }
        case FieldType::timestamp: {
            const auto time = base::datum_cas_z_iso(cell);
            return time ? std::optional<Value>(*time) : std::nullopt;
        }
        default:
            return text(cell, field.size);
    }
}

std::string_view expected_form(FieldType type) {
    switch (type) {
        case FieldType::autoincrement:
            return " větší než 0";
        case FieldType::number:
            return " s desetinnou tečkou";
        case FieldType::boolean:
            return " true, false, 1 nebo 0";
        case FieldType::date:
            return " ve tvaru 2022-12-31";
        case FieldType::timestamp:
            return " ve tvaru 2022-12-31T23:59:59";
        case FieldType::text:
            return " ve znacích kódové stránky 1250";
        default:
            return "";
    }
}

class Import {
  public:
    Import(Connection& connection, std::string_view table, std::string_view file, bool replace)
        : connection_(connection),
          file_(file),
          replace_(replace),
          exists_(connection.table_exists(table)),
          table_(exists_ ? connection.describe(table) : definition_of(table)) {}

    ImportResult run(std::string_view csv) {
        const auto rows = parse_csv(csv, file_);
        if (rows.empty()) {
            add_error(1, "chybí řádek se jmény polí");
        } else if (read_header(rows[0])) {
            for (auto row = rows.begin() + 1; row != rows.end(); ++row)
                check_row(*row);
            check_unique_indexes(rows);
        }
        if (result_.errors.empty()) write(rows);
        return std::move(result_);
    }

  private:
    void add_error(std::size_t line, std::string_view what) {
        result_.errors.push_back(fmt::format("Soubor \"{}\", řádek {}: {}.", file_, line, what));
    }

    const FieldDef& field(std::size_t cell) const {
        return table_.fields[static_cast<std::size_t>(positions_[cell])];
    }

    bool read_header(const CsvRow& header) {
        for (const auto& name : header.fields) {
            const int position = table_.field_index(name);
            if (position < 0) {
                add_error(header.line,
                          fmt::format("pole \"{}\" tabulka {} nemá", name, table_.name));
            } else if (std::count(positions_.begin(), positions_.end(), position) > 0) {
                add_error(header.line, fmt::format("pole \"{}\" je uvedeno dvakrát", name));
            }
            positions_.push_back(position);
        }
        return result_.errors.empty();
    }

    void check_row(const CsvRow& row) {
        if (row.fields.size() != positions_.size()) {
            add_error(row.line, fmt::format("počet hodnot je {}, očekává se {}", row.fields.size(),
                                            positions_.size()));
            return;
        }
        for (std::size_t i = 0; i < positions_.size(); ++i) {
            if (value_of(row.fields[i], field(i))) continue;
            add_error(row.line,
                      fmt::format("pole {}: hodnota \"{}\" není přípustná, očekává se {}{}",
                                  field(i).name, row.fields[i], type_in_words(field(i)),
                                  expected_form(field(i).type)));
        }
    }

    void check_unique_indexes(const std::vector<CsvRow>& rows) {
        for (const auto& index : table_.indexes) {
            if (index.unique || index.primary) check_unique(index, rows);
        }
    }

    /// Compares the rows with one another and with those that stay in the table.
    void check_unique(const IndexDef& index, const std::vector<CsvRow>& rows) {
        std::vector<std::size_t> cells;
        for (const auto& name : index.fields) {
            const auto cell =
                std::find(positions_.begin(), positions_.end(), table_.field_index(name));
            if (cell == positions_.end()) return;
            cells.push_back(static_cast<std::size_t>(cell - positions_.begin()));
        }
        auto lines = keys_in_table(index);
        for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
            if (row->fields.size() != positions_.size()) continue;
            std::vector<std::string> values;
            for (const auto cell : cells) {
                const auto value = value_of(row->fields[cell], field(cell));
                values.push_back(value ? value->as_text() : "");
            }
            const auto key = key_of(index, values);
            if (key.empty()) continue;
            const auto [known, added] = lines.emplace(key, row->line);
            if (added) continue;
            add_error(row->line, fmt::format("pole {}: hodnota \"{}\" {}, očekává se jen jednou",
                                             fmt::join(index.fields, ";"), fmt::join(values, ";"),
                                             known->second == 0
                                                 ? "už v tabulce je"
                                                 : fmt::format("je i na řádku {}", known->second)));
        }
    }

    std::unordered_map<std::string, std::size_t> keys_in_table(const IndexDef& index) {
        std::unordered_map<std::string, std::size_t> keys;
        if (replace_ || !exists_) return keys;
        Query query(connection_, fmt::format("SELECT {} FROM {}", fmt::join(index.fields, ", "),
                                             in_quotes(table_.name)));
        for (query.open(); !query.eof(); query.next()) {
            std::vector<std::string> values;
            for (int i = 0; i < query.column_count(); ++i)
                values.push_back(query.text(i));
            if (auto key = key_of(index, values); !key.empty()) keys.emplace(std::move(key), 0);
        }
        return keys;
    }

    /// "" when a value is empty: empty fields never collide.
    static std::string key_of(const IndexDef& index, const std::vector<std::string>& values) {
        std::string key;
        for (const auto& value : values) {
            if (value.empty()) return "";
            key += (index.case_sensitive ? value : base::malymi(value)) + '\0';
        }
        return key;
    }

    void write(const std::vector<CsvRow>& rows) {
        Transaction transaction(connection_);
        if (!exists_) connection_.create_table(table_);
        if (replace_ && exists_) connection_.execute("DELETE FROM " + in_quotes(table_.name));
        std::vector<std::string> names;
        for (std::size_t i = 0; i < positions_.size(); ++i)
            names.push_back(field(i).name);
        {
            Inserter inserter(connection_, table_.name, names);
            for (std::size_t i = 1; i < rows.size() && result_.errors.empty(); ++i) {
                insert(inserter, rows[i]);
            }
        }
        if (!result_.errors.empty()) return;
        transaction.commit();
        result_.rows = rows.size() - 1;
    }

    /// What the checks let through the engine may still refuse; then nothing is written.
    void insert(Inserter& inserter, const CsvRow& row) {
        try {
            for (std::size_t i = 0; i < positions_.size(); ++i) {
                if (!row.fields[i].empty()) inserter.set(i, *value_of(row.fields[i], field(i)));
            }
            inserter.insert();
        } catch (const StoreError& error) {
            add_error(row.line, error.what());
        }
    }

    Connection& connection_;
    std::string_view file_;
    bool replace_;
    bool exists_;
    TableDef table_;
    std::vector<int> positions_;  ///< of the cells' fields in the table
    ImportResult result_;
};

}  // namespace

ImportResult import_csv(Connection& connection, std::string_view table, std::string_view csv,
                        std::string_view file, bool replace) {
    try {
        return Import(connection, table, file, replace).run(csv);
    } catch (const StoreError&) {
        throw;
    } catch (const base::ChybaDat& error) {
        return {0, {error.what()}};
    }
}

}  // namespace store
