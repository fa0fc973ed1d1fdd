// Statements that change rows, with bound parameters: a pooled statement run to its end.
#include <fmt/format.h>
#include <sqlite3.h>

#include "store/command.h"
#include "store/sqlite_engine.h"

namespace store {

namespace {

bool changes_rows(StatementKind kind) {
    return kind == StatementKind::update || kind == StatementKind::insert ||
           kind == StatementKind::remove;
}

}  // namespace

struct Command::State {
    State(Connection::Engine& engine_, const Translation& translation)
        : engine(engine_),
          subject(translation.tables.empty() ? "příkaz" : subject_of(translation.tables.front())),
          statement(engine.statement(checked(translation), subject)) {}

    std::string_view checked(const Translation& translation) const {
        if (!changes_rows(translation.kind)) {
            engine.database.refuse(fmt::format("{}: příkaz nemění řádky.", subject));
        }
        return translation.sql;
    }

    Connection::Engine& engine;
    std::string subject;
    Statement statement;
};

Command::Command(Connection& connection, std::string_view dialect_sql)
    : state_(std::make_unique<State>(connection.engine(),
                                     connection.engine().translation(dialect_sql))) {}
Command::~Command() = default;

Command& Command::set(std::string_view name, const Value& value) {
    Statement& statement = state_->statement;
    bool found = false;
    for (int i = 1; i <= statement.parameter_count(); ++i) {
        const std::string_view parameter = statement.parameter_name(i);
        if (parameter.empty() || !same_name(parameter.substr(1), name)) continue;
        statement.bind(i, value);
        found = true;
    }
    if (!found) {
        state_->engine.database.refuse(
            fmt::format("{}: příkaz nemá parametr {}.", state_->subject, name));
    }
    return *this;
}

int Command::execute() {
    state_->engine.need_transaction(state_->subject);
    state_->statement.run();
    return sqlite3_changes(state_->engine.database.handle());
}

}  // namespace store
