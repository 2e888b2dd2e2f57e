// The reasons for which single functions fail, and the functions that have none.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "routerdb.h"
#include "support/database.h"
#include "support/left_errno.h"
#include "support/recorder.h"

namespace {

using support::build_profile;
using support::Database;
using support::expect_errno;
using support::found_errno;
using support::Recorder;

void execute(const std::string &sql) {
    DB_EXEC_SQL_CHAR(sql.c_str());
}

/// Every helper that reads what a caller asks for.
void expect_of_readings(int reason, const char *sql) {
    static unsigned rows;
    static unsigned long number;
    static char text[64];
    expect_errno(reason, [sql] { DB_EXEC_SQL_CHAR_INT(sql, &rows); });
    expect_errno(reason, [sql] { DB_EXEC_SQL_CHAR_LONG(sql, &number); });
    expect_errno(reason, [sql] { DB_EXEC_SQL_CHAR_CHAR(sql, text); });
    expect_errno(reason, [sql] { GET_DB_SQL_INT_COUNT(sql); });
    expect_errno(reason, [sql] { GET_DB_SQL_INT(sql); });
}

TEST(ErrnoOfTheLock, tells_why_it_could_not_be_opened) {
    ASSERT_EQ(unlink(support::lock_file), 0);
    for (int (*function)() : {get_db_lock, backup_sqlite_db, restore_sqlite_db, reset_sqlite_db}) {
        expect_errno(ENOENT, [function] { EXPECT_EQ(function(), -1); });
    }
    ASSERT_EQ(mkdir(support::lock_file, 0755), 0);
    expect_errno(EISDIR, [] { EXPECT_EQ(get_db_lock(), -1); });
}

TEST(ErrnoOfTheLock, is_left_alone_by_what_goes_well) {
    const Recorder recorder;
    for (int (*function)() : {backup_sqlite_db, restore_sqlite_db, reset_sqlite_db}) {
        expect_errno(found_errno, [function] { EXPECT_EQ(function(), 0); });
    }
    expect_errno(found_errno, [] { free_db_lock(get_db_lock()); });
}

TEST(ErrnoOfTheLock, is_that_of_the_system_where_a_descriptor_is_handed_over) {
    constexpr int not_open = 1000;
    errno = 0;
    EXPECT_EQ(lock_reg(not_open, F_SETLK, F_WRLCK, 0, SEEK_SET, 0), -1);
    EXPECT_EQ(errno, EBADF);
    errno = 0;
    EXPECT_EQ(free_db_lock(not_open), 0);
    EXPECT_EQ(errno, EBADF);
}

TEST(ErrnoOfAText, tells_of_a_file_that_it_attaches) {
    const char *attach = "attach '/var/foreign.db' as foreign_file;";
    expect_errno(EINVAL, [attach] { execute(attach); });
    expect_errno(EINVAL, [attach] { DbSqlExec(std::string(attach).data()); });
    expect_errno(EINVAL, [attach] { GET_DB_SQL_INT_COUNT_DPI(attach); });
    expect_of_readings(EINVAL, attach);
}

TEST(ErrnoOfAText, tells_of_a_value_that_is_too_long) {
    const char *too_long = "select zeroblob(1000000001);";
    expect_errno(EOVERFLOW, [too_long] { execute(too_long); });
    expect_errno(EOVERFLOW, [too_long] { GET_DB_SQL_INT_COUNT_ROUTE(too_long); });
    expect_of_readings(EOVERFLOW, too_long);
}

TEST(ErrnoOfAText, tells_of_room_that_is_not_there) {
    expect_errno(ENOSPC, [] {
        execute("pragma max_page_count=1; insert into DevInfo(Dev_Sn,Dev_Name) values(7,zeroblob(1000000));");
    });
}

TEST(ErrnoOfAText, tells_of_a_database_that_is_not_to_be_written) {
    expect_errno(EACCES, [] { execute("pragma query_only=1; insert into DevInfo(Dev_Sn) values(7);"); });
}

TEST(ErrnoOfAText, tells_of_a_database_that_is_busy_behind_a_row) {
    support::execute("insert into DevInfo(Dev_Sn) values(1),(2);");
    const Database other;
    other.execute("begin; select * from DevInfo;");  // keeps what is inserted from being committed
    expect_of_readings(ETIMEDOUT, "insert into WlanGroupInfo(WlanGroup_Id) values(3),(4) returning WlanGroup_Id;");
    other.execute("commit;");
    EXPECT_EQ(support::value("select count(*) from WlanGroupInfo;"), "0");
}

/// The functions that ask on the connection of a caller.
void expect_of_connection(int reason, sqlite3 *db) {
    static char text[ROUTERDB_JOINED_NAMES];
    static TimeGroupItem times;
    static IpGroupItem addresses;
    expect_errno(reason, [db] { GET_DB_SQLITE_SQL_STR_N("select Name from App_Info;", text, db); });
    expect_errno(reason, [db] { GetTimeControlById(db, 1, &times); });
    expect_errno(reason, [db] { GetIpGroup_IpRangeById(db, 1, &addresses); });
    expect_errno(reason, [db] { GetAppinfosByClassId(3, text, db); });
    expect_errno(reason, [db] { GetAppinfosEnByClassId(3, text, db); });
    expect_errno(reason, [db] { GetAppFeaturesByClassId(3, text, db); });
}

int refuse_reading(void * /*unused*/, int action, const char * /*unused*/, const char * /*unused*/,
                   const char * /*unused*/, const char * /*unused*/) {
    return action == SQLITE_READ ? SQLITE_DENY : SQLITE_OK;
}

TEST(ErrnoOfAConnection, tells_what_it_refuses_and_lacks) {
    const Database database(":memory:");
    expect_of_connection(EIO, database.handle());
    database.execute(
        "create table user_timegroup(id,name); create table user_ipgroup(Id,name,startip,endip);"
        "create table App_Info(Class_Id,Name,Name_En,Features);");
    expect_of_connection(found_errno, database.handle());
    sqlite3_set_authorizer(database.handle(), refuse_reading, nullptr);
    expect_of_connection(EINVAL, database.handle());
    expect_errno(EOVERFLOW, [&] {
        char text[8];
        GET_DB_SQLITE_SQL_STR_N("select zeroblob(1000000001);", text, database.handle());
    });
}

TEST(ErrnoOfAList, tells_that_more_rows_are_there_than_it_takes) {
    support::execute(
        "with recursive n(i) as (select 1 union all select i+1 from n where i<1001)"
        "insert into DevInfo(Dev_Sn) select i from n;");
    const Recorder recorder;
    static ApDevList list;
    expect_errno(EOVERFLOW, [] { EXPECT_EQ(GetApDevList(&list, 0), 1); });
    EXPECT_EQ(list.count, 1000U);
    FreeApDevList(&list);
    if (build_profile.caps_lists) {
        EXPECT_EQ(recorder.calls({"syslog"}),
                  std::vector<std::string>{
                      "syslog 3 DevInfo has more rows than a list of 1000 takes, the rest is left out\n"});
    }
}

TEST(ErrnoOfAList, tells_that_more_features_are_there_than_it_takes) {
    support::execute(
        "with recursive n(i) as (select 1 union all select i+1 from n where i<129)"
        "insert into App_Info(Class_Id,Features) select 3,'f' from n;");
    struct {
        AppFeatureList list;
        char behind[sizeof(AppFeatureList::features[0])];  // which the exact profile writes
    } static room;
    expect_errno(EOVERFLOW, [] { GetAppItemListByClassId(&room.list, 3); });
}

TEST(ErrnoOfAList, does_not_tell_of_names_within_it_that_could_not_be_joined) {
    const Database catalogue(support::catalogue_database);
    catalogue.execute("insert into App_Class(Id,Name,Name_En) values(3,'c','c'); drop table App_Info;");
    expect_errno(found_errno, [] { GetAppClassItemList(); });
}

TEST(ErrnoOfARuleList, tells_of_groups_that_could_not_be_looked_up_and_of_nothing_else) {
    support::execute(
        "insert into filter_url(timecontrol,timegroup_id) values(2,5);"
        "insert into behavior_rule(devmac,behavior_info) values('06','3:f1');");
    Database(support::catalogue_database).execute("drop table App_Class;");
    static UrlFilterItemList filters;
    static BehaviorItemList rules;
    expect_errno(found_errno, [] { GetUrlFilterItemListInServer(&filters, "select * from filter_url;"); });
    expect_errno(found_errno, [] { GetBehaviorItemListInServer(&rules, "select * from behavior_rule;"); });
    support::execute("drop table user_timegroup;");
    expect_errno(EIO, [] { GetUrlFilterItemListInServer(&filters, "select * from filter_url;"); });
    EXPECT_EQ(filters.count, 1U);
}

DevInfo device_with(const char *mac) {
    DevInfo device{};
    std::strcpy(device.Dev_MAC, mac);
    std::strcpy(device.Dev_Ipaddress, "10.0.0.1");
    return device;
}

TEST(ErrnoOfARegistration, does_not_tell_of_an_ssid_that_is_no_gb2312) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    DevInfo device = device_with("00:11:22:33:44:55");
    std::strcpy(device.Dev_Wlan_Radio_Num, "2");
    std::strcpy(device.wlan[1].Ssid, "\xff\xff");
    expect_errno(found_errno, [&] { EXPECT_EQ(DB_addinfo(device), 16777226); });
}

TEST(ErrnoOfARegistration, tells_of_a_table_that_is_full) {
    support::execute(
        "with recursive n(i) as (select 1 union all select i+1 from n where i<20)"
        "insert into DevInfo(Dev_Sn) select i from n;");
    expect_errno(EOVERFLOW, [] { EXPECT_EQ(DB_addinfo(device_with("06")), -1); });
}

TEST(ErrnoOfARegistration, tells_of_an_address_that_is_missing) {
    unsigned long sn = 0;
    expect_errno(EINVAL, [&sn] { EXPECT_EQ(DB_findinfo2(device_with(""), &sn), -1); });
}

TEST(ErrnoOfARegistration, does_not_tell_of_a_signal_between_two_lookups) {
    Recorder recorder;
    recorder.watch([](const std::string &line) { errno = line == "usleep 100" ? EINTR : errno; });
    unsigned long sn = 0;
    expect_errno(found_errno, [&sn] { EXPECT_EQ(DB_findinfo2(device_with("06"), &sn), 0); });
}

TEST(ErrnoOfAConversion, is_that_of_the_converter) {
    char out[ROUTERDB_CONVERSION_ROOM];
    const std::string long_text(ROUTERDB_CONVERSION_ROOM + 1, 'a');
    const struct {
        int (*convert)(const char *, size_t, char *, size_t);
        std::string text;
        int reason;
    } cases[] = {
        {utf8togb2312, "abc", found_errno}, {gb2312toutf8, "\xc4\xe3", found_errno}, {utf8togb2312, "\xff\xff", EILSEQ},
        {gb2312toutf8, "\xff\xff", EILSEQ}, {utf8togb2312, "\xe4\xbd", EINVAL},      {gb2312toutf8, "\xc4", EINVAL},
        {utf8togb2312, long_text, E2BIG},
    };
    for (const auto &conversion : cases) {
        SCOPED_TRACE(conversion.text);
        const support::DeliberateLeak converter;
        errno = found_errno;
        const int result = conversion.convert(conversion.text.c_str(), conversion.text.size(), out, sizeof(out));
        EXPECT_EQ(errno, conversion.reason) << "in either profile";
        EXPECT_EQ(result, conversion.reason == found_errno ? 0 : -1);
    }
}

TEST(ErrnoOfOthers, is_left_alone) {
    static DevInfo device;
    static DevInfo group;
    std::memset(group.wlan[0].Securitycipher, '9', sizeof(group.wlan[0].Securitycipher));  // beyond all numbers
    char ids[] = "99999999999999999999#-99999999999999999999";
    char more_ids[] = "99999999999999999999";
    int numbers[ROUTERDB_MAX_IDS];
    char out[64] = "";
    expect_errno(found_errno, [&] {
        muti_id_convert_int_array(ids, numbers);
        generate_db_params(more_ids, out, sizeof(out), ROUTERDB_COLUMN_ID);
        change_time_to_int("99:99");
        check_time_one_day("a", "b");
        CompareDevInfoWithGroupInfo(device, group);
        CompareDevInfoWithZeroGroupInfo(device, group);
        SetDevInfoFromWlanGroupInfo(&device, &group);
        SetDevInfoFromWlanZeroCfgGroupInfo(&device, &group);
        DeleteApDevUpgradeInfo(nullptr);
        GetApDevUpgradeList(nullptr);
        free_buffer_sql(get_buffer_sql(10), 10);
    });
}

TEST(ErrnoOfOutput, is_left_alone_where_it_cannot_be_written) {
    static DevInfo device;
    static DevInfo other;
    std::strcpy(other.Dev_Wlan_GroupId, "1");
    expect_errno(found_errno, [] {
        const int output = dup(STDOUT_FILENO);
        std::setvbuf(stdout, nullptr, _IONBF, 0);
        close(STDOUT_FILENO);
        errno = found_errno;
        GetApDevList_cgi(1, 0, 0, 0, "", "", 17);
        CompareDevInfoWithGroupInfo(device, other);
        const int left = errno;
        dup2(output, STDOUT_FILENO);
        close(output);
        errno = left;
    });
}

}  // namespace
