// Changes of one row by hand.
#include <arpa/inet.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdlib>

#include "bare/by_hand.h"
#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/outcomes.h"
#include "harness/settings.h"

namespace bench::bare {

namespace {

/// Executes a text that sqlite3_mprintf made, and frees it.
void execute_and_free(char *sql) {
    execute(sql);
    sqlite3_free(sql);
}

int count_rows_and_free(char *sql) {
    const int count = count_rows(sql);
    sqlite3_free(sql);
    return count;
}

/// Looks sixteen times for the address of an access point that is not there yet.
bool is_known(const DevInfo &device) {
    constexpr int attempts = 16;
    char *const sql = sqlite3_mprintf("select Dev_Sn  from DevInfo where Dev_MAC='%q';", device.Dev_MAC);
    int count = count_rows(sql);
    for (int attempt = 1; attempt < attempts && count == 0; ++attempt) {
        usleep(100);
        count = count_rows(sql);
    }
    sqlite3_free(sql);
    return count != 0;
}

void insert_row(const DevInfo &device, unsigned long sn) {
    execute_and_free(sqlite3_mprintf("delete from DevInfo where Dev_MAC='%q';", device.Dev_MAC));
    execute_and_free(
        sqlite3_mprintf("insert into DevInfo (Dev_Sn,Dev_Group,Dev_Name,Dev_MAC) values('%lu','%q','%q','%q') ;", sn,
                        device.Dev_Group, device.Dev_Name, device.Dev_MAC));
}

void report(const DevInfo &device, const char *group) {
    sqlite3_str *const sql = sqlite3_str_new(nullptr);
    sqlite3_str_appendall(sql, "update DevInfo set ");
    for_each_reported(
        device, [sql](const char *column, const char *value) { sqlite3_str_appendf(sql, " %s='%q',", column, value); });
    sqlite3_str_appendf(sql, "%s Dev_Status='1',  Dev_Upgrade_Status='0'   where Dev_MAC='%q';", group, device.Dev_MAC);
    execute_and_free(sqlite3_str_finish(sql));
}

void announce() {
    [[maybe_unused]] const int told = system("/bin/send_event 5 4 add#218212544 >/dev/null 2>&1 &");
}

}  // namespace

void execute_update() {
    execute(update_sql);
}

void configure_device() {
    sqlite3_str *const sql = sqlite3_str_new(nullptr);
    sqlite3_str_appendall(sql, "update DevInfo set ");
    for_each_configured(desk.device, [sql](const char *column, const char *value) {
        sqlite3_str_appendf(sql, " %s='%q',", column, value);
    });
    sqlite3_str_appendf(sql, " Dev_Status='1'   where Dev_Sn='%u'  ;", desk.device.Dev_Sn);
    execute_and_free(sqlite3_str_finish(sql));
}

void register_device() {
    const DevInfo &device = desk.device;
    const unsigned long sn = inet_addr(device.Dev_Ipaddress);
    if (is_known(device)) {
        count_rows_and_free(sqlite3_mprintf("select Dev_Sn from  DevInfo where Dev_MAC='%q';", device.Dev_MAC));
        count_rows("select *  from DevInfo;");
        report(device, "");
        announce();
        return;
    }
    const int in_the_way = count_rows_and_free(sqlite3_mprintf("select *  from DevInfo where Dev_Sn='%lu';", sn));
    if (in_the_way != 0 || count_rows("select *  from DevInfo;") >= ROUTERDB_MAX_DEVICES) {
        return;
    }
    insert_row(device, sn);
    report(device, " Dev_Wlan_GroupId='0',");
    announce();
}

}  // namespace bench::bare
