// Small statements on access points: status, identity, counts.
#include <gtest/gtest.h>

#include <functional>

#include "apinventory/device_statements.h"
#include "apinventory/tables.h"
#include "support/database.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using tables::devices;
using Lines = std::vector<std::string>;

constexpr char mac[] = "00:1a:2b:3c:4d:5e";

/// A text that a function is given room for, which it may leave as it is.
struct Room {
    char text[400] = "before";
};

/// A function, the statement that it runs, and whether that is a write.
struct Function : support::Named {
    std::function<void(const char *key)> run{};
    std::string statement_before_key{};
    std::string statement_after_key{};
    bool writes = false;
    std::function<std::string(const std::string &key)> written = support::as_value;  // how the statement has a key
};

Function function(const char *name, std::function<void(const char *)> run, const char *before_key,
                  const char *after_key, bool writes) {
    Function function{{name}};
    function.run = std::move(run);
    function.statement_before_key = before_key;
    function.statement_after_key = after_key;
    function.writes = writes;
    return function;
}

/// The name of a table is no value: it has quotes of another kind, or none.
Function counting() {
    const char *const quote = support::build_profile.checks_conditions ? "\"" : "";
    Function function{{"GetTableCount"}};
    function.run = [](const char *key) { GetTableCount(key); };
    function.statement_before_key = std::string("select *  from ") + quote;
    function.statement_after_key = std::string(quote) + ";";
    function.written = [](const std::string &key) {
        std::string name;
        for (const char letter : key) {
            name += letter == '"' && support::build_profile.checks_conditions ? std::string("\"\"")
                                                                              : std::string(1, letter);
        }
        return name;
    };
    return function;
}

std::vector<Function> functions() {
    const auto into_room = [](auto get) {
        return [get](const char *key) {
            Room room;
            get(key, room.text);
        };
    };
    const auto into_number = [](auto get) {
        return [get](const char *key) {
            unsigned long number = 9;
            get(key, &number);
        };
    };
    return {
        function(
            "SetDevStatus_online", [](const char *key) { SetDevStatus(key, "1"); },
            "update DevInfo set Dev_Status='1'  where Dev_MAC='", "';", true),
        function(
            "SetDevStatus_offline", [](const char *key) { SetDevStatus(key, "0"); },
            "update DevInfo set Dev_Status='0',Dev_Wlan_Sta_Num='0',Dev_Wlan_Sta_Num_sec='0'  where Dev_MAC='", "';",
            true),
        function(
            "SetDevStatusbyIP_online", [](const char *key) { SetDevStatusbyIP(key, "1"); },
            "update DevInfo set Dev_Status='1'  where Dev_Ipaddress='", "';", true),
        function(
            "SetDevStatusbyIP_offline", [](const char *key) { SetDevStatusbyIP(key, "0"); },
            "update DevInfo set Dev_Status='0',Dev_Wlan_Sta_Num='0',Dev_Wlan_Sta_Num_sec='0'  where Dev_Ipaddress='",
            "';", true),
        function("GetDevStatus", into_room(GetDevStatus), "select Dev_Status from  DevInfo  where Dev_MAC='", "';",
                 false),
        function("GetDevUpgradeStatus", into_room(GetDevUpgradeStatus),
                 "select Dev_Upgrade_Status from  DevInfo  where Dev_MAC='", "';", false),
        function("GetDevSNByMac", into_number(GetDevSNByMac), "select Dev_Sn from  DevInfo where Dev_MAC='", "';",
                 false),
        function("GetDevSNByIp", into_number(GetDevSNByIp), "select Dev_Sn from  DevInfo where Dev_Ipaddress='", "';",
                 false),
        counting(),
    };
}

class StatusFunction : public testing::TestWithParam<Function> {
protected:
    /// The statements that it runs for a key.
    static Lines run(const char *key) {
        const Recorder recorder;
        support::streams_of([&] { GetParam().run(key); });
        return recorder.calls({"sqlite3_exec", "sqlite3_prepare_v2"});
    }

    /// What it runs for a key.
    static Lines expected(const std::string &key) {
        const std::string statement = GetParam().statement_before_key + key + GetParam().statement_after_key;
        return GetParam().writes ? statements::write_of(statement) : Lines{"sqlite3_prepare_v2 " + statement};
    }
};

TEST_P(StatusFunction, runs_one_statement) {
    EXPECT_EQ(run(mac), expected(mac));
}

TEST_P(StatusFunction, puts_its_key_into_the_statement_as_given) {
    EXPECT_EQ(run("it's \"so\" --"), expected(GetParam().written("it's \"so\" --")));
}

TEST_P(StatusFunction, never_cuts_the_statement) {
    const std::string key(5000, 'k');
    EXPECT_EQ(run(key.c_str()), expected(key));
}

TEST_P(StatusFunction, reads_a_null_key_as_an_empty_one) {
    EXPECT_EQ(run(nullptr), expected(""));
}

TEST_P(StatusFunction, tells_nobody) {
    const Recorder recorder;
    support::streams_of([] { GetParam().run(mac); });
    EXPECT_EQ(recorder.calls({"system"}), Lines());
}

INSTANTIATE_TEST_SUITE_P(All, StatusFunction, testing::ValuesIn(functions()), testing::PrintToStringParamName());

class DeviceStatus : public testing::Test {
protected:
    DeviceStatus() {
        insert(devices, {{0, "5"}, {3, "10.0.0.5"}, {8, mac}, {128, "12"}, {148, "13"}, {153, "old"}, {159, "busy"}});
        insert(devices, {{0, "6"}, {3, "10.0.0.6"}, {8, "06"}, {128, "14"}, {148, "15"}, {153, "1"}});
    }

    static Lines states() {
        return support::Database().rows(
            "select Dev_Status, Dev_Wlan_Sta_Num, Dev_Wlan_Sta_Num_sec from DevInfo order by Dev_Sn;");
    }
};

TEST_F(DeviceStatus, online_keeps_the_station_counts) {
    SetDevStatus(mac, "1");
    EXPECT_EQ(states(), (Lines{"1|12|13", "1|14|15"}));
    SetDevStatusbyIP("10.0.0.5", "2");
    EXPECT_EQ(states(), (Lines{"2|12|13", "1|14|15"}));
}

TEST_F(DeviceStatus, offline_clears_both_station_counts) {
    SetDevStatus(mac, "0");
    EXPECT_EQ(states(), (Lines{"0|0|0", "1|14|15"}));
    SetDevStatusbyIP("10.0.0.6", "0");
    EXPECT_EQ(states(), (Lines{"0|0|0", "0|0|0"}));
}

TEST_F(DeviceStatus, a_text_that_is_no_number_counts_as_offline_and_is_written) {
    for (const char *status : {"", "x", "00", "x1", "on"}) {
        support::execute("update DevInfo set Dev_Wlan_Sta_Num='12', Dev_Wlan_Sta_Num_sec='13';");
        SetDevStatus(mac, status);
        EXPECT_EQ(states().front(), std::string(status) + "|0|0");
    }
}

TEST_F(DeviceStatus, a_text_that_starts_with_another_number_counts_as_online) {
    for (const char *status : {"-1", "1x", " 7", "05"}) {
        SetDevStatus(mac, status);
        EXPECT_EQ(states().front(), std::string(status) + "|12|13");
    }
}

TEST_F(DeviceStatus, null_is_offline_and_empty) {
    SetDevStatus(mac, nullptr);
    EXPECT_EQ(states().front(), "|0|0");
}

TEST_F(DeviceStatus, is_read_by_mac_address) {
    Room room;
    GetDevStatus(mac, room.text);
    EXPECT_STREQ(room.text, "old");
    GetDevUpgradeStatus(mac, room.text);
    EXPECT_STREQ(room.text, "busy");
}

TEST_F(DeviceStatus, of_an_unknown_mac_address_is_0) {
    Room room;
    GetDevStatus("unknown", room.text);
    EXPECT_STREQ(room.text, "0");
    room = {};
    GetDevUpgradeStatus("unknown", room.text);
    EXPECT_STREQ(room.text, "0");
}

TEST_F(DeviceStatus, that_is_null_reads_as_0) {
    Room room;
    GetDevUpgradeStatus("06", room.text);
    EXPECT_STREQ(room.text, "0");
}

TEST_F(DeviceStatus, that_cannot_be_read_is_0) {
    drop(devices);
    Room room;
    const support::Streams::Text said = support::streams_of([&] { GetDevStatus(mac, room.text); });
    EXPECT_STREQ(room.text, "0");
    EXPECT_EQ(said.output, "cannot prepare sql cmdline, Error: no such table: DevInfo\n");
    tables::make_unopenable();
    room = {};
    const support::Streams::Text then = support::streams_of([&] { GetDevUpgradeStatus(mac, room.text); });
    EXPECT_STREQ(room.text, "0");
    EXPECT_EQ(then.error, "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n");
}

TEST_F(DeviceStatus, of_an_address_in_two_rows_is_that_of_the_last) {
    support::execute("update DevInfo set Dev_MAC='06';");
    Room room;
    GetDevStatus("06", room.text);
    EXPECT_STREQ(room.text, "1");
}

TEST_F(DeviceStatus, is_left_as_it_was_by_a_failing_statement) {
    const support::Streams::Text said = support::streams_of([] { SetDevStatus("it's", "0"); });
    EXPECT_EQ(said.output, support::build_profile.doubles_quotes
                               ? ""
                               : "cannot exec sql cmdline, Error: near \"s\": syntax error\n");
    EXPECT_EQ(states(), (Lines{"old|12|13", "1|14|15"}));
}

}  // namespace
