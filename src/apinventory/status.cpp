#include "apinventory/status.h"

#include "apinventory/notify.h"
#include "core/execute.h"
#include "core/profiles.h"
#include "core/query.h"
#include "text/number.h"
#include "text/text.h"

namespace routerdb {

namespace {

using Sql = StackText<200>;

const char *column_of(LookupKey key) {
    return key == LookupKey::mac ? "Dev_MAC" : "Dev_Ipaddress";
}

// These functions report nothing: what becomes of a statement shows in the row alone.

void run(const Text &sql) {
    [[maybe_unused]] const int result = execute(profiles::exec_char, sql);
}

void read_text(const Text &sql, TextRoom out) {
    [[maybe_unused]] const int result = read(profiles::exec_char_char, sql, out);
}

int count_rows(const Text &sql, SharedConnection *shared = nullptr) {
    unsigned rows = 0;
    return count(profiles::exec_char_int, sql, rows, shared) == 0 ? static_cast<int>(rows) : 0;
}

}  // namespace

void set_status(LookupKey key, const char *value, const char *status) {
    Sql sql;
    sql.append("update DevInfo set Dev_Status=").append_quoted(status);
    if (to_number(status) == 0) {
        sql.append(",Dev_Wlan_Sta_Num='0',Dev_Wlan_Sta_Num_sec='0'");
    }
    sql.append("  where ").append(column_of(key)).append("=").append_quoted(value).append(";");
    run(sql);
}

void read_status(const char *column, const char *mac, TextRoom out) {
    out.take("0");
    Sql sql;
    sql.append("select ").append(column).append(" from  DevInfo  where Dev_MAC=").append_quoted(mac).append(";");
    read_text(sql, out);
}

void read_mac(unsigned long sn, TextRoom out) {
    Sql sql;
    sql.append("select Dev_MAC from  DevInfo where Dev_Sn=").append_quoted(sn).append(";");
    read_text(sql, out);
}

void read_sn(LookupKey key, std::string_view value, Quotes quotes, unsigned long &sn, SharedConnection *shared) {
    Sql sql;
    sql.append("select Dev_Sn from  DevInfo where ")
        .append(column_of(key))
        .append("=")
        .append_quoted(value, quotes)
        .append(";");
    [[maybe_unused]] const int result = read(profiles::exec_char_long, sql, sn, shared);
}

void set_upgrade_status(const char *mac, const char *status) {
    Sql sql;
    sql.append("update DevInfo set Dev_Upgrade_Status=").append_quoted(status);
    sql.append("  where Dev_MAC=").append_quoted(mac).append(";");
    run(sql);
    unsigned long sn = 0;  // announced for an unknown address
    read_sn(LookupKey::mac, mac, Quotes::as_given, sn);
    notify(Event::modified, sn);
}

int rows_in_table(const char *table, SharedConnection *shared) {
    Sql sql;
    sql.append("select *  from ").append(table).append(";");
    return count_rows(sql, shared);
}

int rows_in_named_table(const char *name) {
    Sql sql;
    sql.append("select *  from ").append_table(name).append(";");
    return count_rows(sql);
}

}  // namespace routerdb
