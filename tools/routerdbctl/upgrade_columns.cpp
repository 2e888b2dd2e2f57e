#include "upgrade_columns.h"

namespace ctl {

namespace {

std::string_view text_of(sqlite3_value *value) {
    const unsigned char *const text = sqlite3_value_text(value);
    return {reinterpret_cast<const char *>(text), static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

/// "origin(table, column)" in SQL: what the column was called, NULL if its values are not to be carried over.
void answer_origin(sqlite3_context *context, int, sqlite3_value **values) {
    const auto &rules = *static_cast<const UpgradeRules *>(sqlite3_user_data(context));
    std::string_view column = text_of(values[1]);
    if (rules.find_origin(text_of(values[0]), column)) {
        sqlite3_result_text(context, column.data(), static_cast<int>(column.size()), SQLITE_TRANSIENT);
    }
}

constexpr char lists[] =
    "CREATE TEMP TABLE old_columns(tbl TEXT COLLATE NOCASE, name TEXT COLLATE NOCASE, place, definition, pk, "
    "PRIMARY KEY(tbl, name)) WITHOUT ROWID;"
    "CREATE TEMP TABLE columns(tbl TEXT COLLATE NOCASE, name TEXT COLLATE NOCASE, place, definition, pk, initial, "
    "old_name, old_place, old_definition, PRIMARY KEY(tbl, name)) WITHOUT ROWID;";

constexpr char definition[] =
    "found.type || iif(found.\"notnull\", ' NOT NULL', '') || ifnull(' DEFAULT ' || found.dflt_value, '') || "
    "iif(found.pk, ' PRIMARY KEY', '')";

constexpr char from_tables[] = "FROM %s.sqlite_master AS made JOIN pragma_table_info(made.name, '%s') AS found ";

constexpr char that_are_ours[] = "WHERE made.type = 'table' AND made.name NOT LIKE 'sqlite%'";

}  // namespace

Status list_columns(UpgradeDatabases &databases, const UpgradeRules &rules) {
    sqlite3_create_function(databases.connection().handle(), "origin", 2, SQLITE_UTF8,
                            const_cast<UpgradeRules *>(&rules), answer_origin, nullptr, nullptr);
    constexpr auto target = UpgradeDatabases::target;
    Sql sql;
    sql.add("%s INSERT INTO old_columns SELECT made.name, found.name, found.cid, %s, found.pk ", lists, definition)
        .add(from_tables, databases.old(), databases.old())
        .add("%s;", that_are_ours)
        .add(
            "INSERT INTO columns SELECT made.name, found.name, found.cid, %s, found.pk, ifnull(found.dflt_value, "
            "'NULL'), old.name, old.place, old.definition ",
            definition)
        .add(from_tables, target, target)
        .add("LEFT JOIN old_columns AS old ON old.tbl = made.name AND old.name = origin(made.name, found.name) %s",
             that_are_ours);
    return databases.write(sql.text());
}

bool has_table(const UpgradeDatabases &databases, const char *schema, std::string_view table) {
    Sql sql;
    sql.add("SELECT 1 FROM %s.sqlite_master WHERE type = 'table' AND name = ?1 COLLATE NOCASE", schema);
    Query query(databases.connection(), sql.text());
    return query.bind(1, table).next();
}

}  // namespace ctl
