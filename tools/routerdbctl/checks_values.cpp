// The texts in the database: those that break what they are put into. Where they are is told, not what they are: keys
// and passwords are among them.
#include "checks.h"
#include "sql.h"
#include "tables.h"
#include "utf8.h"

namespace ctl {

namespace {

/// What some texts are looked for for.
struct Search {
    bool (*is_wanted)(std::string_view text);
    bool is_of_access_points;  // only in their tables, which are listed as JSON
    const char *harm;          // in the exact profile, which the modern one does not come to
    const char *advice;
};

bool has_apostrophe(std::string_view text) {
    return text.find('\'') != std::string_view::npos;
}

bool breaks_json(std::string_view text) {
    for (const char c : text) {
        if (c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20) {
            return true;
        }
    }
    return false;
}

bool is_no_utf8(std::string_view text) {
    return !is_utf8(text);
}

/// Looks through all texts of a table, whose first column tells its rows apart.
/// @return how many are wanted
int look_through(Examination &examination, const Database &database, const char *table, const char *name,
                 const Search &search) {
    if (!has_table(database, table)) {
        return 0;
    }
    int count = 0;
    Sql sql;
    sql.add("SELECT * FROM \"%w\"", table);
    Query query(database, sql.text());
    each_row(examination, query, [&](const Query &row) {
        for (int i = 1; i < row.columns(); ++i) {
            if (row.type(i) != SQLITE_TEXT || !search.is_wanted(row.text(i))) {
                continue;
            }
            ++count;
            if (examination.is_exact) {
                examination.report.warn(search.advice, "%s %lld: %s %s", name, static_cast<long long>(row.number(0)),
                                        row.name(i), search.harm);
            }
        }
    });
    return count;
}

void look_for(Examination &examination, const Search &search) {
    Database database;
    if (!open_main_database(examination, database)) {
        return;
    }
    int count = 0;
    for (const Table &table : tables) {
        if (!search.is_of_access_points) {
            count += look_through(examination, database, table.in_sql(), table.name, search);
        }
    }
    for (const char *const table : {"DevInfo", "WlanGroupInfo", "WlanZeroCfgGroupInfo"}) {
        count += look_through(examination, database, table, table, search);
    }
    if (count == 0) {
        examination.report.ok("none that harms");
    } else {
        examination.report.ok("%d that would harm in the exact profile", count);
    }
}

}  // namespace

void look_for_apostrophes(Examination &examination) {
    look_for(examination, {has_apostrophe, false, "ends the statement that it is written back with",
                           "change the value, or the profile of the library"});
}

void look_for_json_breakers(Examination &examination) {
    look_for(examination, {breaks_json, true, "breaks the lists of access points and groups",
                           "take quotation marks, backslashes and control characters out of it"});
}

void look_for_broken_characters(Examination &examination) {
    look_for(examination, {is_no_utf8, false, "is no UTF-8", "write it anew"});
}

}  // namespace ctl
