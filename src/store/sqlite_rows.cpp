#include "store/sqlite_rows.h"

#include <algorithm>
#include <fmt/format.h>

#include "store/engine_sql.h"

namespace store {

namespace {

constexpr std::size_t most_ahead = 64;

std::string select_sql(const TableDef& layout) {
    std::string list;
    for (const FieldDef& field : layout.fields) {
        list += (list.empty() ? "" : ", ") + in_quotes(field.name);
    }
    return fmt::format("SELECT {} FROM {} WHERE _rowid_ = ?1", list, in_quotes(layout.name));
}

}  // namespace

RowReader::RowReader(Connection::Engine& engine, const TableDef& layout)
    : engine_(engine), statement_(engine.statement(select_sql(layout), subject_of(layout.name))) {
    for (const FieldDef& field : layout.fields)
        types_.emplace_back(field.type);
}

const Row& RowReader::read(std::span<const std::int64_t> keys) {
    const bool changed = engine_.change_stamp() != stamp_;
    if (!changed) {
        for (const std::size_t i : {last_, last_ + 1}) {
            if (i >= keys_.size() || keys_[i] != keys.front()) continue;
            last_ = i;
            return rows_[i];
        }
    }
    // A walk that changes rows on its way would read ahead in vain.
    const bool walking = !changed && keys_.size() == last_ + 1;
    ahead_ = walking ? std::min(ahead_ * 2, most_ahead) : 1;
    load(keys.first(std::min(ahead_, keys.size())));
    return rows_[0];
}

void RowReader::load(std::span<const std::int64_t> keys) {
    // Holds the file's read lock over all the single readings.
    Statement lock = engine_.statement("SELECT name FROM sqlite_master", "seznam tabulek");
    if (keys.size() > 1) lock.step();
    keys_.clear();
    if (rows_.size() < keys.size()) rows_.resize(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i)
        read_one(keys[i], rows_[i]);
    keys_.assign(keys.begin(), keys.end());
    last_ = 0;
    stamp_ = engine_.change_stamp();
}

void RowReader::read_one(std::int64_t key, Row& row) {
    row.assign(types_.size(), Value());
    statement_.bind(1, key);
    if (statement_.step()) {
        for (std::size_t i = 0; i < types_.size(); ++i) {
            row[i] = statement_.value(static_cast<int>(i), types_[i]);
        }
    }
    statement_.reset();
}

}  // namespace store
