// What calls leave in errno: the reason of a failure, and what was there before otherwise, where failures are told so.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <functional>

#include "routerdb.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;

struct Case : support::Named {
    std::function<void()> call;
};

std::vector<Case> cases() {
    static unsigned count;
    static unsigned long number;
    static char text[64];
    static DevInfo device;
    static ApDevList devices;
    static UrlFilterItemList rules;
    static uint32_t collection;
    const auto exec = [](const char *name, int (*function)(const char *)) {
        return Case{{name}, [function] { function("select Dev_Sn from DevInfo;"); }};
    };
    return {
        {{"DbSqlExec"}, [] { DbSqlExec(std::string("select Dev_Sn from DevInfo;").data()); }},
        exec("DB_EXEC_SQL_CHAR", DB_EXEC_SQL_CHAR),
        exec("GET_DB_SQL_INT", GET_DB_SQL_INT),
        exec("GET_DB_SQL_INT_COUNT", GET_DB_SQL_INT_COUNT),
        exec("GET_DB_SQL_INT_COUNT_ROUTE", GET_DB_SQL_INT_COUNT_ROUTE),
        {{"DB_EXEC_SQL_CHAR_INT"}, [] { DB_EXEC_SQL_CHAR_INT("select Dev_Sn from DevInfo;", &count); }},
        {{"DB_EXEC_SQL_CHAR_LONG"}, [] { DB_EXEC_SQL_CHAR_LONG("select Dev_Sn from DevInfo;", &number); }},
        {{"DB_EXEC_SQL_CHAR_CHAR"}, [] { DB_EXEC_SQL_CHAR_CHAR("select Dev_Sn from DevInfo;", text); }},
        {{"DB_getinfo"}, [] { DB_getinfo(&device, 7, 1); }},
        {{"GetApDevList"},
         [] {
             GetApDevList(&devices, 0);
             FreeApDevList(&devices);
         }},
        {{"GetApDevList_count"}, [] { GetApDevList_count(); }},
        {{"get_devinfo_count"}, [] { get_devinfo_count(); }},
        {{"GetDevStatus"}, [] { GetDevStatus("06", text); }},
        {{"GetDevMacBySN"}, [] { GetDevMacBySN(7, text); }},
        {{"GetDevSNByMac"}, [] { GetDevSNByMac("06", &number); }},
        {{"SetDevStatus"}, [] { SetDevStatus("06", "1"); }},
        {{"SetDevStatusbyIP"}, [] { SetDevStatusbyIP("10.0.0.1", "1"); }},
        {{"SetDevUpgradeStatus"}, [] { SetDevUpgradeStatus("06", "1"); }},
        {{"DB_UpdateInfo"}, [] { DB_UpdateInfo(device); }},
        {{"DB_saveinfo"}, [] { DB_saveinfo(&device); }},
        {{"DB_GetDevSNCollection"}, [] { DB_GetDevSNCollection(&collection); }},
        {{"GetApDevList_cgi"}, [] { GetApDevList_cgi(1, 0, 0, 0, "", "", 17); }},
        {{"GetUrlFilterItemListInServer"},
         [] { GetUrlFilterItemListInServer(&rules, "select DevInfo.Dev_Sn as id from DevInfo;"); }},
    };
}

class Errno : public testing::TestWithParam<Case> {
protected:
    /// What a call leaves that finds E2BIG there.
    static int left() {
        int reason = 0;
        Recorder recorder;
        recorder.keep_commands_from_running();
        support::streams_of([&] {
            errno = E2BIG;
            GetParam().call();
            reason = errno;
        });
        return reason;
    }

    static void expect(int reason) {
        const int found = left();
        if (support::build_profile.tells_failures) {
            EXPECT_EQ(found, reason);
        }
    }
};

TEST_P(Errno, is_left_alone_by_success) {
    support::execute("insert into DevInfo(Dev_Sn,Dev_MAC,Dev_Ipaddress,Dev_Status) values(7,'06','10.0.0.1','1');");
    expect(E2BIG);
}

TEST_P(Errno, is_left_alone_where_there_is_no_row) {
    expect(E2BIG);
}

TEST_P(Errno, tells_of_a_table_that_is_not_there) {
    support::execute("drop table DevInfo;");
    expect(EIO);
}

TEST_P(Errno, tells_of_memory_that_ran_out) {
    if (GetParam().name == "GetUrlFilterItemListInServer" || !support::build_profile.tells_failures) {
        return;
    }
    int reason = 0;
    Recorder recorder;
    recorder.keep_commands_from_running();
    recorder.answer("sqlite3_open",
                    {SQLITE_NOMEM, SQLITE_NOMEM, SQLITE_NOMEM, SQLITE_NOMEM, SQLITE_NOMEM, SQLITE_NOMEM});
    support::streams_of([&] {
        const support::DeliberateLeak handles;
        errno = 0;
        GetParam().call();
        reason = errno;
    });
    EXPECT_EQ(reason, ENOMEM);
}

INSTANTIATE_TEST_SUITE_P(Of, Errno, testing::ValuesIn(cases()), testing::PrintToStringParamName());

TEST(ErrnoOfTheLock, tells_why_it_could_not_be_opened) {
    ASSERT_EQ(unlink(support::lock_file), 0);
    for (int (*function)() : {get_db_lock, backup_sqlite_db, restore_sqlite_db, reset_sqlite_db}) {
        support::streams_of([&] {
            errno = 0;
            EXPECT_EQ(function(), -1);
            EXPECT_EQ(errno, support::build_profile.tells_failures ? ENOENT : errno);
        });
    }
}

TEST(ErrnoOfAList, tells_that_more_rows_are_there_than_it_takes) {
    support::execute(
        "with recursive n(i) as (select 1 union all select i+1 from n where i<1001)"
        "insert into DevInfo(Dev_Sn) select i from n;");
    const Recorder recorder;
    static ApDevList list;
    errno = 0;
    EXPECT_EQ(GetApDevList(&list, 0), 1);
    const int reason = errno;
    EXPECT_EQ(list.count, 1000U);
    FreeApDevList(&list);
    if (support::build_profile.caps_lists) {
        EXPECT_EQ(reason, EOVERFLOW);
        EXPECT_EQ(recorder.calls({"syslog"}),
                  std::vector<std::string>{
                      "syslog 3 DevInfo has more rows than a list of 1000 takes, the rest is left out\n"});
    }
}

/// What a call leaves that finds E2BIG there, or E2BIG where failures are not told so.
int left_by(const std::function<void()> &call) {
    int reason = 0;
    Recorder recorder;
    recorder.keep_commands_from_running();
    support::streams_of([&] {
        errno = E2BIG;
        call();
        reason = errno;
    });
    return support::build_profile.tells_failures ? reason : E2BIG;
}

TEST(ErrnoOfLeases, tells_of_a_file_that_is_not_there) {
    char hostname[128];
    int leases = 0;
    LeaseNode *head = nullptr;
    const int missing = support::build_profile.tells_failures ? ENOENT : E2BIG;
    EXPECT_EQ(left_by([&] { get_hostname_by_mac_from_lease("06", hostname, "/var/none", "/var/none"); }), missing);
    EXPECT_EQ(left_by([&] { leases = get_addrserver_leases_sql(&head, "/var/none", "/var/none"); }), missing);
    EXPECT_EQ(leases, 0);
    support::write_file("/var/leases", "1 06 10.0.0.1 host\n");
    EXPECT_EQ(left_by([&] { get_hostname_by_mac_from_lease("06", hostname, "/var/leases", "/var/none"); }), E2BIG);
    EXPECT_STREQ(hostname, "host");
}

TEST(ErrnoOfARegistration, does_not_tell_of_an_ssid_that_is_no_gb2312) {
    DevInfo device{};
    std::strcpy(device.Dev_MAC, "00:11:22:33:44:55");
    std::strcpy(device.Dev_Ipaddress, "10.0.0.1");
    std::strcpy(device.Dev_Wlan_Radio_Num, "2");
    std::strcpy(device.wlan[1].Ssid, "\xff\xff");
    const support::DeliberateLeak converter;
    EXPECT_EQ(left_by([&] { EXPECT_EQ(DB_addinfo(device), 16777226); }), E2BIG);
}

}  // namespace
