// Rows of an open table by their keys, read some ahead: outside a transaction every single reading
// would lock the file anew.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "store/query.h"
#include "store/sqlite_engine.h"

namespace store {

class RowReader {
  public:
    RowReader(Connection::Engine& engine, const TableDef& layout);

    /// The row of the first key; every field is empty when the row is gone. The keys behind are
    /// those that are likely asked for next. Valid until the next call.
    const Row& read(std::span<const std::int64_t> keys);
    /// Makes the next call read from the file.
    void forget() { keys_.clear(); }

  private:
    void load(std::span<const std::int64_t> keys);
    void read_one(std::int64_t key, Row& row);

    Connection::Engine& engine_;
    std::vector<std::optional<FieldType>> types_;
    Statement statement_;
    std::vector<std::int64_t> keys_;
    std::vector<Row> rows_;  ///< of `keys_`; may be longer
    std::size_t last_ = 0;   ///< where the last asked row was
    std::size_t ahead_ = 1;  ///< rows to read at once
    std::int64_t stamp_ = 0;
};

}  // namespace store
