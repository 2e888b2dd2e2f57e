// The rows: how many there are, what refers to nothing, and what is there twice.
#include "checks.h"
#include "sql.h"
#include "tables.h"
#include "users.h"

namespace ctl {

namespace {

constexpr int most_access_points = 20;

/// Counts the rows of a table; none for a table that is not there.
std::int64_t count_rows(const Database &database, const char *table) {
    Sql sql;
    sql.add("SELECT count(*) FROM \"%w\"", table);
    return has_table(database, table) ? number_of(database, sql.text()) : 0;
}

int size_of(std::string_view text) {
    return static_cast<int>(text.size());
}

// A column between quotation marks that is not there would be a text: with its table before it, it is an error.

/// Reports rows that refer to rows of another table that are not there.
/// @param sql  a query for a row with their ids
void report_dangling(Examination &examination, const Database &database, const Sql &sql, const char *user,
                     const char *group) {
    constexpr char mend[] =
        "give them another group, such as by \"routerdbctl rule set TABLE ID group=NAME\" or \"routerdbctl ap group\"";
    Query query(database, sql.text());
    each_row(examination, query, [&](const Query &row) {
        if (!row.text(0).empty()) {
            examination.report.warn(mend, "%s %.*s: the %s is not there", user, size_of(row.text(0)),
                                    row.text(0).data(), group);
        }
    });
}

void look_at_references_to(Examination &examination, const Database &database, const Table &groups) {
    each_reference_to(groups, [&](const Table &user, const Field &field) {
        if (!has_table(database, user.in_sql()) || !has_table(database, groups.in_sql())) {
            return;
        }
        Sql sql;
        sql.add(
            "SELECT group_concat(id, ', ') FROM \"%w\" AS rule WHERE rule.\"%w\" = %d AND NOT EXISTS (SELECT 1 FROM"
            " \"%w\" AS groups WHERE groups.id = rule.\"%w\")",
            user.in_sql(), control_of(user, field).column, routerdb::control_referenced, groups.in_sql(), field.column);
        report_dangling(examination, database, sql, user.name, groups.name);
    });
}

/// Reports what several bindings have in common.
void look_for_twins(Examination &examination, const Database &database, const Table &table, const char *column) {
    Sql sql;
    sql.add(
        "SELECT group_concat(id, ', '), lower(rule.\"%w\") AS value FROM \"%w\" AS rule WHERE value <> ''"
        " GROUP BY value HAVING count(*) > 1 ORDER BY min(id)",
        column, table.in_sql());
    Query query(database, sql.text());
    each_row(examination, query, [&](const Query &row) {
        examination.report.warn("\"routerdbctl rule rm static-binding ID\" removes one", "%s %.*s all have %s %.*s",
                                table.name, size_of(row.text(0)), row.text(0).data(), column, size_of(row.text(1)),
                                row.text(1).data());
    });
}

}  // namespace

void look_at_capacities(Examination &examination) {
    Database database;
    if (!open_main_database(examination, database)) {
        return;
    }
    constexpr char mend[] = "\"routerdbctl rule rm\" makes room";
    std::int64_t most = 0;
    for (const Table &table : tables) {
        const std::int64_t rows = count_rows(database, table.in_sql());
        most = rows > most ? rows : most;
        if (rows > ROUTERDB_LIST_CAPACITY) {
            examination.report.fail(mend, "%s has %lld rows, but lists take %d", table.name,
                                    static_cast<long long>(rows), ROUTERDB_LIST_CAPACITY);
        } else if (rows == ROUTERDB_LIST_CAPACITY) {
            examination.report.warn(mend, "%s is full", table.name);
        }
    }
    examination.report.ok("the fullest table has %lld of %d rows", static_cast<long long>(most),
                          ROUTERDB_LIST_CAPACITY);
}

void look_at_access_points(Examination &examination) {
    Database database;
    if (!open_main_database(examination, database)) {
        return;
    }
    const auto rows = static_cast<long long>(count_rows(database, "DevInfo"));
    if (rows > most_access_points) {
        examination.report.warn("\"routerdbctl db exec\" removes those that are gone",
                                "%lld access points, but %d may register", rows, most_access_points);
    } else {
        examination.report.ok("%lld of %d", rows, most_access_points);
    }
}

void look_at_groups(Examination &examination) {
    Database database;
    if (!open_main_database(examination, database)) {
        return;
    }
    examination.report.ok("each one that is referred to is there");
    for (const Table &groups : tables) {
        look_at_references_to(examination, database, groups);
    }
    if (has_table(database, "DevInfo") && has_table(database, "WlanGroupInfo")) {
        Sql sql;
        sql.add(
            "SELECT group_concat(Dev_Sn, ', ') FROM DevInfo WHERE CAST(Dev_Wlan_GroupId AS INTEGER) <> 0 AND NOT "
            "EXISTS (SELECT 1 FROM WlanGroupInfo WHERE WlanGroup_Id = CAST(Dev_Wlan_GroupId AS INTEGER))");
        report_dangling(examination, database, sql, "access point", "WLAN group");
    }
}

void look_at_bindings(Examination &examination) {
    Database database;
    if (!open_main_database(examination, database)) {
        return;
    }
    examination.report.ok("no device and no address is bound twice");
    for (const Table &table : tables) {
        if (table.rules->id == ROUTERDB_TABLE_DHCP_STATIC && has_table(database, table.in_sql())) {
            look_for_twins(examination, database, table, "mac");
            look_for_twins(examination, database, table, "ip");
        }
    }
}

}  // namespace ctl
