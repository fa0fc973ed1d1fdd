// A statement of the dialect that changes rows, with bound parameters.
//
//     store::Command change(connection, "UPDATE Deti SET Poradi = :poradi WHERE Pocitadlo =
//     :veta"); change.set("poradi", 2).set("veta", 7); change.execute();
#pragma once

#include <memory>
#include <string_view>

#include "store/connection.h"
#include "store/value.h"

namespace store {

class Command {
  public:
    /// UPDATE, DELETE or INSERT. Throws StoreError when the statement is not of the dialect; the
    /// text says where.
    Command(Connection& connection, std::string_view dialect_sql);
    ~Command();
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    /// Sets the parameter `:name` (given without the colon). A text longer than the field that it
    /// is put into is cut to its length.
    Command& set(std::string_view name, const Value& value);
    /// Needs a Transaction. Returns the number of rows touched; may be called again, with other
    /// values too.
    int execute();

    struct State;

  private:
    std::unique_ptr<State> state_;
};

}  // namespace store
