// The application catalogue by hand.
#include <unistd.h>

#include <cstring>

#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/json_lists.h"
#include "harness/variants.h"

namespace bench::bare {

namespace {

/// Joins a column of the applications of a class, each with a "/" behind it.
void join(sqlite3 *db, const char *column, const char *class_id, char *out) {
    char sql[80];
    std::snprintf(sql, sizeof(sql), "select %s from App_Info where Class_Id='%s';", column, class_id);
    sqlite3_stmt *const statement = prepare(db, sql);
    std::size_t length = 0;
    out[0] = '\0';
    while (sqlite3_step(statement) == SQLITE_ROW) {
        const char *name = text(statement, 0);
        const std::size_t size = strnlen(name, 199);
        if (length + size + 1 >= joined_size) {
            break;
        }
        std::memcpy(out + length, name, size);
        length += size;
        out[length++] = '/';
        out[length] = '\0';
    }
    sqlite3_finalize(statement);
}

/// The number of classes, read as the router's helper does it: standard input is closed with it.
int count_classes() {
    const int count = number(paths::catalogue_database, "select  count(*) from App_Class;");
    close(STDIN_FILENO);
    return count;
}

int print_rows(sqlite3 *db, sqlite3_stmt *statement) {
    char names[joined_size];
    char names_en[joined_size];
    char features[joined_size];
    int count = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        const char *id = text(statement, 0);
        join(db, "Name", id, names);
        join(db, "Name_En", id, names_en);
        join(db, "Features", id, features);
        print_class({id, text(statement, 1), text(statement, 2), text(statement, 4), names, names_en, features});
        ++count;
    }
    return count;
}

}  // namespace

void print_classes() {
    if (count_classes() < 1) {
        return;
    }
    std::printf("{\"ItemList\":{\"data\":[");
    draw_delay();
    sqlite3 *const db = open(paths::catalogue_database);
    sqlite3_stmt *const statement = prepare(db, "select * from App_Class order by Id ;");
    print_classes_end(print_rows(db, statement));
    sqlite3_finalize(statement);
    sqlite3_close(db);
    close(STDIN_FILENO);
}

}  // namespace bench::bare
