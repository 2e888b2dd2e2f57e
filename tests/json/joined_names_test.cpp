// The names of the applications of a class, joined into one text.
#include <gtest/gtest.h>

#include <cstring>

#include "json/catalogue.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/named.h"
#include "support/recorder.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

constexpr std::size_t room = 4096;

struct Joiner : support::Named {
    void (*call)(int class_id, char *out, sqlite3 *db);
    const char *column;
};

class JoinedNames : public testing::TestWithParam<Joiner> {
protected:
    /// Adds an application whose joined column has a value, the others being odd.
    void add(int class_id, const std::string &value) const {
        database_.execute("insert into App_Info(Class_Id,Name,Name_En,Features) values(" + std::to_string(class_id) +
                          ",'odd','odd','odd'); update App_Info set " + GetParam().column + "=" + value +
                          " where Id=last_insert_rowid();");
    }

    std::string join(int class_id) const {
        char out[room + 1];
        std::memset(out, '#', sizeof(out));
        EXPECT_EQ(printed::by([&] { GetParam().call(class_id, out, database_.handle()); }), "");
        EXPECT_EQ(out[room], '#');
        return out;
    }

    const support::Database database_{support::catalogue_database};
};

TEST_P(JoinedNames, stand_with_a_slash_behind_each) {
    add(3, "'A'");
    add(7, "'other'");
    add(3, "'B'");
    EXPECT_EQ(join(3), "A/B/");
    EXPECT_EQ(join(7), "other/");
}

TEST_P(JoinedNames, of_a_class_without_applications_are_an_empty_text) {
    add(3, "'A'");
    for (const int class_id : {0, 4, -3, 2147483647}) {
        EXPECT_EQ(join(class_id), "");
    }
}

TEST_P(JoinedNames, that_are_null_or_empty_leave_their_slash) {
    add(3, "NULL");
    add(3, "'A'");
    add(3, "''");
    EXPECT_EQ(join(3), "/A//");
}

TEST_P(JoinedNames, are_read_on_the_callers_connection_without_a_draw) {
    add(-3, "'A'");
    const Recorder recorder;
    EXPECT_EQ(join(-3), "A/");
    EXPECT_EQ(recorder.calls(), (Lines{"sqlite3_prepare_v2 select " + std::string(GetParam().column) +
                                           " from App_Info where Class_Id='-3';",
                                       "sqlite3_step", "sqlite3_step", "sqlite3_finalize"}));
}

TEST_P(JoinedNames, are_cut_behind_199_bytes_each) {
    add(3, "'" + std::string(199, 'a') + "'");
    add(3, "'" + std::string(200, 'b') + "'");
    add(3, "'" + std::string(9000, 'c') + "'");
    EXPECT_EQ(join(3), std::string(199, 'a') + "/" + std::string(199, 'b') + "/" + std::string(199, 'c') + "/");
}

TEST_P(JoinedNames, fill_4095_bytes_at_most) {
    std::string joined;
    for (int i = 0; i < 20; ++i) {
        add(3, "'" + std::string(199, static_cast<char>('a' + i)) + "'");
        joined += std::string(199, static_cast<char>('a' + i)) + "/";
    }
    add(3, "'" + std::string(94, 'z') + "'");
    EXPECT_EQ(join(3), joined + std::string(94, 'z') + "/");
    add(3, "''");
    EXPECT_EQ(join(3), joined + std::string(94, 'z') + "/");
}

TEST_P(JoinedNames, end_before_the_first_that_does_not_fit_whole) {
    std::string joined;
    for (int i = 0; i < 20; ++i) {
        add(3, "'" + std::string(199, 'a') + "'");
        joined += std::string(199, 'a') + "/";
    }
    add(3, "'" + std::string(95, 'z') + "'");
    add(3, "'fits'");
    EXPECT_EQ(join(3), joined);
}

TEST_P(JoinedNames, stay_as_they_were_when_the_query_cannot_be_prepared) {
    database_.execute("drop table App_Info;");
    char out[room] = "before";
    const Recorder recorder;
    EXPECT_EQ(printed::by([&] { GetParam().call(3, out, database_.handle()); }),
              "Webserver Error: no such table: App_Info");
    EXPECT_STREQ(out, "before");
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
}

TEST_P(JoinedNames, replace_what_stood_there_when_the_first_step_has_ended) {
    add(3, "'A'");
    char out[room] = "before";
    Lines steps;
    Recorder recorder;
    recorder.answer("sqlite3_step", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    recorder.watch([&](const std::string &line) { steps.push_back(line + ": " + out); });
    GetParam().call(3, out, database_.handle());
    steps.erase(steps.begin());  // preparing
    EXPECT_EQ(steps, (Lines{"sqlite3_step: before", "usleep 55: before", "sqlite3_step: before", "usleep 60: before",
                            "sqlite3_step: before", "usleep 65: before", "sqlite3_step: before", "sqlite3_step: A/",
                            "sqlite3_finalize: A/"}));
}

TEST_P(JoinedNames, are_empty_when_the_first_step_fails) {
    add(3, "'A'");
    Recorder recorder;
    recorder.answer("sqlite3_step", {SQLITE_CORRUPT});
    EXPECT_EQ(join(3), "");
}

TEST_P(JoinedNames, wait_55_microseconds_and_5_more_each_time_for_a_busy_database) {
    add(3, "'A'");
    Recorder recorder;
    recorder.answer("sqlite3_prepare_v2", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    recorder.answer("sqlite3_step", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    EXPECT_EQ(join(3), "A/");
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{55, 60, 65, 70, 75, 80}));
}

INSTANTIATE_TEST_SUITE_P(All, JoinedNames,
                         testing::Values(Joiner{"Names", GetAppinfosByClassId, "Name"},
                                         Joiner{"EnglishNames", GetAppinfosEnByClassId, "Name_En"},
                                         Joiner{"Features", GetAppFeaturesByClassId, "Features"}),
                         [](const auto &test) { return test.param.name; });

}  // namespace
