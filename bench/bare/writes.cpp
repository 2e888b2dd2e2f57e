// Changes of one row by hand.
#include <sqlite3.h>

#include "bare/connection.h"
#include "harness/outcomes.h"
#include "harness/places.h"
#include "harness/update_columns.h"
#include "harness/variants.h"

namespace bench::bare {

void execute_update() {
    execute(update_sql);
}

void configure_device() {
    sqlite3_str *const sql = sqlite3_str_new(nullptr);
    sqlite3_str_appendall(sql, "update DevInfo set ");
    for_each_configured(places.device, [sql](const char *column, const char *value) {
        sqlite3_str_appendf(sql, " %s='%q',", column, value);
    });
    sqlite3_str_appendf(sql, " Dev_Status='1'   where Dev_Sn='%u'  ;", places.device.Dev_Sn);
    char *const statement = sqlite3_str_finish(sql);
    execute(statement);
    sqlite3_free(statement);
}

}  // namespace bench::bare
