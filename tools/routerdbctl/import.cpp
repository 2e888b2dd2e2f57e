// What was exported comes back: all of it, or nothing.
#include <cstdio>

#include "change.h"
#include "clash.h"
#include "commands.h"
#include "exported.h"
#include "question.h"
#include "session.h"
#include "sql.h"
#include "users.h"

namespace ctl {

namespace {

/// An import that has been read.
class Import {
public:
    Import(const Invocation &invocation, Session &session)
        : invocation_(invocation), database_(session.database()), replaces_(invocation.options.has(option_replace)) {}

    /// Checks what the tables would be.
    Status check();

    Status write() const;

private:
    bool has(const Table &table) const;
    Status make_result(const Table &table) const;
    void check_numbers(const Table &table);
    void check_references(const Table &groups);
    void complain(const Table &table, const char *rows, const char *fault);
    void add_removal(Sql &sql, const Table &table) const;
    void add_proof(Sql &proof) const;

    const Invocation &invocation_;
    Database &database_;
    bool replaces_;
    Status status_ = Status::done;
};

bool Import::has(const Table &table) const {
    Sql sql;
    sql.add("SELECT count(*) FROM %s.sqlite_master WHERE name = %Q", other, table.in_sql());
    return number_of(database_, sql.text()) != 0;
}

/// Makes a view of what a table would be.
Status Import::make_result(const Table &table) const {
    Sql sql;
    sql.add("CREATE TEMP VIEW \"result of %w\" AS SELECT * FROM ", table.in_sql());
    const char *const name = table.in_sql();
    if (!has(table)) {
        sql.add("main.\"%w\"", name);
    } else if (replaces_) {
        sql.add("%s.\"%w\"", other, name);
    } else {
        sql.add(
            "%s.\"%w\" UNION ALL SELECT * FROM main.\"%w\" WHERE id NOT IN (SELECT id FROM "
            "%s.\"%w\")",
            other, name, name, other, name);
    }
    return database_.run(sql.text());
}

void Import::complain(const Table &table, const char *rows, const char *fault) {
    status_ = fail(Status::refused, "%s %s: %s", table.in_sql(), rows, fault);
}

/// As many as fit, no two bindings of one device or to one address.
void Import::check_numbers(const Table &table) {
    Sql count;
    count.add("SELECT count(*) FROM \"result of %w\"", table.in_sql());
    if (number_of(database_, count.text()) > ROUTERDB_LIST_CAPACITY) {
        complain(table, "rows", "they would be more than programs have room for");
    }
    for (const Column &column : Columns(table)) {
        if (!is_unique(table, column)) {
            continue;
        }
        Sql sql;
        sql.add(
            "SELECT group_concat(id, ', ') FROM \"result of %w\" WHERE \"%w\" <> '' GROUP BY \"%w\" COLLATE NOCASE "
            "HAVING count(*) > 1",
            table.in_sql(), column.name, column.name);
        for (Query query(database_, sql.text()); query.next();) {
            Sql fault;
            fault.add("they would have the same %s", column.name);
            complain(table, query.text(0).data(), fault.text());
        }
    }
}

void Import::check_references(const Table &groups) {
    each_reference_to(groups, [&](const Table &user, const Field &field) {
        Sql sql;
        sql.add(
            "SELECT id, \"%w\" FROM \"result of %w\" WHERE \"%w\" = %d AND \"%w\" NOT IN (SELECT id FROM \"result of "
            "%w\")",
            field.column, user.in_sql(), control_of(user, field).column, routerdb::control_referenced, field.column,
            groups.in_sql());
        for (Query query(database_, sql.text()); query.next();) {
            Sql fault;
            fault.add("there would be no %s #%s", groups.name, query.text(1).data());
            complain(user, query.text(0).data(), fault.text());
        }
    });
}

Status Import::check() {
    const Database::Scratch scratch(database_);
    for (const Table &table : tables) {
        if (make_result(table) != Status::done) {
            return Status::unreachable;
        }
    }
    for (const Table &table : tables) {
        check_numbers(table);
        check_references(table);
    }
    return status_;
}

/// Adds a query that answers 1 when the tables have all rows of the file.
void Import::add_proof(Sql &proof) const {
    proof.add("SELECT 1");
    for (const Table &table : tables) {
        if (!has(table)) {
            continue;
        }
        const char *const name = table.in_sql();
        proof.add(" AND NOT EXISTS (SELECT * FROM %s.\"%w\" EXCEPT SELECT * FROM main.\"%w\")", other, name, name);
        if (replaces_) {
            proof.add(" AND (SELECT count(*) FROM %s.\"%w\") = (SELECT count(*) FROM main.\"%w\")", other, name, name);
        }
    }
}

/// Adds what removes the rows that give way.
void Import::add_removal(Sql &sql, const Table &table) const {
    if (replaces_) {
        sql.add("DELETE FROM \"%w\";\n", table.in_sql());
        return;
    }
    Sql ids;
    ids.add("SELECT group_concat(id, ', ') FROM %s.\"%w\"", other, table.in_sql());
    Query query(database_, ids.text());
    if (query.next() && !query.text(0).empty()) {
        sql.add("DELETE FROM \"%w\" WHERE id IN (%s);\n", table.in_sql(), query.text(0).data());
    }
}

Status Import::write() const {
    Sql sql;
    sql.add("BEGIN IMMEDIATE;\n");
    for (const Table &table : tables) {
        if (!has(table)) {
            continue;
        }
        add_removal(sql, table);
        const Status status = add_rows(sql, database_, other, table);
        if (status != Status::done) {
            return status;
        }
    }
    sql.add("COMMIT;\n");
    if (invocation_.options.is_dry_run) {
        std::fputs(sql.text(), stdout);
        return Status::done;
    }
    Sql proof;
    add_proof(proof);
    return change(invocation_, database_, sql.text(), proof);
}

}  // namespace

Status import_tables(Invocation &invocation) {
    const bool force = invocation.options.has(option_force);
    if (invocation.options.has(option_merge) && invocation.options.has(option_replace)) {
        return fail(Status::usage, "--merge keeps other rows and --replace removes them: say one of them");
    }
    Session session(invocation);
    Status status = session.status();
    status = status != Status::done ? status : read_export(session.database(), invocation.arguments[0], force);
    Import import(invocation, session);
    if (status == Status::done && !force) {
        status = import.check();
    }
    if (status != Status::done || invocation.options.has(option_check)) {
        return status;
    }
    if (invocation.options.has(option_replace) && !invocation.options.is_dry_run) {
        status = confirm(invocation, "Replace all rows of the tables in %s?", invocation.arguments[0]);
    }
    return status != Status::done ? status : import.write();
}

}  // namespace ctl
