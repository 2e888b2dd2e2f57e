// Rows are added, changed and removed. Each is one statement with its conditions in it, and is looked at afterwards:
// what the library's functions for changes return says nothing of other programs.
#include <cstdio>
#include <cstring>

#include "assignments.h"
#include "change.h"
#include "clash.h"
#include "commands.h"
#include "lines.h"
#include "question.h"
#include "session.h"
#include "sql.h"
#include "users.h"

namespace ctl {

namespace {

/// Prints a statement instead of executing it.
Status print_statement(const Sql &sql) {
    std::puts(sql.text());
    return Status::done;
}

Status take_all(const Invocation &invocation, int first, const Session &session, Assignments &values) {
    const bool force = invocation.options.has(option_force);
    Status status = Status::done;
    for (int i = first; status == Status::done && i < invocation.count; ++i) {
        status = values.take(invocation.arguments[i], session.database(), force);
    }
    return status == Status::done && !force ? values.check_references(session.database()) : status;
}

Sql &add_insert(Sql &sql, const Assignments &values, bool force) {
    const char *const table = values.table().in_sql();
    sql.add("INSERT INTO \"%w\"(", table);
    const char *before = "";
    values.each([&](const char *column, const Assignments::Value &) {
        sql.add("%s\"%w\"", before, column);
        before = ", ";
    });
    // Not "select": after that the library makes no copy of the database.
    sql.add(") SELECT ");
    before = "";
    values.each([&](const char *, const Assignments::Value &value) {
        value.add_to(sql.add("%s", before));
        before = ", ";
    });
    if (!force) {
        sql.add(" WHERE (SELECT count(*) FROM \"%w\") < %d", table, ROUTERDB_LIST_CAPACITY);
        add_no_clash(sql, values, 0);
    }
    return sql.add(";");
}

Status check_room(const Session &session, const Table &table) {
    Sql sql;
    sql.add("SELECT count(*) FROM \"%w\"", table.in_sql());
    return number_of(session.database(), sql.text()) < ROUTERDB_LIST_CAPACITY
               ? Status::done
               : fail(Status::refused,
                      "%s has %d rows, as many as programs have room for; --force adds one nevertheless", table.name,
                      ROUTERDB_LIST_CAPACITY);
}

Status check_id_is_free(const Session &session, const Assignments &values) {
    Sql sql;
    sql.add("SELECT count(*) FROM \"%w\" WHERE id = %d", values.table().in_sql(), values.id());
    return values.id() == 0 || number_of(session.database(), sql.text()) == 0
               ? Status::done
               : fail(Status::refused, "%s has a row %d already", values.table().name, values.id());
}

Status add_and_print_id(const Invocation &invocation, const Session &session, const Assignments &values) {
    const char *const table = values.table().in_sql();
    Sql insert;
    add_insert(insert, values, invocation.options.has(option_force));
    if (invocation.options.is_dry_run) {
        return print_statement(insert);
    }
    Sql last;
    last.add("SELECT coalesce(max(id), 0) FROM \"%w\"", table);
    const auto last_id = values.id() != 0 ? 0 : number_of(session.database(), last.text());
    Sql proof;
    proof.add("SELECT id FROM \"%w\" WHERE id > %lld AND ", table, last_id);
    add_pairs(proof, values, "IS", " AND ").add(" ORDER BY id LIMIT 1");
    const Status status = change(invocation, session.database(), add_guard(insert, 1).text(), proof);
    if (status == Status::refused) {
        return fail(status, "nothing was added: another program has changed the table meanwhile");
    }
    if (status == Status::done) {
        std::printf("%lld\n", static_cast<long long>(number_of(session.database(), proof.text())));
    }
    return status;
}

/// The one condition of --if.
Status read_expected(const Invocation &invocation, const Table &table, Sql &condition) {
    const char *const text = invocation.options.expected;
    if (text == nullptr) {
        return Status::done;
    }
    const char *const equals = std::strchr(text, '=');
    const std::string_view field(text, equals != nullptr ? static_cast<std::size_t>(equals - text) : 0);
    if (equals == nullptr || Columns(table).find(field) == nullptr) {
        return fail(Status::usage, "--if takes FIELD=OLD with a field of %s, not \"%s\"", table.name, text);
    }
    condition.add(" AND \"%.*s\" = %Q", static_cast<int>(field.size()), field.data(), equals + 1);
    return Status::done;
}

/// Whether a row is there at all, and as --if expects it.
Status check_row(const Session &session, const Table &table, std::int32_t id, const Sql &condition) {
    Sql sql;
    sql.add("SELECT count(*) FROM \"%w\" WHERE id = %d", table.in_sql(), id);
    if (number_of(session.database(), sql.text()) == 0) {
        return fail(Status::not_found, "%s has no row %d", table.name, id);
    }
    sql.add("%s", condition.text());
    return number_of(session.database(), sql.text()) != 0
               ? Status::done
               : fail(Status::refused, "row %d of %s is not as --if expects it; nothing was changed", id, table.name);
}

Status set_row(const Invocation &invocation, const Session &session, const Assignments &values, std::int32_t id,
               const Sql &condition) {
    const Table &table = values.table();
    const bool force = invocation.options.has(option_force);
    Sql update;
    update.add("UPDATE \"%w\" SET ", table.in_sql());
    add_pairs(update, values, "=", ", ").add(" WHERE id = %d%s", id, condition.text());
    if (!force) {
        add_no_clash(update, values, id);
    }
    update.add(";");
    if (invocation.options.is_dry_run) {
        return print_statement(update);
    }
    Sql proof;
    proof.add("SELECT count(*) FROM \"%w\" WHERE id = %d AND ", table.in_sql(), id);
    add_pairs(proof, values, "IS", " AND ");
    const Status status = change(invocation, session.database(), add_guard(update, 1).text(), proof);
    return status == Status::refused
               ? fail(status, "nothing was changed: another program has changed row %d of %s meanwhile", id, table.name)
               : status;
}

Status read_ids(const Invocation &invocation, const Session &session, const Table &table, Sql &ids) {
    for (int i = 1; i < invocation.count; ++i) {
        std::int32_t id = 0;
        Status status = read_id(invocation.arguments[i], id);
        const Sql nothing;
        status = status != Status::done ? status : check_row(session, table, id, nothing);
        if (status != Status::done) {
            return status;
        }
        ids.add("%s%d", i == 1 ? "" : ", ", id);
    }
    return Status::done;
}

Status set_status(Invocation &invocation, int applies) {
    Session session(invocation);
    const Table *table = nullptr;
    Status status = session.find_table(invocation.arguments[0], table);
    if (status == Status::done && Columns(*table).find("status") == nullptr) {
        return fail(Status::usage, "rows of %s always apply: they have no status", table->name);
    }
    Sql ids;
    status = status != Status::done ? status : read_ids(invocation, session, *table, ids);
    if (status != Status::done) {
        return status;
    }
    Sql update;
    update.add("UPDATE \"%w\" SET \"status\" = %d WHERE id IN (%s);", table->in_sql(), applies, ids.text());
    if (invocation.options.is_dry_run) {
        return print_statement(update);
    }
    Sql proof;
    proof.add("SELECT count(*) = %d FROM \"%w\" WHERE id IN (%s) AND \"status\" = %d", invocation.count - 1,
              table->in_sql(), ids.text(), applies);
    status = change(invocation, session.database(), add_guard(update, invocation.count - 1).text(), proof);
    return status == Status::refused ? fail(status, "another program has changed %s meanwhile", table->name) : status;
}

}  // namespace

Status add_rule(Invocation &invocation) {
    Session session(invocation);
    const Table *table = nullptr;
    Status status = session.find_table(invocation.arguments[0], table);
    if (status != Status::done) {
        return status;
    }
    const bool force = invocation.options.has(option_force);
    Assignments values(*table);
    Lines lines;
    status =
        lines.read(invocation.options.from, [&](char *line) { return values.take(line, session.database(), force); });
    status = status != Status::done ? status : take_all(invocation, 1, session, values);
    if (status == Status::done && values.is_empty()) {
        return fail(Status::usage,
                    "a row needs at least one FIELD=VALUE; \"routerdbctl table show %s\" lists the fields",
                    table->name);
    }
    values.complete();
    if (status == Status::done) {
        status = check_id_is_free(session, values);
    }
    if (status == Status::done && !force) {
        status = check_room(session, *table);
        status = status != Status::done ? status : check_no_clash(session.database(), values, 0);
    }
    return status != Status::done ? status : add_and_print_id(invocation, session, values);
}

Status set_rule(Invocation &invocation) {
    Session session(invocation);
    const Table *table = nullptr;
    Status status = session.find_table(invocation.arguments[0], table);
    std::int32_t id = 0;
    status = status != Status::done ? status : read_id(invocation.arguments[1], id);
    if (status != Status::done) {
        return status;
    }
    Assignments values(*table);
    status = take_all(invocation, 2, session, values);
    if (status == Status::done && (values.is_empty() || values.id() != 0)) {
        return fail(Status::usage, values.is_empty() ? "say what to set, as FIELD=VALUE" : "the id of a row stays");
    }
    Sql condition;
    status = status != Status::done ? status : read_expected(invocation, *table, condition);
    status = status != Status::done ? status : check_row(session, *table, id, condition);
    if (status == Status::done && !invocation.options.has(option_force)) {
        status = check_no_clash(session.database(), values, id);
    }
    return status != Status::done ? status : set_row(invocation, session, values, id, condition);
}

Status remove_rules(Invocation &invocation) {
    Session session(invocation);
    const Table *table = nullptr;
    Status status = session.find_table(invocation.arguments[0], table);
    const bool all = invocation.options.has(option_all);
    if (status == Status::done && all == (invocation.count > 1)) {
        return fail(Status::usage, "say which rows, or --all");
    }
    Sql ids;
    status = status != Status::done ? status : read_ids(invocation, session, *table, ids);
    if (status != Status::done) {
        return status;
    }
    Sql rows;
    rows.add(all ? "1" : "id IN (%s)", ids.text());
    if (!invocation.options.has(option_force)) {
        status = check_unused(session.database(), *table, rows.text());
    }
    Sql removal;
    removal.add("DELETE FROM \"%w\" WHERE %s", table->in_sql(), rows.text());
    if (!invocation.options.has(option_force)) {
        add_unused(removal, *table);
    }
    removal.add(";");
    if (status == Status::done && invocation.options.is_dry_run) {
        return print_statement(removal);
    }
    if (status == Status::done && all) {
        status = confirm(invocation, "Remove all rows of %s?", table->name);
    }
    if (status != Status::done) {
        return status;
    }
    Sql proof;
    proof.add("SELECT count(*) = 0 FROM \"%w\" WHERE %s", table->in_sql(), rows.text());
    status = change(invocation, session.database(),
                    all ? removal.text() : add_guard(removal, invocation.count - 1).text(), proof);
    return status == Status::refused ? fail(status, "another program has changed %s meanwhile", table->name) : status;
}

Status enable_rules(Invocation &invocation) {
    return set_status(invocation, 1);
}

Status disable_rules(Invocation &invocation) {
    return set_status(invocation, 0);
}

}  // namespace ctl
