// Many processes that register access points at once.
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <numeric>
#include <random>

#include "apinventory/tables.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/process.h"

namespace {

using places::put;
using Lines = std::vector<std::string>;

constexpr int processes = 8;
constexpr int access_points = 20;

/// Access point number n, from 1, as one of the processes reports it. Its address ends below 128: -1 is a failure.
DevInfo access_point(int n, int process) {
    DevInfo device{};
    const std::string two_digits = std::to_string(10 + n);
    put(device, "Dev_MAC", "00:00:00:00:00:" + two_digits);
    put(device, "Dev_Ipaddress", "10.0.0." + two_digits);
    put(device, "Dev_Name", "ap" + two_digits);
    put(device, "Dev_Group", "process " + std::to_string(process));
    put(device, "Dev_Wlan_Radio_Num", "8");
    put(device, "Dev_Wlan8_Ssid", "ssid" + two_digits);
    return device;
}

/// Registers an access point. Whoever loses a race against another process tries again.
void register_until_done(const DevInfo &device) {
    while (DB_addinfo(device) == -1) {
    }
}

/// Registers all of them several times, each time in another order.
bool register_all(int process) {
    std::mt19937 random(static_cast<unsigned>(process));
    std::vector<int> order(access_points);
    std::iota(order.begin(), order.end(), 1);
    for (int round = 0; round < 4; ++round) {
        std::shuffle(order.begin(), order.end(), random);
        for (const int n : order) {
            register_until_done(access_point(n, process));
        }
    }
    return true;
}

/// Eight processes that start at the same moment.
void run_together(bool (*action)(int process)) {
    const support::Gate gate;
    std::deque<support::Process> running;
    for (int process = 1; process <= processes; ++process) {
        running.emplace_back([&gate, action, process] {
            gate.wait();
            return action(process);
        });
    }
    gate.open();
    for (support::Process &process : running) {
        EXPECT_EQ(process.wait(), 0);
    }
}

/// One row for each access point, as the last one to register it has left it.
void expect_every_access_point_once() {
    Lines expected;
    for (int n = 1; n <= access_points; ++n) {
        const std::string two_digits = std::to_string(10 + n);
        expected.push_back("00:00:00:00:00:" + two_digits + "|10.0.0." + two_digits + "|ap" + two_digits + "|ssid" +
                           two_digits + "|1|0|0");
    }
    EXPECT_EQ(support::Database().rows("select Dev_MAC, Dev_Ipaddress, Dev_Name, Dev_Wlan8_Ssid, Dev_Status, "
                                       "Dev_Upgrade_Status, Dev_Wlan_GroupId from DevInfo order by Dev_IPSUM;"),
              expected);
    EXPECT_EQ(support::value("select count(*) from DevInfo where Dev_Group not glob 'process [1-8]';"), "0");
    EXPECT_EQ(support::value("pragma integrity_check;"), "ok");
    EXPECT_TRUE(support::lock_file_is_free());
}

TEST(RegistrationContention, eight_processes_register_twenty_access_points_and_none_is_lost_or_doubled) {
    run_together(register_all);
    expect_every_access_point_once();
}

TEST(RegistrationContention, twenty_new_access_points_meet_a_table_full_of_stale_rows) {
    for (int n = 1; n <= access_points; ++n) {  // each has the number of an address that now is another device's
        const unsigned sn = 10U + (static_cast<unsigned>(10 + n) << 24U);
        insert(tables::devices, {{0, std::to_string(sn)}, {8, "stale " + std::to_string(n)}});
    }
    run_together(register_all);
    expect_every_access_point_once();
}

}  // namespace
