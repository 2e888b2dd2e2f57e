// Changes of one row with SOCI.
#include <arpa/inet.h>

#include <deque>

#include "harness/outcomes.h"
#include "harness/update_columns.h"
#include "harness/variants.h"
#include "soci/reading.h"

namespace bench::soci_users {

namespace {

/// Writes columns by parameters. `for_each` calls its argument with each column and its value.
template <typename ForEach>
void update(soci::session &sql, long long sn, const std::string &constants, ForEach for_each) {
    std::string text = "update DevInfo set ";
    std::deque<std::string> values;  // whose elements stay where they are
    soci::statement statement(sql);
    for_each([&](const char *column, const char *value) {
        text.append(column).append(" = :").append(column).append(", ");
        statement.exchange(soci::use(values.emplace_back(value), column));
    });
    statement.exchange(soci::use(sn, "sn"));
    statement.alloc();
    statement.prepare(text + constants + " where Dev_Sn = :sn");
    statement.define_and_bind();
    statement.execute(true);
}

}  // namespace

void execute_update() {
    soci::session sql(soci::sqlite3, main_database());
    sql << update_sql;
}

void configure_device() {
    soci::session sql(soci::sqlite3, main_database());
    update(sql, desk.device.Dev_Sn, "Dev_Status = '1'", [](auto write) { for_each_configured(desk.device, write); });
}

void register_device() {
    const DevInfo &device = desk.device;
    const long long sn = inet_addr(device.Dev_Ipaddress);
    const std::string mac = device.Dev_MAC;
    soci::session sql(soci::sqlite3, main_database());
    soci::transaction transaction(sql);
    int known = 0;
    int count = 0;
    sql << "select count(*) from DevInfo where Dev_MAC = :mac", soci::use(mac), soci::into(known);
    sql << "select count(*) from DevInfo", soci::into(count);
    if (known == 0 && count < ROUTERDB_MAX_DEVICES) {
        sql << "insert into DevInfo (Dev_Sn, Dev_MAC) values (:sn, :mac)", soci::use(sn), soci::use(mac);
        update(sql, sn, "Dev_Wlan_GroupId = '0', Dev_Status = '1', Dev_Upgrade_Status = '0'",
               [&device](auto write) { for_each_reported(device, write); });
    }
    transaction.commit();
    [[maybe_unused]] const int told = system("/bin/send_event 5 4 add#218212544 >/dev/null 2>&1 &");
}

}  // namespace bench::soci_users
