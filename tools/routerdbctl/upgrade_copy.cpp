#include "upgrade_copy.h"

#include "upgrade_columns.h"

namespace ctl {

namespace {

constexpr auto fresh = UpgradeDatabases::fresh;
constexpr auto target = UpgradeDatabases::target;

class Copy {
public:
    Copy(UpgradeDatabases &databases, const UpgradeRules &rules, UpgradeLines &lines, Sql &statements)
        : databases_(databases), rules_(rules), lines_(lines), statements_(statements), old_(databases.old()) {}

    Status run();

private:
    Status execute(const Sql &sql);
    Status copy_table(const char *table);
    bool add_columns(Sql &into, Sql &from, const char *table) const;
    bool is_carried_over(std::string_view table, std::string_view column) const;
    Status forget_counts();
    Status copy_counts();
    Status map_values();
    unsigned end_of_group(unsigned first) const;
    Status map_column(unsigned first, unsigned end, std::string_view column);

    UpgradeDatabases &databases_;
    const UpgradeRules &rules_;
    UpgradeLines &lines_;
    Sql &statements_;
    const char *old_;
};

Status Copy::execute(const Sql &sql) {
    statements_.add("%s;\n", sql.text());
    return databases_.write(sql.text());
}

/// Adds the columns that are carried over, and what they get.
/// @return whether there is one
bool Copy::add_columns(Sql &into, Sql &from, const char *table) const {
    // Rows without a key have their number in the file alone.
    Query keys(databases_.connection(),
               "SELECT 1 FROM columns WHERE tbl = ?1 AND pk UNION ALL SELECT 1 FROM old_columns WHERE tbl = ?1 AND pk");
    if (!keys.bind(1, table).next()) {
        into.add("rowid");
        from.add("rowid");
    }
    Query columns(databases_.connection(),
                  "SELECT name, old_name FROM columns WHERE tbl = ?1 AND old_name IS NOT NULL ORDER BY place");
    columns.bind(1, table);
    bool any = false;
    while (columns.next()) {
        const char *const before = into.is_empty() ? "" : ", ";
        into.add("%s\"%w\"", before, columns.text(0).data());
        from.add("%s\"%w\"", before, columns.text(1).data());
        any = true;
    }
    return any;
}

/// Whether a column has values of the old database.
bool Copy::is_carried_over(std::string_view table, std::string_view column) const {
    Query query(databases_.connection(), "SELECT 1 FROM columns WHERE tbl = ?1 AND name = ?2 AND old_name IS NOT NULL");
    return query.bind(1, table).bind(2, column).next();
}

/// Tables count their rows' numbers, which are not given again, from the owner's rows on.
Status Copy::forget_counts() {
    if (!has_table(databases_, target, "sqlite_sequence")) {
        return Status::done;
    }
    Sql sql;
    sql.add("DELETE FROM %s.sqlite_sequence WHERE name COLLATE NOCASE IN (SELECT name FROM %s.sqlite_master)", fresh,
            old_);
    return execute(sql);
}

Status Copy::copy_counts() {
    if (!has_table(databases_, target, "sqlite_sequence") || !has_table(databases_, old_, "sqlite_sequence")) {
        return Status::done;
    }
    Sql sql;
    sql.add(
        "DELETE FROM %s.sqlite_sequence WHERE seq = 0 OR name COLLATE NOCASE IN (SELECT name FROM "
        "%s.sqlite_sequence);\n"
        "INSERT INTO %s.sqlite_sequence(name, seq) SELECT made.name, counted.seq FROM %s.sqlite_sequence AS counted "
        "JOIN "
        "%s.sqlite_master AS made ON made.name = counted.name COLLATE NOCASE AND made.sql LIKE '%%AUTOINCREMENT%%'",
        fresh, old_, fresh, old_, fresh);
    return execute(sql);
}

Status Copy::copy_table(const char *table) {
    Sql into;
    Sql from;
    if (!add_columns(into, from, table)) {
        return Status::done;  // nothing but its name is the same
    }
    Sql sql;
    sql.add("DELETE FROM %s.\"%w\";\nINSERT INTO %s.\"%w\"(%s) SELECT %s FROM %s.\"%w\"", fresh, table, fresh, table,
            into.text(), from.text(), old_, table);
    return execute(sql);
}

/// Rules of one version for the same column apply together, so that values may change places.
unsigned Copy::end_of_group(unsigned first) const {
    const UpgradeRule rule = rules_.at(first);
    unsigned end = first + 1;
    while (end < rules_.count()) {
        const UpgradeRule other = rules_.at(end);
        if (other.kind != rule.kind || other.version != rule.version || !is_same_name(other.table, rule.table) ||
            !is_same_name(other.column, rule.column)) {
            break;
        }
        ++end;
    }
    return end;
}

Status Copy::map_column(unsigned first, unsigned end, std::string_view column) {
    const std::string_view table = rules_.at(first).table;
    Sql name;
    name.add("\"%.*w\"", static_cast<int>(column.size()), column.data());
    Sql cases;
    Sql values;
    for (unsigned i = first; i < end; ++i) {
        // Where two values have become one, that goes back to the one that the file names first.
        const UpgradeRule rule = rules_.at(rules_.go_backwards() ? first + end - 1 - i : i);
        cases.add(" WHEN %.*Q THEN %.*Q", static_cast<int>(rule.from.size()), rule.from.data(),
                  static_cast<int>(rule.to.size()), rule.to.data());
        values.add("%s%.*Q", i == first ? "" : ", ", static_cast<int>(rule.from.size()), rule.from.data());
    }
    Sql sql;
    sql.add("UPDATE %s.\"%.*w\" SET %s = CASE CAST(%s AS TEXT)%s END WHERE CAST(%s AS TEXT) IN (%s)", fresh,
            static_cast<int>(table.size()), table.data(), name.text(), name.text(), cases.text(), name.text(),
            values.text());
    const Status status = execute(sql);
    const int changed = sqlite3_changes(databases_.connection().handle());
    if (status == Status::done && changed != 0) {
        lines_.add("%.*s.%.*s has values with another meaning in %d rows", static_cast<int>(table.size()), table.data(),
                   static_cast<int>(column.size()), column.data(), changed);
    }
    return status;
}

Status Copy::map_values() {
    Status status = Status::done;
    for (unsigned first = 0, end = 0; status == Status::done && first < rules_.count(); first = end) {
        end = end_of_group(first);
        const UpgradeRule rule = rules_.at(first);
        std::string_view column;
        const bool applies = rule.kind == UpgradeRule::Kind::map && rules_.find_end(first, column) &&
                             is_carried_over(rule.table, column);
        status = applies ? map_column(first, end, column) : Status::done;
    }
    return status;
}

Status Copy::run() {
    Sql sql;
    sql.add("SELECT name FROM %s.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%%' ORDER BY name",
            target);
    Query names(databases_.connection(), sql.text());
    Status status = forget_counts();
    while (status == Status::done && names.next()) {
        const char *const table = names.text(0).data();
        status = has_table(databases_, old_, table) ? copy_table(table) : Status::done;
    }
    status = status != Status::done ? status : names.status();
    status = status != Status::done ? status : copy_counts();
    return status != Status::done ? status : map_values();
}

}  // namespace

Status carry_rows_over(UpgradeDatabases &databases, const UpgradeRules &rules, UpgradeLines &lines, Sql &statements) {
    return Copy(databases, rules, lines, statements).run();
}

}  // namespace ctl
