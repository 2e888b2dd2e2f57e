#include "upgrade_plan.h"

#include "upgrade_columns.h"

namespace ctl {

namespace {

constexpr auto target = UpgradeDatabases::target;

/// A text that outlives the row it was read from.
class Kept {
public:
    explicit Kept(std::string_view text) { text_.add("%.*s", static_cast<int>(text.size()), text.data()); }
    const char *text() const { return text_.text(); }

private:
    Sql text_;
};

class Comparison {
public:
    Comparison(const UpgradeDatabases &databases, UpgradeLines &lines)
        : databases_(databases), lines_(lines), old_(databases.old()) {}

    Status run();

private:
    void compare_table(const char *table);
    void compare_columns(const char *table);
    void add_gone_columns(const char *table);
    void compare_others();
    std::int64_t rows(const char *schema, const char *table) const;

    /// Calls visit(name) for each table of a schema that is not SQLite's own.
    template <typename Visit>
    Status each_table(const char *schema, Visit visit) const;

    const UpgradeDatabases &databases_;
    UpgradeLines &lines_;
    const char *old_;
};

template <typename Visit>
Status Comparison::each_table(const char *schema, Visit visit) const {
    Sql sql;
    sql.add("SELECT name FROM %s.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%%' ORDER BY name",
            schema);
    Query query(databases_.connection(), sql.text());
    while (query.next()) {
        visit(Kept(query.text(0)).text());
    }
    return query.status();
}

std::int64_t Comparison::rows(const char *schema, const char *table) const {
    Sql sql;
    sql.add("SELECT count(*) FROM %s.\"%w\"", schema, table);
    return number_of(databases_.connection(), sql.text());
}

void Comparison::compare_columns(const char *table) {
    Query query(
        databases_.connection(),
        "SELECT name, initial, old_name, old_place, place, old_name <> name COLLATE NOCASE, old_place <> place, "
        "old_definition, definition, old_definition <> definition FROM columns WHERE tbl = ?1 ORDER BY place");
    query.bind(1, table);
    while (query.next()) {
        const char *const name = query.text(0).data();
        if (query.type(2) == SQLITE_NULL) {
            lines_.add("%s.%s is new: %s", table, name, query.text(1).data());
        }
        if (query.number(5) != 0) {
            lines_.add("%s.%s is now %s", table, query.text(2).data(), name);
        }
        if (query.number(6) != 0) {
            lines_.add("%s.%s moves from place %lld to %lld", table, name, query.number(3), query.number(4));
        }
        if (query.number(9) != 0) {
            lines_.add("%s.%s was %s and is %s", table, name, query.text(7).data(), query.text(8).data());
        }
    }
}

void Comparison::add_gone_columns(const char *table) {
    Query columns(
        databases_.connection(),
        "SELECT name FROM old_columns WHERE tbl = ?1 AND name NOT IN (SELECT old_name FROM columns WHERE tbl = "
        "?1 AND old_name IS NOT NULL) ORDER BY place");
    columns.bind(1, table);
    while (columns.next()) {
        const char *const name = columns.text(0).data();
        Sql sql;
        sql.add("SELECT count(\"%w\") FROM %s.\"%w\"", name, old_, table);
        const auto values = number_of(databases_.connection(), sql.text());
        if (values != 0) {
            lines_.lose("%s.%s is gone, with its values in %lld rows", table, name, values);
        } else {
            lines_.add("%s.%s is gone, and was empty", table, name);
        }
    }
}

void Comparison::compare_table(const char *table) {
    if (!has_table(databases_, old_, table)) {
        lines_.add("%s is a new table, with %lld rows", table, rows(target, table));
        return;
    }
    const unsigned before = lines_.count();
    compare_columns(table);
    add_gone_columns(table);
    Sql sql;
    sql.add(
        "SELECT count(*) FROM %s.sqlite_master AS old JOIN %s.sqlite_master AS target ON old.name = target.name "
        "COLLATE "
        "NOCASE AND old.type = target.type AND old.sql <> target.sql WHERE old.type = 'table' AND target.name = %Q",
        old_, target, table);
    if (lines_.count() == before && number_of(databases_.connection(), sql.text()) != 0) {
        lines_.add("%s is defined in other words", table);
    }
}

/// Indexes, views and triggers, which have no rows to lose.
void Comparison::compare_others() {
    constexpr char others[] =
        "SELECT type || ' ' || name, sql FROM %s.sqlite_master WHERE type <> 'table' AND sql IS NOT NULL AND "
        "(type, name, sql) NOT IN (SELECT type, name, sql FROM %s.sqlite_master WHERE sql IS NOT NULL) ORDER BY 1";
    for (const bool is_gone : {true, false}) {
        Sql sql;
        sql.add(others, is_gone ? old_ : target, is_gone ? target : old_);
        for (Query query(databases_.connection(), sql.text()); query.next();) {
            lines_.add("%s is %s", query.text(0).data(), is_gone ? "gone" : "new");
        }
    }
}

Status Comparison::run() {
    Status status = each_table(target, [&](const char *table) { compare_table(table); });
    if (status != Status::done) {
        return status;
    }
    status = each_table(old_, [&](const char *table) {
        if (has_table(databases_, target, table)) {
            return;
        }
        if (rows(old_, table) != 0) {
            lines_.lose("%s is gone, with its %lld rows", table, rows(old_, table));
        } else {
            lines_.add("%s is gone, and was empty", table);
        }
    });
    compare_others();
    return status;
}

}  // namespace

Status compare_schemas(const UpgradeDatabases &databases, UpgradeLines &lines) {
    const std::int32_t old = databases.version(databases.old());
    const std::int32_t version = databases.version(target);
    if (old != version) {
        lines.add("version %d becomes %d", old, version);
    }
    return Comparison(databases, lines).run();
}

}  // namespace ctl
