#include "differences.h"

#include <cstdio>

#include "output.h"
#include "sql.h"
#include "tables.h"

namespace ctl {

namespace {

constexpr char list[] =
    "CREATE TEMP TABLE IF NOT EXISTS differences(number INTEGER PRIMARY KEY, name, row, field, before, after);"
    "DELETE FROM differences;";

/// What nobody should read over somebody's shoulder.
constexpr char is_secret[] =
    "(name LIKE '%Psk\\_Value' ESCAPE '\\' OR name LIKE '%Wep\\_Value' ESCAPE '\\' OR name LIKE "
    "'%Sharekey%')";

/// The name that people know a table by.
const char *name_for_people(std::string_view in_sql) {
    for (const Table &table : tables) {
        if (in_sql == table.in_sql()) {
            return table.name;
        }
    }
    return in_sql.data();
}

class Comparison {
public:
    Comparison(Database &database, const char *from, const char *to) : database_(database), from_(from), to_(to) {}

    Status add_table(const char *name);

private:
    Status add_missing(const char *name, bool is_gone);
    Status add_columns(const char *name);
    Status add_rows(const char *name, const char *with, const char *without, bool is_gone);
    Status add_changes(const char *name);
    bool has_table(const char *schema, const char *name) const;

    Database &database_;
    const char *from_;
    const char *to_;
};

bool Comparison::has_table(const char *schema, const char *name) const {
    Sql sql;
    sql.add("SELECT count(*) FROM %s.sqlite_master WHERE type = 'table' AND name = %Q", schema, name);
    return number_of(database_, sql.text()) != 0;
}

Status Comparison::add_missing(const char *name, bool is_gone) {
    Sql sql;
    sql.add("INSERT INTO differences(name, row, field, before, after) VALUES(%Q, 0, '', %Q, %Q)", name,
            is_gone ? "the table" : nullptr, is_gone ? nullptr : "the table");
    return database_.run(sql.text());
}

/// Columns that only one of them has.
Status Comparison::add_columns(const char *name) {
    Sql sql;
    sql.add(
        "INSERT INTO differences(name, row, field, before, after) SELECT %Q, 0, '', 'the column ' || name, NULL FROM "
        "pragma_table_info(%Q, %Q) WHERE name NOT IN (SELECT name FROM pragma_table_info(%Q, %Q));",
        name, name, from_, name, to_);
    sql.add(
        "INSERT INTO differences(name, row, field, before, after) SELECT %Q, 0, '', NULL, 'the column ' || name FROM "
        "pragma_table_info(%Q, %Q) WHERE name NOT IN (SELECT name FROM pragma_table_info(%Q, %Q));",
        name, name, to_, name, from_);
    return database_.run(sql.text());
}

/// Rows that only one of them has, as "name='Homework' status=1".
Status Comparison::add_rows(const char *name, const char *with, const char *without, bool is_gone) {
    Sql row;
    Sql columns;
    columns.add("SELECT name, %s FROM pragma_table_info(%Q, %Q) WHERE NOT pk", is_secret, name, with);
    for (Query column(database_, columns.text()); column.next();) {
        const char *const field = column.name(0) != nullptr ? column.text(0).data() : "";
        row.add("%siif(coalesce(\"%w\", '') = '', '', ' %w=' || %s\"%w\"))", row.is_empty() ? "" : " || ", field, field,
                column.number(1) != 0 ? "iif(1, '***', " : "quote(", field);
    }
    Sql sql;
    sql.add(
        "INSERT INTO differences(name, row, field, %s) SELECT %Q, rowid, '', substr(%s, 2) FROM %s.\"%w\" WHERE rowid "
        "NOT IN (SELECT rowid FROM %s.\"%w\") ORDER BY rowid",
        is_gone ? "before" : "after", name, row.text(), with, name, without, name);
    return database_.run(sql.text());
}

Status Comparison::add_changes(const char *name) {
    Sql columns;
    columns.add(
        "SELECT name, %s FROM pragma_table_info(%Q, %Q) WHERE name IN (SELECT name FROM pragma_table_info(%Q, %Q))",
        is_secret, name, from_, name, to_);
    Status status = Status::done;
    for (Query column(database_, columns.text()); status == Status::done && column.next();) {
        const char *const field = column.text(0).data();
        const bool secret = column.number(1) != 0;
        Sql sql;
        sql.add("INSERT INTO differences(name, row, field, before, after) SELECT %Q, a.rowid, %Q, ", name, field);
        if (secret) {
            sql.add("'***', '***'");
        } else {
            sql.add("a.\"%w\", b.\"%w\"", field, field);
        }
        sql.add(" FROM %s.\"%w\" a JOIN %s.\"%w\" b ON a.rowid = b.rowid WHERE a.\"%w\" IS NOT b.\"%w\"", from_, name,
                to_, name, field, field);
        status = database_.run(sql.text());
    }
    return status;
}

Status Comparison::add_table(const char *name) {
    if (!has_table(from_, name) || !has_table(to_, name)) {
        return add_missing(name, has_table(from_, name));
    }
    Status status = add_columns(name);
    status = status != Status::done ? status : add_rows(name, from_, to_, true);
    status = status != Status::done ? status : add_changes(name);
    return status != Status::done ? status : add_rows(name, to_, from_, false);
}

/// Prints a value in a line for people.
void print_value(const Query &query, int column) {
    const int type = query.type(column);
    const char *const quote = type == SQLITE_TEXT || type == SQLITE_BLOB ? "'" : "";
    std::fputs(quote, stdout);
    print_shown(type == SQLITE_NULL ? "NULL" : query.text(column));
    std::fputs(quote, stdout);
}

/// What there is of a row, or of a table or a column: "- url-filter 3 name='Homework' status=1".
void print_whole(const Query &query, bool is_gone) {
    std::printf("%s%s ", is_gone ? "- " : "+ ", name_for_people(query.text(0)));
    if (query.number(1) != 0) {
        std::printf("%lld ", static_cast<long long>(query.number(1)));
    }
    print_shown(query.text(is_gone ? 3 : 4));
}

/// "url-filter 3 name: 'Homework' -> 'Games'"
void print_change(const Query &query) {
    std::printf("%s %lld %s: ", name_for_people(query.text(0)), static_cast<long long>(query.number(1)),
                query.text(2).data());
    print_value(query, 3);
    std::fputs(" -> ", stdout);
    print_value(query, 4);
}

void print_line(const Query &query) {
    const bool is_gone = query.type(4) == SQLITE_NULL;
    const bool is_change = !query.text(2).empty();
    std::fputs(begin_look(is_change ? Look::doubtful : is_gone ? Look::bad : Look::good), stdout);
    if (is_change) {
        print_change(query);
    } else {
        print_whole(query, is_gone);
    }
    std::printf("%s\n", end_look());
}

}  // namespace

Status compare(Database &database, const char *from, const char *to, char **names, int count) {
    const Database::Scratch scratch(database);
    Status status = database.run(list);
    Comparison comparison(database, from, to);
    for (int i = 0; status == Status::done && i < count; ++i) {
        const Table *table = nullptr;
        status = find_table(names[i], table);
        status = status != Status::done ? status : comparison.add_table(table->in_sql());
    }
    if (status != Status::done || count != 0) {
        return status;
    }
    // An export has some of the tables only, and says nothing of the others.
    Query all(database,
              "SELECT name FROM other.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%' UNION SELECT name "
              "FROM main.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%' AND EXISTS (SELECT 1 FROM "
              "pragma_database_list AS place WHERE place.name = 'other' AND place.file <> '')");
    while (status == Status::done && all.next()) {
        status = comparison.add_table(all.text(0).data());
    }
    return status != Status::done ? status : all.status();
}

Status print_differences(const Invocation &invocation, const Database &database, bool &differs) {
    differs = number_of(database, "SELECT count(*) FROM differences") != 0;
    Query query(database,
                "SELECT name AS \"table\", row, field, before, after FROM differences ORDER BY name, row, number");
    if (invocation.options.format != Format::standard) {
        return print_rows(invocation, query);
    }
    while (query.next()) {
        print_line(query);
    }
    return query.status();
}

}  // namespace ctl
