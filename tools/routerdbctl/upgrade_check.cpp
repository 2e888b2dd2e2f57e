#include "upgrade_check.h"

#include <cstring>

#include "reader_columns.h"
#include "upgrade_columns.h"
#include "users.h"

namespace ctl {

namespace {

constexpr auto fresh = UpgradeDatabases::fresh;

class ResultCheck {
public:
    ResultCheck(const UpgradeDatabases &databases, UpgradeLines &lines) : databases_(databases), lines_(lines) {}

    void check_sound();
    void check_room(const char *table, int room);
    void check_references();
    void add_cut_texts(RouterDatabase which);
    void add_long_texts();
    Status status() const { return status_; }

private:
    const Database &connection() const { return databases_.connection(); }
    void check_reference(const Table &user, const Field &field, const Table &groups);
    std::int64_t count_without_group(const char *schema, const Table &user, const char *reference, const char *control,
                                     const Table &groups) const;
    std::int64_t count_before(const Table &user, const Field &field, const Table &groups) const;
    void add_counts(const char *table, const Sql &counts);

    const UpgradeDatabases &databases_;
    UpgradeLines &lines_;
    Status status_ = Status::done;
};

/// Adds how many texts of a column are longer than they may be.
void add_count(Sql &counts, const char *column, unsigned most) {
    counts.add("%stotal(length(CAST(\"%w\" AS BLOB)) > %u) AS \"%w has texts of more than %u bytes\"",
               counts.is_empty() ? "" : ", ", column, most, column, most);
}

void ResultCheck::check_sound() {
    Sql sql;
    sql.add("PRAGMA %s.quick_check(1)", fresh);
    Query query(connection(), sql.text());
    if (!query.next() || query.text(0) != "ok") {
        status_ = query.status() != Status::done ? query.status()
                                                 : fail(Status::unreachable, "the new database is not sound");
    }
}

void ResultCheck::check_room(const char *table, int room) {
    Sql sql;
    sql.add("SELECT count(*) FROM %s.\"%w\"", fresh, table);
    const auto rows = number_of(connection(), sql.text());
    if (rows > room) {
        status_ = fail(Status::refused, "%s has %lld rows, and programs have room for %d: remove some first", table,
                       static_cast<long long>(rows), room);
    }
}

std::int64_t ResultCheck::count_without_group(const char *schema, const Table &user, const char *reference,
                                              const char *control, const Table &groups) const {
    Sql sql;
    sql.add("SELECT count(*) FROM %s.\"%w\" WHERE \"%w\" = %d AND \"%w\" NOT IN (SELECT id FROM %s.\"%w\")", schema,
            user.in_sql(), control, routerdb::control_referenced, reference, schema, groups.in_sql());
    return number_of(connection(), sql.text());
}

/// How many had no group before.
std::int64_t ResultCheck::count_before(const Table &user, const Field &field, const Table &groups) const {
    Query query(
        connection(),
        "SELECT reference.old_name, control.old_name FROM columns AS reference, columns AS control, columns AS "
        "number WHERE reference.tbl = ?1 AND reference.name = ?2 AND control.tbl = ?1 AND control.name = ?3 AND "
        "number.tbl = ?4 AND number.name = 'id' AND number.old_name = 'id' COLLATE NOCASE AND reference.old_name "
        "IS NOT NULL AND control.old_name IS NOT NULL");
    query.bind(1, user.in_sql()).bind(2, field.column).bind(3, control_of(user, field).column).bind(4, groups.in_sql());
    return query.next()
               ? count_without_group(databases_.old(), user, query.text(0).data(), query.text(1).data(), groups)
               : 0;
}

void ResultCheck::check_reference(const Table &user, const Field &field, const Table &groups) {
    const auto without = count_without_group(fresh, user, field.column, control_of(user, field).column, groups);
    if (without == 0) {
        return;
    }
    if (without > count_before(user, field, groups)) {
        status_ = fail(Status::refused, "%s would have %lld rows whose %s is none of %s", user.in_sql(),
                       static_cast<long long>(without), field.column, groups.in_sql());
    } else {
        lines_.add("%s has %lld rows whose %s is none of %s, as before", user.in_sql(), without, field.column,
                   groups.in_sql());
    }
}

void ResultCheck::check_references() {
    for (const Table &groups : tables) {
        each_reference_to(groups, [&](const Table &user, const Field &field) { check_reference(user, field, groups); });
    }
}

/// @param counts  expressions, each named after what it counts
void ResultCheck::add_counts(const char *table, const Sql &counts) {
    if (counts.is_empty()) {
        return;
    }
    Sql sql;
    sql.add("SELECT %s FROM %s.\"%w\"", counts.text(), fresh, table);
    Query query(connection(), sql.text());
    const int columns = query.next() ? query.columns() : 0;
    for (int i = 0; i < columns; ++i) {
        if (query.number(i) != 0) {
            lines_.add("%s.%s in %lld rows", table, query.name(i), query.number(i));
        }
    }
}

/// Texts stay whole in the database; programs see as many bytes as they have room for.
void ResultCheck::add_cut_texts(RouterDatabase which) {
    const char *done = "";
    each_reader_column(which, [&](const ReaderColumn &first) {
        if (std::strcmp(done, first.table) == 0) {
            return;
        }
        done = first.table;
        Sql counts;
        each_reader_column(which, [&](const ReaderColumn &column) {
            if (column.width != 0 && std::strcmp(column.table, first.table) == 0) {
                add_count(counts, column.name, column.width - 1);
            }
        });
        add_counts(first.table, counts);
    });
}

/// Readers that the library knows nothing of have the room that the schema declares, such as TEXT(16).
void ResultCheck::add_long_texts() {
    Query names(connection(), "SELECT DISTINCT tbl FROM columns WHERE definition LIKE '%TEXT(%)%' ORDER BY tbl");
    while (names.next()) {
        Query columns(connection(),
                      "SELECT name, CAST(substr(definition, instr(definition, '(') + 1) AS INTEGER) FROM columns WHERE "
                      "tbl = ?1 AND definition LIKE '%TEXT(%)%' ORDER BY place");
        columns.bind(1, names.text(0));
        Sql counts;
        while (columns.next()) {
            add_count(counts, columns.text(0).data(), static_cast<unsigned>(columns.number(1)));
        }
        add_counts(names.text(0).data(), counts);
    }
}

}  // namespace

Status check_places(const UpgradeDatabases &databases, RouterDatabase which) {
    Status status = Status::done;
    Query query(databases.connection(), "SELECT place FROM columns WHERE tbl = ?1 AND name = ?2");
    each_reader_column(which, [&](const ReaderColumn &column) {
        query.rewind();
        query.bind(1, column.table).bind(2, column.name);
        if (!query.next()) {
            status = fail(Status::refused, "the schema has no %s.%s, which programs read", column.table, column.name);
        } else if (column.position >= 0 && query.number(0) != column.position) {
            status = fail(Status::refused, "the schema has %s.%s in place %lld, and programs read it in place %d",
                          column.table, column.name, static_cast<long long>(query.number(0)), column.position);
        }
    });
    return query.status() != Status::done ? query.status() : status;
}

Status check_result(const UpgradeDatabases &databases, RouterDatabase which, UpgradeLines &lines) {
    ResultCheck check(databases, lines);
    check.check_sound();
    if (which == RouterDatabase::main) {
        for (const Table &table : tables) {
            check.check_room(table.in_sql(), ROUTERDB_LIST_CAPACITY);
        }
        check.check_room("DevInfo", ROUTERDB_DEVICE_LIST_CAPACITY);
        check.check_references();
    }
    check.add_cut_texts(which);
    check.add_long_texts();
    return check.status();
}

}  // namespace ctl
