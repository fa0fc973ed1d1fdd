// Statements of the dialect.
#include "store/sql_parser.h"

#include "store/connection.h"

namespace store::sql {

Statement Parser::whole() {
    Statement parsed = any_statement();
    at_.accept(";");
    if (at_.now().kind != TokenKind::end) at_.fail("očekáván konec dotazu");
    return parsed;
}

Statement Parser::any_statement() {
    if (at_.sees("SELECT")) return query();
    if (at_.accept("UPDATE")) return update();
    if (at_.accept("INSERT")) return insert();
    if (at_.accept("DELETE")) return remove();
    if (at_.accept("ALTER")) return alter();
    if (at_.accept("CREATE")) {
        if (at_.accept("TABLE")) return create_table();
        if (at_.accept("INDEX")) return create_index();
        at_.fail("očekáváno TABLE nebo INDEX");
    }
    at_.fail("očekáváno SELECT, UPDATE, INSERT, DELETE, ALTER nebo CREATE");
}

// --- SELECT -------------------------------------------------------------------------------------

Query Parser::query() {
    Query query;
    query.parts.push_back(select());
    while (at_.accept("UNION")) {
        query.union_all.push_back(at_.accept("ALL"));
        query.parts.push_back(select());
    }
    if (at_.accept("ORDER")) {
        at_.expect("BY");
        do {
            query.order_by.push_back(order_term());
        } while (at_.accept(","));
    }
    return query;
}

Select Parser::select() {
    Select select;
    at_.expect("SELECT");
    do {
        select.items.push_back(select_item());
    } while (at_.accept(","));
    at_.expect("FROM");
    select.from = from_table();
    if (at_.accept("LEFT")) {
        at_.accept("OUTER");
        at_.expect("JOIN");
        Join join;
        join.table = from_table();
        at_.expect("ON");
        join.on = condition();
        select.join = std::move(join);
    }
    if (at_.accept("WHERE")) select.where = condition();
    if (at_.accept("GROUP")) {
        at_.expect("BY");
        do {
            select.group_by.push_back(field());
        } while (at_.accept(","));
    }
    return select;
}

SelectItem Parser::select_item() {
    SelectItem item;
    if (at_.accept("*")) return item;
    item.expr = sum();
    if (at_.accept("AS")) {
        const bool in_quotes =
            at_.now().kind == TokenKind::quoted || at_.now().kind == TokenKind::text;
        if (in_quotes && at_.now().text.empty()) at_.fail("očekáváno jméno sloupce");
        item.alias = in_quotes ? at_.take().text : at_.name("jméno sloupce");
    } else if (at_.sees_name()) {
        item.alias = at_.take().text;
    }
    return item;
}

TableName Parser::table() {
    TableName table;
    table.at = at_.now().begin;
    if (at_.now().kind == TokenKind::quoted) {
        table.name = bare_table_name(at_.take().text);
    } else {
        table.name = at_.name("jméno tabulky");
        if (at_.sees(".") && at_.ahead(1).upper == "DB") {
            at_.take();
            at_.take();
        }
    }
    if (table.name.empty()) fail_at(at_.statement(), table.at, "očekáváno jméno tabulky");
    return table;
}

TableName Parser::from_table() {
    TableName from = table();
    if (at_.accept("AS")) {
        from.alias = at_.name("jméno tabulky v dotazu");
    } else if (at_.sees_name()) {
        from.alias = at_.take().text;
    }
    return from;
}

OrderTerm Parser::order_term() {
    OrderTerm term;
    const bool by_number = at_.now().kind == TokenKind::number;
    term.field = by_number ? leaf(ExprKind::number, at_.take().text) : field();
    if (at_.accept("DESC")) {
        term.descending = true;
    } else {
        at_.accept("ASC");
    }
    return term;
}

// --- Changes ------------------------------------------------------------------------------------

Update Parser::update() {
    Update update;
    update.table = table();
    at_.expect("SET");
    do {
        Assignment assignment;
        assignment.at = at_.now().begin;
        assignment.field = at_.name("jméno pole");
        at_.expect("=");
        assignment.value = sum();
        update.set.push_back(std::move(assignment));
    } while (at_.accept(","));
    if (at_.accept("WHERE")) update.where = condition();
    return update;
}

Insert Parser::insert() {
    Insert insert;
    at_.expect("INTO");
    insert.table = table();
    at_.expect("(");
    do {
        Assignment assignment;
        assignment.at = at_.now().begin;
        assignment.field = at_.name("jméno pole");
        insert.values.push_back(std::move(assignment));
    } while (at_.accept(","));
    at_.expect(")");
    at_.expect("VALUES");
    at_.expect("(");
    std::size_t filled = 0;
    do {
        if (filled == insert.values.size()) at_.fail("více hodnot než polí");
        insert.values[filled++].value = sum();
    } while (at_.accept(","));
    if (filled < insert.values.size()) at_.fail("méně hodnot než polí");
    at_.expect(")");
    return insert;
}

Remove Parser::remove() {
    Remove remove;
    at_.expect("FROM");
    remove.table = table();
    if (at_.accept("WHERE")) remove.where = condition();
    return remove;
}

// --- Layout -------------------------------------------------------------------------------------

Statement Parser::alter() {
    at_.expect("TABLE");
    const TableName changed = table();
    if (at_.accept("ADD")) {
        at_.accept("COLUMN");
        const auto at = at_.now().begin;
        return AddField{changed, field_with_type(), at};
    }
    if (at_.accept("DROP")) {
        at_.accept("COLUMN");
        const auto at = at_.now().begin;
        return DropField{changed, at_.name("jméno pole"), at};
    }
    at_.fail("očekáváno ADD nebo DROP");
}

CreateTable Parser::create_table() {
    CreateTable create;
    create.table = table();
    at_.expect("(");
    do {
        create.fields.push_back(field_with_type());
    } while (at_.accept(","));
    at_.expect(")");
    return create;
}

CreateIndex Parser::create_index() {
    CreateIndex create;
    create.name = at_.name("jméno indexu");
    at_.expect("ON");
    create.table = table();
    at_.expect("(");
    do {
        create.places.push_back(at_.now().begin);
        create.fields.push_back(at_.name("jméno pole"));
    } while (at_.accept(","));
    at_.expect(")");
    return create;
}

FieldDef Parser::field_with_type() {
    FieldDef field{at_.name("jméno pole"), FieldType::number, 0};
    if (at_.accept("NUMERIC")) return field;
    if (at_.accept("SMALLINT")) {
        field.type = FieldType::int16;
    } else if (at_.accept("INTEGER")) {
        field.type = FieldType::int32;
    } else if (at_.accept("BOOLEAN")) {
        field.type = FieldType::boolean;
    } else if (at_.accept("DATE")) {
        field.type = FieldType::date;
    } else if (at_.accept("VARCHAR") || at_.accept("CHAR")) {
        field.type = FieldType::text;
        field.size = at_.size_in_parentheses();
    } else {
        at_.fail("očekáván typ NUMERIC, SMALLINT, INTEGER, BOOLEAN, DATE, VARCHAR nebo CHAR");
    }
    return field;
}

}  // namespace store::sql
