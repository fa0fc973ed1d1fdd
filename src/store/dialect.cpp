#include "store/dialect.h"

#include "store/sql_parser.h"
#include "store/sql_writer.h"

namespace store {

Translation translate(std::string_view dialect_sql, const SchemaLookup& schema) {
    return sql::Writer(dialect_sql, schema).write(sql::parse(dialect_sql));
}

}  // namespace store
