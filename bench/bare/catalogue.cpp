// The application catalogue by hand.
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstring>

#include "bare/by_hand.h"
#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/json_lists.h"

namespace bench::bare {

namespace {

/// Joined names may have 4095 bytes, each of them 199.
constexpr std::size_t joined_size = 4096;

/// Joins a column of the applications of a class, each with a "/" behind it.
void join(sqlite3 *db, const char *column, const char *class_id, char *out) {
    char sql[80];
    std::snprintf(sql, sizeof(sql), "select %s from App_Info where Class_Id='%s';", column, class_id);
    std::size_t length = 0;
    out[0] = '\0';
    for_each(db, sql, [&](const Row &row) {
        const char *name = row.text(0);
        const std::size_t size = strnlen(name, 199);
        if (length + size + 1 < joined_size) {
            std::memcpy(out + length, name, size);
            length += size;
            out[length++] = '/';
            out[length] = '\0';
        }
    });
}

/// The number of classes, read as the router's helper does it: standard input is closed with it.
int count_classes() {
    const int count = number(paths::catalogue_database, "select  count(*) from App_Class;");
    close(STDIN_FILENO);
    return count;
}

void print_class(sqlite3 *db, const Row &row) {
    char joined[3][joined_size];
    const char *const id = row.text(0);
    join(db, "Name", id, joined[0]);
    join(db, "Name_En", id, joined[1]);
    join(db, "Features", id, joined[2]);
    const std::array<const char *, class_keys.size()> values{id,  row.text(1), row.text(2), row.text(4), "0",
                                                             "0", joined[0],   joined[1],   joined[2]};
    print_element(class_keys, [&values](int key) { return values[static_cast<std::size_t>(key)]; });
}

}  // namespace

void print_classes() {
    if (count_classes() < 1) {
        return;
    }
    std::fputs(classes_head, stdout);
    draw_delay();
    const Connection db(paths::catalogue_database);
    int count = 0;
    for_each(db, "select * from App_Class order by Id ;", [&](const Row &row) {
        print_class(db, row);
        ++count;
    });
    print_closing(class_keys, count);
    std::fputs("}}", stdout);
    close(STDIN_FILENO);
}

}  // namespace bench::bare
