// Sixteen processes that count up, and readers of every kind beside them.
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <cstring>
#include <deque>
#include <iterator>
#include <string>
#include <thread>

#include "routerdb.h"
#include "soak/soak.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/service.h"
#include "support/streams.h"

namespace {

using support::Process;

constexpr long writers = 16;

/// Gives others time to come between two statements.
#define TIME_FOR_OTHERS \
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) SELECT max(i) FROM n;"

/// A row that is counted up, and the two columns that are always written together.
struct Counter {
    const char *once;   // one statement
    const char *twice;  // two: only a lock around both keeps the count right. One that was busy is tried again from the
                        // start, which the first one bears
    const char *value;
};

constexpr Counter counters[] = {
    {"update user_urlinfo set name = name + 1, mark = name + 1;",
     "update user_urlinfo set url = name + 1;" TIME_FOR_OTHERS "update user_urlinfo set name = url, mark = url;",
     "select name from user_urlinfo;"},
    {"update DevInfo set Dev_Name = Dev_Name + 1, Dev_Group = Dev_Name + 1;",
     "update DevInfo set Dev_SwVer = Dev_Name + 1;" TIME_FOR_OTHERS
     "update DevInfo set Dev_Name = Dev_SwVer, Dev_Group = Dev_SwVer;",
     "select Dev_Name from DevInfo;"},
    {"update WlanZeroCfgGroupInfo set WlanGroup_Wlan1_Ssid = WlanGroup_Wlan1_Ssid + 1,"
     "WlanGroup_Name = WlanGroup_Wlan1_Ssid + 1;",
     "update WlanZeroCfgGroupInfo set WlanGroup_Wlan5_Ssid = WlanGroup_Wlan1_Ssid + 1;" TIME_FOR_OTHERS
     "update WlanZeroCfgGroupInfo set WlanGroup_Wlan1_Ssid = WlanGroup_Wlan5_Ssid,"
     "WlanGroup_Name = WlanGroup_Wlan5_Ssid;",
     "select WlanGroup_Name from WlanZeroCfgGroupInfo;"},
};

void make_rows() {
    support::execute(
        "insert into user_urlinfo(name, mark) values('0', '0');"
        "insert into DevInfo(Dev_Sn, Dev_IPSUM, Dev_Ipaddress, Dev_Name, Dev_Group) values(1, 1, '10.0.0.1', '0', '0');"
        "insert into WlanZeroCfgGroupInfo(WlanGroup_Id, WlanGroup_Wlan1_Ssid, WlanGroup_Name) values(1, '0', '0');");
}

/// One guarded update, through either function.
bool count_up(std::mt19937 &random) {
    const Counter &counter = counters[soak::draw(random, std::size(counters))];
    const char *const sql = soak::draw(random, 2) == 0 ? counter.once : counter.twice;
    // It does not write to its text.
    return (soak::draw(random, 2) == 0 ? DB_EXEC_SQL_CHAR(sql) : DbSqlExec(const_cast<char *>(sql))) == 0;
}

long counted() {
    long sum = 0;
    for (const Counter &counter : counters) {
        sum += std::stol(support::value(counter.value));
    }
    return sum;
}

// Readers: each says whether it has seen the row, whole.

bool reads_a_number() {
    return GET_DB_SQL_INT_COUNT_ROUTE("select name = mark from user_urlinfo;") == 1;
}

bool counts_rows() {
    unsigned rows = 0;
    return DB_EXEC_SQL_CHAR_INT("select * from DevInfo where Dev_Name = Dev_Group;", &rows) == 0 && rows == 1;
}

bool reads_a_text() {
    char text[64] = "";
    const int result =
        DB_EXEC_SQL_CHAR_CHAR("select WlanGroup_Name = WlanGroup_Wlan1_Ssid from WlanZeroCfgGroupInfo;", text);
    return result == 0 && std::strcmp(text, "1") == 0;
}

bool counts_under_the_lock() {
    return GET_DB_SQL_INT("select * from user_urlinfo where name = mark;") == 1;
}

bool adds_up_under_the_lock() {
    return GET_DB_SQL_INT_COUNT("select name = mark from user_urlinfo;") == 1;
}

bool reads_an_access_point() {
    DevInfo device{};
    return DB_getinfo(&device, 1, 0) == 1 && std::strcmp(device.Dev_Name, device.Dev_Group) == 0;
}

bool reads_a_group() {
    DevInfo group{};
    return DB_getwlanzerocfggroupinfo(&group) > 0 && std::strcmp(group.wlan_group_name, group.wlan[0].Ssid) == 0;
}

bool lists_access_points() {
    static ApDevList list;
    const int result = GetApDevList(&list, 0);
    const bool well =
        result == 1 && list.count == 1 && std::strcmp(list.devices[0]->Dev_Name, list.devices[0]->Dev_Group) == 0;
    FreeApDevList(&list);
    return well;
}

bool holds_one_whole_row(const UserUrlItemList &list) {
    return list.count == 1 && list.items[0].id == 1 && std::strcmp(list.items[0].name, list.items[0].mark) == 0;
}

bool builds_a_list() {
    static UserUrlItemList list;
    GetUserUrlItemListInServer(&list, "select * from user_urlinfo order by id;");
    return holds_one_whole_row(list);
}

bool lists_through_the_service() {
    static UserUrlItemList list;
    GetUserUrlItemList(&list);
    return holds_one_whole_row(list);
}

/// What stands behind a key the first time.
std::string behind(const std::string &json, const std::string &key) {
    const std::size_t found = json.find('"' + key + "\":\"");
    const std::size_t begin = found + key.size() + 4;
    return found == std::string::npos ? "no " + key : json.substr(begin, json.find('"', begin) - begin);
}

bool prints_access_points() {
    const std::string json = support::streams_of([] { GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17); }).output;
    return behind(json, "m_dev_name") == behind(json, "m_group_name");
}

bool prints_groups() {
    const std::string json = support::streams_of([] { GetWlanZeroCfgGroupList(); }).output;
    return behind(json, "WlanGroup_Name") == behind(json, "WlanGroup_Wlan1_Ssid");
}

struct Reader {
    const char *what;
    bool (*read)();
};

constexpr Reader readers[] = {
    {"a number", reads_a_number},
    {"the number of rows", counts_rows},
    {"a text", reads_a_text},
    {"the number of rows, under the lock", counts_under_the_lock},
    {"a sum, under the lock", adds_up_under_the_lock},
    {"an access point", reads_an_access_point},
    {"a group", reads_a_group},
    {"the list of access points", lists_access_points},
    {"a list that is built", builds_a_list},
    {"a list from the service", lists_through_the_service},
    {"access points as JSON", prints_access_points},
    {"groups as JSON", prints_groups},
};

/// What processes tell each other.
struct State {
    std::atomic<bool> over;
    std::atomic<long> reads;
};

/// Reads in turn until the writers are through. Between two readings there is time for a writer.
bool read_all_kinds(State &state, std::mt19937 random) {
    while (!state.over) {
        for (const Reader &reader : readers) {
            if (!reader.read()) {
                std::fprintf(stderr, "Torn or missing: %s\n", reader.what);
                return false;
            }
            ++state.reads;
            usleep(500 + soak::draw(random, 2000));
        }
    }
    return true;
}

bool count_up_often(long times, std::mt19937 random) {
    for (long n = 0; n < times; ++n) {
        if (!count_up(random)) {
            return false;
        }
    }
    return true;
}

/// Threads of each writer, where the lock file keeps them apart.
constexpr long threads = support::build_profile.locks_threads ? 4 : 1;

/// A writer's increments, of which each thread makes its part.
bool count_up_in_threads(const support::Gate &start, long times, long writer) {
    start.wait();
    std::atomic<bool> well{true};
    std::deque<std::thread> working;
    for (long n = 0; n < threads; ++n) {
        const long part = times * (n + 1) / threads - times * n / threads;
        working.emplace_back([&well, part, number = 1000 + writer * threads + n] {
            if (!count_up_often(part, soak::random_numbers(number))) {
                well = false;
            }
        });
    }
    for (std::thread &thread : working) {
        thread.join();
    }
    return well;
}

TEST(NoLostUpdate, every_increment_counts_and_readers_see_whole_rows) {
    make_rows();
    const support::Service service;
    const soak::Shared<State> state;
    const support::Gate start;
    const long each = soak::count(5, 2000);
    std::deque<Process> reading;
    for (long n = 0; n < 4; ++n) {
        reading.emplace_back([&] { return read_all_kinds(*state, soak::random_numbers(writers + n)); });
    }
    std::deque<Process> writing;
    for (long n = 0; n < writers; ++n) {
        writing.emplace_back([&] { return count_up_in_threads(start, each, n); });
    }
    start.open();
    for (Process &writer : writing) {
        EXPECT_EQ(writer.wait(), 0);
    }
    state->over = true;
    for (Process &reader : reading) {
        EXPECT_EQ(reader.wait(), 0);
    }
    EXPECT_EQ(counted(), writers * each);
    EXPECT_EQ(support::value("pragma integrity_check;"), "ok");
    EXPECT_GE(state->reads, static_cast<long>(std::size(readers)));
    soak::figure(writers * each,
                 "increments by 16 processes, threads in each: " + std::to_string(threads) + "; all counted");
    soak::figure(state->reads, "readings beside them, none torn or empty");
}

}  // namespace
