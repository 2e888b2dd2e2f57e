// Changes of one row with SQLiteCpp.
#include <arpa/inet.h>

#include "harness/desk.h"
#include "harness/outcomes.h"
#include "harness/update_columns.h"
#include "harness/variants.h"
#include "sqlitecpp/reading.h"

namespace bench::sqlitecpp {

namespace {

/// Writes columns by parameters. `for_each` calls its argument with each column and its value.
template <typename ForEach>
void update(SQLite::Database &db, unsigned long sn, const char *constants, ForEach for_each) {
    std::string sql = "update DevInfo set ";
    for_each([&sql](const char *column, const char * /*value*/) { sql.append(column).append(" = ?, "); });
    SQLite::Statement statement(db, sql + constants + " where Dev_Sn = ?");
    int parameter = 0;
    for_each([&](const char * /*column*/, const char *value) { statement.bind(++parameter, value); });
    statement.bind(++parameter, static_cast<int64_t>(sn));
    statement.exec();
}

void insert(SQLite::Database &db, const DevInfo &device, unsigned long sn) {
    SQLite::Statement statement(db, "insert into DevInfo (Dev_Sn, Dev_MAC) values (?, ?)");
    statement.bind(1, static_cast<int64_t>(sn));
    statement.bind(2, device.Dev_MAC);
    statement.exec();
}

}  // namespace

void execute_update() {
    SQLite::Database db(paths::main_database, SQLite::OPEN_READWRITE);
    db.exec(update_sql);
}

void configure_device() {
    SQLite::Database db(paths::main_database, SQLite::OPEN_READWRITE);
    update(db, desk.device.Dev_Sn, "Dev_Status = '1'", [](auto write) { for_each_configured(desk.device, write); });
}

void register_device() {
    const DevInfo &device = desk.device;
    const unsigned long sn = inet_addr(device.Dev_Ipaddress);
    SQLite::Database db(paths::main_database, SQLite::OPEN_READWRITE);
    SQLite::Transaction transaction(db);
    SQLite::Statement known(db, "select count(*) from DevInfo where Dev_MAC = ?");
    known.bind(1, device.Dev_MAC);
    known.executeStep();
    if (known.getColumn(0).getInt() == 0 &&
        db.execAndGet("select count(*) from DevInfo").getInt() < ROUTERDB_MAX_DEVICES) {
        insert(db, device, sn);
        update(db, sn, "Dev_Wlan_GroupId = '0', Dev_Status = '1', Dev_Upgrade_Status = '0'",
               [&device](auto write) { for_each_reported(device, write); });
    }
    known.reset();
    transaction.commit();
    [[maybe_unused]] const int told = system("/bin/send_event 5 4 add#218212544 >/dev/null 2>&1 &");
}

}  // namespace bench::sqlitecpp
