// Changes of one row with the sqlite3 program.
#include "harness/desk.h"
#include "harness/outcomes.h"
#include "harness/update_columns.h"
#include "harness/variants.h"
#include "program/rows.h"

namespace bench::program {

namespace {

std::string quoted(const std::string &value) {
    std::string text = "'";
    for (const char character : value) {
        text += character == '\'' ? "''" : std::string(1, character);
    }
    return text + "'";
}

}  // namespace

void execute_update() {
    execute(paths::main_database, update_sql);
}

void configure_device() {
    std::string sql = "update DevInfo set ";
    for_each_configured(desk.device, [&sql](const char *column, const char *value) {
        sql.append(column).append(" = ").append(quoted(value)).append(", ");
    });
    sql += "Dev_Status = '1' where Dev_Sn = " + std::to_string(desk.device.Dev_Sn);
    execute(paths::main_database, sql);
}

}  // namespace bench::program
