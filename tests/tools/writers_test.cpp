// Clients of the service beside each other and beside writers that know no lock file.
#include <gtest/gtest.h>
#include <unistd.h>

#include <list>
#include <memory>
#include <set>

#include "routerdb.h"
#include "support/database.h"
#include "support/process.h"
#include "support/service.h"

namespace {

using support::Process;

/// Changes the main database over and over, each time with the whole file locked.
bool write_for_ever() {
    const support::Database database;
    for (;;) {
        database.execute("begin exclusive; update user_urlinfo set mark = mark + 1; commit;");
        usleep(100);
    }
}

TEST(SqldBesideWriters, no_list_comes_back_empty) {
    support::execute(
        "insert into user_urlinfo(mark) values(0);"
        "insert into user_timegroup(name, mark) values('group', 'mark');"
        "insert into filter_url(name, timecontrol, timegroup_id) values('first', 2, 1), ('second', 1, 0);");
    const support::Service service;
    const Process one(write_for_ever);
    const Process other(write_for_ever);
    const auto list = std::make_unique<UrlFilterItemList>();
    for (int n = 0; n < 2000; ++n) {
        GetUrlFilterItemList(list.get());
        ASSERT_EQ(list->count, 2U) << "list " << n;
        ASSERT_STREQ(list->items[0].timegroup_name, "group");
        ASSERT_STREQ(list->items[1].name, "second");
    }
    EXPECT_GT(std::stoi(support::value("select mark from user_urlinfo")), 1000);
}

constexpr int clients = 4;
constexpr int rounds = 200;
constexpr std::size_t kept = 10;  // rows that each client has at a time

std::string name_of(int client, int round) {
    return "client " + std::to_string(client) + " round " + std::to_string(round);
}

/// Into a field that has been cleared.
template <std::size_t width>
void put(char (&field)[width], const std::string &text) {
    text.copy(field, width - 1);
}

/// The other columns of a row follow from its name.
bool is_whole(const TimeGroupItem &item) {
    return std::string(item.mark) == "mark of " + std::string(item.name) && item.weekday[6] == 1;
}

bool is_whole(const UrlFilterItem &item) {
    return std::string(item.url) == std::string(900, 'u') + item.name && item.time_valid == 1;
}

/// Adds rows to a table, takes the oldest ones away, and finds its own rows, and them alone, in every list.
template <typename Item, typename List>
bool use_table(int client, void (*add)(const Item *), void (*remove)(const char *), void (*read)(List *),
               void (*fill)(Item &)) {
    const auto list = std::make_unique<List>();
    std::set<std::string> own;
    for (int round = 0; round < rounds; ++round) {
        Item item{};
        put(item.name, name_of(client, round));
        fill(item);
        add(&item);
        own.insert(item.name);
        if (own.size() > kept) {
            const std::string oldest = name_of(client, round - static_cast<int>(kept));
            remove(("name='" + oldest + "'").c_str());
            own.erase(oldest);
        }
        read(list.get());
        std::set<std::string> found;
        for (std::uint32_t i = 0; i < list->count; ++i) {
            if (!is_whole(list->items[i])) {
                return false;
            }
            if (std::string(list->items[i].name).rfind(name_of(client, 0).substr(0, 8), 0) == 0) {
                found.insert(list->items[i].name);
            }
        }
        if (found != own) {
            return false;
        }
    }
    return true;
}

void fill_group(TimeGroupItem &item) {
    item.weekday[6] = 1;
    put(item.mark, "mark of " + std::string(item.name));
}

void fill_filter(UrlFilterItem &item) {
    item.timecontrol = ROUTERDB_TIME_OWN;
    put(item.url, std::string(900, 'u') + item.name);
}

bool use_service(int client) {
    return client % 2 == 0 ? use_table(client, AddTimeGroupItem, DelTimeGroupItem, GetTimeGroupItemList, fill_group)
                           : use_table(client, AddUrlFilterItem, DelUrlFilterItem, GetUrlFilterItemList, fill_filter);
}

TEST(SqldBesideClients, nothing_is_lost_and_nothing_mixed_up) {
    const support::Service service;
    std::list<Process> processes;
    for (int client = 0; client < clients; ++client) {
        processes.emplace_back([client] { return use_service(client); });
    }
    for (Process &process : processes) {
        EXPECT_EQ(process.wait(), 0);
    }
    for (const char *table : {"user_timegroup", "filter_url"}) {
        EXPECT_EQ(support::value(std::string("select count(*) from ") + table), "20") << table;
        EXPECT_EQ(support::value(std::string("select max(id) from ") + table), "400") << table;
    }
}

}  // namespace
