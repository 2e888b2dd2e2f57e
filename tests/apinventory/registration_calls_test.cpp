// DB_addinfo: its statements, sleeps and commands in order, and what becomes of failures.
#include <gtest/gtest.h>

#include <cstdio>

#include "apinventory/device_statements.h"
#include "apinventory/tables.h"
#include "core/holdings.h"
#include "support/database.h"
#include "support/deliberate_leak.h"
#include "support/failing_readings.h"
#include "support/process.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using places::put;
using statements::sample_device;
using support::Recorder;
using tables::devices;
using Lines = std::vector<std::string>;

constexpr char mac[] = "00:1a:2b:3c:4d:5e";
constexpr int sn = 335653056;
constexpr char event[] = "system /bin/send_event 5 4 add#335653056 >/dev/null 2>&1 &";
constexpr char event_of_known[] = "system /bin/send_event 5 4 add#5 >/dev/null 2>&1 &";
constexpr char copy[] =
    "system cp -f /etc/config/systemconf/database/myrouter.db /etc/config/systemconf/database/myrouter.db "
    ">/dev/null 2>&1 &";
constexpr char removal[] = "delete from DevInfo where Dev_MAC='00:1a:2b:3c:4d:5e';";
constexpr char lookup[] = "sqlite3_prepare_v2 select Dev_Sn  from DevInfo where Dev_MAC='00:1a:2b:3c:4d:5e';";
constexpr const char *lookup_of_number = support::build_profile.names_needed_columns
                                             ? "sqlite3_prepare_v2 select 1 from DevInfo where Dev_Sn='335653056';"
                                             : "sqlite3_prepare_v2 select *  from DevInfo where Dev_Sn='335653056';";
constexpr const char *count = support::build_profile.names_needed_columns
                                  ? "sqlite3_prepare_v2 select 1 from DevInfo;"
                                  : "sqlite3_prepare_v2 select *  from DevInfo;";
constexpr bool at_once = support::build_profile.registers_at_once;
constexpr char insertion[] =
    "insert into DevInfo (Dev_Sn,Dev_Group,Dev_Name,Dev_MAC) values('335653056','c1','c2','00:1a:2b:3c:4d:5e') ;";

/// Records a registration, whose commands are not run.
class Observer : public Recorder {
public:
    Observer() { keep_commands_from_running(); }

    Lines steps() const { return calls({"sqlite3_prepare_v2", "sqlite3_exec", "usleep", "system", "syslog"}); }
    Lines commands() const { return calls({"system"}); }

    /// Plans that a registration is no transaction.
    void fail_transaction() {
        if (at_once) {
            answer("sqlite3_open", {SQLITE_CANTOPEN});
        }
    }

    /// Plans a failure of write number n, from 1, each of which is on its own; three settings come before it.
    void fail_write(int n) {
        fail_transaction();
        for (int i = 1; i < 4 * n; ++i) {
            answer("sqlite3_exec", {really});
        }
        answer("sqlite3_exec", {SQLITE_ERROR});
    }
};

void insert_device(const std::string &number, const std::string &mac_address) {
    insert(devices, {{0, number}, {8, mac_address}});
}

void append(Lines &lines, const Lines &more) {
    lines.insert(lines.end(), more.begin(), more.end());
}

void append_write(Lines &lines, const std::string &sql) {
    const Lines write = statements::write_of(sql);
    lines.insert(lines.end(), write.begin(), write.end());
}

/// Expects that a registration fails, its write number n being the last thing that is done.
void expect_failing_write(int n, const std::string &last) {
    Observer observer;
    observer.fail_write(n);
    const support::Streams::Text said = support::streams_of([] { EXPECT_EQ(DB_addinfo(sample_device()), -1); });
    EXPECT_EQ(said.output, "cannot exec sql cmdline, Error: planned 1\n");
    EXPECT_EQ(observer.steps().back(), "sqlite3_exec " + last);
    EXPECT_EQ(observer.commands(), Lines());
}

/// The commands that a registration of the sample leaves behind, with one of its texts changed.
Lines commands_with(const std::string &name, const std::string &text) {
    DevInfo device = sample_device();
    put(device, name, text);
    const Observer observer;
    DB_addinfo(device);
    return observer.commands();
}

/// The steps of a new one, each on its own, and in one transaction.
Lines steps_apart() {
    Lines steps{lookup};
    for (int i = 1; i < 16; ++i) {
        append(steps, {"usleep 100", lookup});
    }
    append(steps, {lookup_of_number, count});
    append_write(steps, removal);
    append_write(steps, insertion);
    append_write(steps, statements::registration_of_new());
    steps.emplace_back(event);
    return steps;
}

Lines steps_in_transaction() {
    return {"sqlite3_exec begin immediate;",
            lookup,
            lookup_of_number,
            count,
            std::string("sqlite3_exec ") + insertion,
            "sqlite3_exec " + statements::registration_of_new(),
            "sqlite3_exec commit;",
            event};
}

Lines steps_at_once() {
    Lines steps = statements::write_of("");
    steps.pop_back();
    append(steps, steps_in_transaction());
    return steps;
}

TEST(Registration, of_a_new_one_has_a_fixed_order) {
    const Observer observer;
    EXPECT_EQ(DB_addinfo(sample_device()), sn);
    EXPECT_EQ(observer.steps(), at_once ? steps_at_once() : steps_apart());
}

TEST(Registration, of_a_known_one_has_a_fixed_order) {
    insert_device("5", mac);
    const Observer observer;
    EXPECT_EQ(DB_addinfo(sample_device()), 5);
    Lines expected;
    if (at_once) {
        append_write(expected, "begin immediate;");
        append(expected,
               {lookup, count, "sqlite3_exec " + statements::registration_of_known(), "sqlite3_exec commit;"});
    } else {
        append(expected,
               {lookup, "sqlite3_prepare_v2 select Dev_Sn from  DevInfo where Dev_MAC='00:1a:2b:3c:4d:5e';", count});
        append_write(expected, statements::registration_of_known());
    }
    expected.emplace_back(event_of_known);
    EXPECT_EQ(observer.steps(), expected);
}

TEST(Registration, writes_under_mutex_and_lock_and_sends_the_event_without) {
    Observer observer;
    Holdings holdings(observer);
    DB_addinfo(sample_device("0"));
    Lines expected{"open lock file: mutex"};
    for (int write = 0; write < (at_once ? 1 : 3); ++write) {
        append(expected,
               {"sqlite3_open /etc/config/systemconf/database/myrouter.db: mutex and lock", "close lock file: mutex"});
    }
    expected.push_back(std::string(event) + ": nothing");
    EXPECT_EQ(holdings.changes(), expected);
}

TEST(Registration, doubles_apostrophes_in_every_statement) {
    DevInfo device = sample_device("0");
    put(device, "Dev_MAC", "m'");
    put(device, "Dev_Group", "g'");
    put(device, "Dev_Name", "'n");
    const Observer observer;
    EXPECT_EQ(DB_addinfo(device), sn);
    Lines expected;
    if (!at_once) {
        expected.emplace_back("sqlite3_exec delete from DevInfo where Dev_MAC='m''';");
    }
    expected.emplace_back(
        "sqlite3_exec insert into DevInfo (Dev_Sn,Dev_Group,Dev_Name,Dev_MAC) "
        "values('335653056','g''','''n','m''') ;");
    EXPECT_EQ(observer.calls({"sqlite3_exec delete", "sqlite3_exec insert"}), expected);
    EXPECT_EQ(support::Database().rows("select Dev_MAC, Dev_Group, Dev_Name from DevInfo;"), Lines{"m'|g'|'n"});
}

TEST(Registration, leaves_no_copy_behind_although_it_inserts) {
    EXPECT_EQ(commands_with("Dev_Name", "plain"), Lines{event});
}

TEST(Registration, copies_the_database_onto_itself_when_a_value_says_insert) {
    EXPECT_EQ(commands_with("Dev_Name", "reinserted"), (Lines{event, copy}));
}

TEST(Registration, copies_the_database_also_for_a_known_one_and_any_value) {
    insert_device("5", mac);
    EXPECT_EQ(commands_with("Dev_Wlan8_Psk_Value", "insert"), (Lines{event_of_known, copy}));
}

TEST(Registration, does_not_copy_for_the_word_in_a_value_that_is_not_written) {
    for (const char *name : {"wlan_group_name", "radius_shared_key", "Dev_Upgrade_Status"}) {
        EXPECT_EQ(commands_with(name, "insert"), Lines{event}) << name;
    }
}

TEST(Registration, does_not_copy_for_the_word_in_capitals_or_with_an_apostrophe_inside) {
    EXPECT_EQ(commands_with("Dev_Name", "INSERT Insert"), Lines{event});
    EXPECT_EQ(commands_with("Dev_Name", "ins'ert"), Lines{event});
}

TEST(Registration, a_failing_removal_is_not_noticed) {
    Observer observer;
    observer.fail_write(1);
    support::streams_of([] { EXPECT_EQ(DB_addinfo(sample_device()), sn); });
    EXPECT_EQ(observer.commands(), Lines{event});
    EXPECT_EQ(get_devinfo_count(), 1);
}

TEST(Registration, a_failing_insertion_ends_it_without_event) {
    expect_failing_write(2, insertion);
    EXPECT_EQ(get_devinfo_count(), 0);
}

TEST(Registration, a_failing_update_ends_it_without_event_and_leaves_the_inserted_row) {
    expect_failing_write(3, statements::registration_of_new());
    EXPECT_EQ(row_where(devices, "1"), (tables::Row{{0, "335653056"}, {1, "c1"}, {2, "c2"}, {8, mac}}));
}

TEST(Registration, a_failing_update_of_a_known_one_ends_it_without_event) {
    insert_device("5", mac);
    expect_failing_write(1, statements::registration_of_known());
    EXPECT_EQ(row_where(devices, "1"), (tables::Row{{0, "5"}, {8, mac}}));
}

TEST(Registration, a_failing_lookup_ends_it_before_anything_is_written) {
    tables::make_unopenable();
    const Observer observer;
    {
        const support::DeliberateLeak connections;
        EXPECT_EQ(DB_addinfo(sample_device()), -1);
    }
    EXPECT_EQ(observer.calls({"sqlite3_exec", "system"}), Lines());
    EXPECT_EQ(observer.calls({"syslog"}),  // those of sixteen lookups and of the count
              Lines(17, "syslog 3 cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n"));
}

TEST(Registration, a_table_that_cannot_be_counted_counts_as_empty) {
    for (int i = 1; i <= 20; ++i) {
        insert_device(std::to_string(i), std::to_string(i));
    }
    Observer observer;
    observer.fail_transaction();
    support::fail_opening(observer, 18);
    EXPECT_EQ(DB_addinfo(sample_device()), sn);
    EXPECT_EQ(get_devinfo_count(), 21);
}

TEST(Registration, without_the_lock_file_nothing_is_written) {
    ASSERT_EQ(std::remove(support::lock_file), 0);
    const Observer observer;
    const support::Streams::Text said = support::streams_of([] { EXPECT_EQ(DB_addinfo(sample_device()), -1); });
    EXPECT_EQ(said.error, support::cannot_open_lock_file + support::cannot_open_lock_file);
    EXPECT_EQ(observer.commands(), Lines());
    EXPECT_EQ(get_devinfo_count(), 0);
}

TEST(Registration, sends_its_event_to_the_system) {
    insert_device("5", mac);
    DB_addinfo(sample_device());
    ASSERT_TRUE(support::eventually([] { return support::file_exists("/var/calls"); }));
    EXPECT_TRUE(support::eventually([] { return support::file_content("/var/calls") == "send_event 5 4 add#5\n"; }));
}

}  // namespace
