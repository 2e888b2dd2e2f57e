// Zero-configuration groups by hand.
#include <cstdlib>

#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/json_lists.h"
#include "harness/variants.h"

namespace bench::bare {

void print_groups() {
    {
        const Lock lock;
        sqlite3 *const db = open(paths::main_database);
        sqlite3_stmt *const statement = prepare(db, "select * from WlanZeroCfgGroupInfo;");
        const bool none = sqlite3_step(statement) != SQLITE_ROW || std::atoi(text(statement, 0)) < 1;
        sqlite3_finalize(statement);
        sqlite3_close(db);
        if (none) {
            return;
        }
    }
    std::printf("{\"WlanGroupList\":{\"data\":[");
    draw_delay();
    sqlite3 *const db = open(paths::main_database);
    sqlite3_stmt *const statement = prepare(db, groups_sql);
    int count = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        print_group([statement](int column) { return text(statement, column); });
        ++count;
    }
    print_groups_end(count);
    sqlite3_finalize(statement);
    sqlite3_close(db);
}

}  // namespace bench::bare
