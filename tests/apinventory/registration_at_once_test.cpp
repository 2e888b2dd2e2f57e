// DB_addinfo as one transaction: what fails in it is done again step by step, and nobody sees it.
#include <gtest/gtest.h>

#include <algorithm>

#include "apinventory/device_statements.h"
#include "apinventory/tables.h"
#include "support/database.h"
#include "support/failing_readings.h"
#include "support/named.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using statements::sample_device;
using support::Recorder;
using tables::devices;
using Lines = std::vector<std::string>;

constexpr int sn = 335653056;
constexpr char event[] = "system /bin/send_event 5 4 add#335653056 >/dev/null 2>&1 &";
constexpr int settings = 3;  // of the connection, before the transaction

/// A call of the transaction, counted from 1.
struct Step : support::Named {
    const char *function;
    int n;
    bool begun = true;  // there is something to roll back
};

const Step steps[] = {
    {{"Connection"}, "sqlite3_open", 1, false},    {{"Begin"}, "sqlite3_exec", settings + 1, false},
    {{"LookupPrepared"}, "sqlite3_prepare_v2", 1}, {{"LookupStepped"}, "sqlite3_step", 1},
    {{"NumberPrepared"}, "sqlite3_prepare_v2", 2}, {{"NumberStepped"}, "sqlite3_step", 2},
    {{"Removal"}, "sqlite3_exec", settings + 2},   {{"CountPrepared"}, "sqlite3_prepare_v2", 3},
    {{"CountStepped"}, "sqlite3_step", 4},         {{"Insertion"}, "sqlite3_exec", settings + 3},
    {{"Update"}, "sqlite3_exec", settings + 4},    {{"Commit"}, "sqlite3_exec", settings + 5},
};

/// A new access point, whose address another one had.
class AtOnce : public testing::TestWithParam<Step> {
protected:
    AtOnce() {
        insert(devices, {{0, "335653056"}, {8, "00:00:00:00:00:99"}});
        insert(devices, {{0, "7"}, {8, "00:00:00:00:00:07"}});
        recorder_.keep_commands_from_running();
    }

    void fail_with(int code) {
        support::let_pass(recorder_, GetParam().function, GetParam().n - 1);
        recorder_.answer(GetParam().function, {code});
    }

    /// Registers it, and expects that it is there, as often as it was announced, and nothing was said.
    static void expect_registered() {
        const auto said = support::streams_of([] { EXPECT_EQ(DB_addinfo(sample_device()), sn); });
        EXPECT_EQ(said.output + said.error, "");
        EXPECT_EQ(support::Database().rows("select Dev_Sn, Dev_MAC, Dev_Name, Dev_Status from DevInfo order by 1;"),
                  (Lines{"7|00:00:00:00:00:07|NULL|NULL", "335653056|00:1a:2b:3c:4d:5e|c2|1"}));
        EXPECT_TRUE(support::lock_file_is_free());
    }

    std::size_t count(const char *word) const { return recorder_.calls({word}).size(); }

    Recorder recorder_;
};

TEST_P(AtOnce, a_failure_is_met_by_the_steps_one_by_one) {
    fail_with(SQLITE_ERROR);
    expect_registered();
    EXPECT_EQ(recorder_.calls({"system", "syslog"}), Lines{event});
    EXPECT_EQ(count("sqlite3_exec rollback;"), GetParam().begun ? 1U : 0U);
    EXPECT_EQ(count("sqlite3_exec delete from DevInfo where Dev_MAC"), 1U) << "each write on its own";
}

TEST_P(AtOnce, begins_anew_as_long_as_the_database_is_busy) {
    fail_with(SQLITE_BUSY);
    expect_registered();
    EXPECT_EQ(recorder_.calls({"system", "syslog"}), Lines{event});
    EXPECT_EQ(recorder_.sleeps().size(), 1U);
    EXPECT_EQ(count("sqlite3_exec commit;"), GetParam().n == settings + 5 ? 2U : 1U);
    EXPECT_EQ(count("sqlite3_exec delete from DevInfo where Dev_MAC"), 0U);
    EXPECT_EQ(count("lock"), 1U);
}

INSTANTIATE_TEST_SUITE_P(, AtOnce, testing::ValuesIn(steps), testing::PrintToStringParamName());

TEST(RegistrationAtOnce, keeps_what_made_way_for_one_that_finds_no_room) {
    insert(devices, {{0, "335653056"}, {8, "00:00:00:00:00:99"}});
    for (int i = 1; i <= 20; ++i) {
        insert(devices, {{0, std::to_string(i)}, {8, std::to_string(i)}});
    }
    Recorder recorder;
    EXPECT_EQ(DB_addinfo(sample_device()), -1);
    EXPECT_EQ(recorder.calls({"sqlite3_open"}).size(), 1U);
    EXPECT_EQ(support::value("select count(*) from DevInfo where Dev_Sn=335653056;"), "0");
    EXPECT_EQ(support::value("select count(*) from DevInfo;"), "20");
}

TEST(RegistrationAtOnce, waits_for_a_writer_and_sees_what_it_wrote) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    recorder.answer("sqlite3_exec", {Recorder::really, Recorder::really, Recorder::really, SQLITE_BUSY});
    recorder.watch([](const std::string &line) {
        if (line.compare(0, 7, "usleep ") == 0) {
            insert(devices, {{0, "5"}, {8, "00:1a:2b:3c:4d:5e"}});
        }
    });
    EXPECT_EQ(DB_addinfo(sample_device()), 5);
    EXPECT_EQ(support::value("select count(*) from DevInfo;"), "1");
}

}  // namespace
