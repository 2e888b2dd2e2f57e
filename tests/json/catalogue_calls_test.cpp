// What the lists of the application catalogue call and wait for, and the descriptors that they close.
#include <gtest/gtest.h>
#include <unistd.h>

#include "json/catalogue.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using catalogue::List;
using printed::by;
using support::build_profile;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char open_call[] = "sqlite3_open /etc/config/systemconf/database/dpilib.db";

void append(Lines &lines, const Lines &more) {
    lines.insert(lines.end(), more.begin(), more.end());
}

/// Connection and statement from the first draw to the first step.
Lines begin_of(const std::string &query, bool opens = true) {
    Lines calls{"draw"};
    append(calls, opens ? Lines{open_call} : Lines{});
    append(calls, {"sqlite3_prepare_v2 " + query, "sqlite3_step"});
    return calls;
}

/// The end of a reading. A connection that is shared is closed when all else is done.
Lines end(bool closes_connection = true) {
    Lines calls{"sqlite3_finalize"};
    const auto close_connection = [&](bool now) {
        append(calls, now && closes_connection ? Lines{"sqlite3_close"} : Lines{});
    };
    close_connection(!build_profile.shares_connection);
    append(calls, build_profile.closes_its_own ? Lines{} : Lines{"close 0"});
    close_connection(build_profile.shares_connection);
    return calls;
}

/// The same for the count of a list that has rows.
Lines end_of_count() {
    return end(!build_profile.shares_connection);
}

class CatalogueCalls : public testing::TestWithParam<List> {
protected:
    CatalogueCalls() { catalogue::open_descriptor(STDIN_FILENO); }

    static std::string print() {
        return by([] { GetParam().print(); });
    }
};

TEST_P(CatalogueCalls, of_an_empty_table_are_those_of_the_count) {
    const Recorder recorder;
    print();
    Lines expected = begin_of(GetParam().count_query);
    append(expected, end());
    EXPECT_EQ(recorder.calls(), expected);
    EXPECT_EQ(catalogue::is_open(STDIN_FILENO), build_profile.closes_its_own);
}

TEST_P(CatalogueCalls, count_and_read_on_the_connections_of_the_profile_and_close_standard_input_where_it_says_so) {
    catalogue::fill();
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    print();
    Lines expected = begin_of(GetParam().count_query);
    append(expected, end_of_count());
    append(expected, begin_of(GetParam().row_query, !build_profile.shares_connection));
    const Lines calls = recorder.calls();
    ASSERT_GT(calls.size(), expected.size() + end().size());
    EXPECT_EQ(Lines(calls.begin(), calls.begin() + static_cast<long>(expected.size())), expected);
    EXPECT_EQ(Lines(calls.end() - static_cast<long>(end().size()), calls.end()), end());
    EXPECT_EQ(catalogue::is_open(STDIN_FILENO), build_profile.closes_its_own);
    EXPECT_EQ(support::open_descriptors(), descriptors - (build_profile.closes_its_own ? 0 : 1));
}

TEST_P(CatalogueCalls, share_one_series_of_sleeps_through_open_prepare_and_first_step) {
    catalogue::fill();
    Recorder recorder;
    recorder.answer("draw", {0, 2147483647});  // the count's, that of the rows
    for (const char *function : {"sqlite3_open", "sqlite3_prepare_v2", "sqlite3_step"}) {
        recorder.answer(function, {Recorder::really, SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    }
    const printed::List list = printed::parse(print(), "ItemList");
    EXPECT_GE(list.elements.size(), 2U);
    EXPECT_EQ(recorder.sleeps(), build_profile.shares_connection
                                     ? (std::vector<unsigned>{155, 160, 165, 170, 175, 180})
                                     : (std::vector<unsigned>{155, 160, 165, 170, 175, 180, 185, 190, 195}));
}

TEST_P(CatalogueCalls, wait_while_the_catalogue_is_locked_before_they_count) {
    catalogue::fill();
    const std::string unlocked = print();
    Recorder recorder;
    recorder.answer("draw", {0});
    recorder.answer("sqlite3_step", {SQLITE_BUSY, SQLITE_BUSY});
    EXPECT_EQ(print(), unlocked);
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{56, 61}));
}

INSTANTIATE_TEST_SUITE_P(All, CatalogueCalls, testing::ValuesIn(catalogue::lists()),
                         [](const auto &test) { return test.param.name; });

/// All applications, or three columns of those of class 7.
Lines joined_names() {
    if (build_profile.remembers_lookups) {
        return {"sqlite3_prepare_v2 select Class_Id,Name,Name_En,Features from App_Info where Class_Id=''||Class_Id;",
                "sqlite3_step",
                "sqlite3_step",
                "sqlite3_step",
                "sqlite3_step",
                "sqlite3_finalize"};
    }
    Lines calls;
    for (const std::string column : {"Name", "Name_En", "Features"}) {
        append(calls, {"sqlite3_prepare_v2 select " + column + " from App_Info where Class_Id='7';", "sqlite3_step",
                       "sqlite3_step", "sqlite3_finalize"});
    }
    return calls;
}

TEST(GetAppClassItemListCalls, join_the_names_of_each_class_on_the_connection_of_the_list) {
    catalogue::fill();
    catalogue::execute("delete from App_Class where Id<>7;");
    const Recorder recorder;
    by(GetAppClassItemList);
    Lines expected{open_call, "sqlite3_prepare_v2 select  count(*) from App_Class;", "sqlite3_step",
                   "sqlite3_finalize"};
    if (!build_profile.shares_connection) {
        append(expected, {"sqlite3_close", open_call});
    }
    append(expected, {"sqlite3_prepare_v2 select * from App_Class order by Id ;", "sqlite3_step"});
    append(expected, joined_names());
    append(expected, {"sqlite3_step", "sqlite3_finalize", "sqlite3_close"});
    EXPECT_EQ(recorder.calls({"sqlite3"}), expected);
}

}  // namespace
