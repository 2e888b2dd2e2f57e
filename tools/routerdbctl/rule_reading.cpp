// Tables and their rows, as they are.
#include <cstdio>
#include <cstring>

#include "commands.h"
#include "database.h"
#include "meaning.h"
#include "output.h"
#include "row_lines.h"
#include "selection.h"
#include "session.h"
#include "sql.h"
#include "tables.h"

namespace ctl {

namespace {

constexpr const char *name_of(Kind kind) {
    return kind == Kind::text ? "text" : "number";
}

Status print_values(const Invocation &invocation, const Sql &sql) {
    Database nowhere;
    const Status status = nowhere.open_in_memory();
    if (status != Status::done) {
        return status;
    }
    Query query(nowhere, sql.text());
    return print_rows(invocation, query);
}

}  // namespace

Status list_tables(Invocation &invocation) {
    Session session(invocation);
    if (session.status() != Status::done) {
        return session.status();
    }
    Sql sql;
    const char *before = "SELECT ";
    for (const Table &table : tables) {
        sql.add("%s%Q AS name, %Q AS sql, %Q AS record, (SELECT count(*) FROM \"%w\") AS rows, %d AS capacity", before,
                table.name, table.in_sql(), table.record, table.in_sql(), ROUTERDB_LIST_CAPACITY);
        before = " UNION ALL SELECT ";
    }
    Query query(session.database(), sql.text());
    return print_rows(invocation, query);
}

Status show_table(Invocation &invocation) {
    const Table *table = nullptr;
    const Status status = find_table(invocation.arguments[0], table);
    if (status != Status::done) {
        return status;
    }
    Sql sql;
    sql.add("SELECT 'id' AS field, 'number' AS kind, 4 AS width, 'from 1 on; given by the database' AS \"values\"");
    for (const Column &column : Columns(*table)) {
        const Field &field = *column.field;
        if (field.kind == Kind::zero) {
            continue;
        }
        const Table *const groups = referenced_by(field);
        sql.add(" UNION ALL SELECT %Q, %Q, %d, ", column.name, name_of(field.kind),
                field.kind == Kind::text ? field.width : 4);
        if (groups != nullptr) {
            sql.add("%Q", groups->name);
        } else {
            sql.add("%Q", ctl::name_of(meaning_of(field)));
        }
    }
    return print_values(invocation, sql);
}

Status list_rules(Invocation &invocation) {
    Session session(invocation);
    const Table *table = nullptr;
    Status status = session.find_table(invocation.arguments[0], table);
    if (status != Status::done) {
        return status;
    }
    Sql sql;
    status = add_selection(sql, invocation.options, *table);
    if (status != Status::done) {
        return status;
    }
    Query query(session.database(), sql.text());
    for (int i = 0; i < invocation.options.conditions; ++i) {
        query.bind(i + 1, std::strchr(invocation.options.where[i], '=') + 1);
    }
    if (invocation.options.format == Format::set) {
        return print_set_lines(*table, query);
    }
    status = print_rows(invocation, query);
    Sql count;
    count.add("SELECT count(*) FROM \"%w\"", table->in_sql());
    const std::int64_t rows = number_of(session.database(), count.text());
    if (rows > ROUTERDB_LIST_CAPACITY) {
        warn("%s has %lld rows; programs have room for %d", table->name, static_cast<long long>(rows),
             ROUTERDB_LIST_CAPACITY);
    }
    return status;
}

Status get_rule(Invocation &invocation) {
    Session session(invocation);
    const Table *table = nullptr;
    Status status = session.find_table(invocation.arguments[0], table);
    std::int32_t id = 0;
    char *const dot = std::strchr(invocation.arguments[1], '.');
    if (dot != nullptr) {
        *dot = '\0';
        invocation.options.fields = dot + 1;
    }
    status = status != Status::done ? status : read_id(invocation.arguments[1], id);
    if (status != Status::done) {
        return status;
    }
    char condition[24];
    std::snprintf(condition, sizeof(condition), "id=%d", id);
    invocation.options.where[invocation.options.conditions++] = condition;
    Sql sql;
    status = add_selection(sql, invocation.options, *table);
    if (status != Status::done) {
        return status;
    }
    Query query(session.database(), sql.text());
    query.bind(1, condition + 3);
    if (!query.next()) {
        return query.status() != Status::done ? query.status()
                                              : fail(Status::not_found, "%s has no row %d", table->name, id);
    }
    if (dot != nullptr && invocation.options.format == Format::standard) {
        const std::string_view value = query.text(0);
        std::printf("%.*s\n", static_cast<int>(value.size()), value.data());
        return Status::done;
    }
    query.rewind();
    return invocation.options.format == Format::set ? print_set_lines(*table, query) : print_rows(invocation, query);
}

}  // namespace ctl
