// The lookup of an IP group: its name and its range.
#include <gtest/gtest.h>

#include <cstring>

#include "routerdb.h"
#include "support/database.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::difference;
using support::Record;
using support::Recorder;
using Lines = std::vector<std::string>;

constexpr std::size_t record_size = 368;

/// Bytes of a record that was full of something else.
std::string found(int id, const support::Database &database) {
    IpGroupItem group;
    std::memset(&group, 0x5a, sizeof(group));
    GetIpGroup_IpRangeById(database.handle(), id, &group);
    return {reinterpret_cast<const char *>(&group), sizeof(group)};
}

std::string record_of(const std::string &name, const std::string &start, const std::string &end) {
    return Record(record_size).text(4, name).text(154, start).text(184, end).bytes();
}

class IpGroupLookup : public testing::Test {
protected:
    IpGroupLookup() {
        database_.execute(
            "insert into user_ipgroup values(2,'kitchen','10.0.0.1','10.0.0.9','');"
            "insert into user_ipgroup values(3,'办公室','192.168.1.10','192.168.1.20','a mark');"
            "insert into user_ipgroup values(4,NULL,NULL,NULL,NULL);");
    }

    const support::Database database_;
};

TEST_F(IpGroupLookup, fills_name_and_range_and_leaves_id_and_mark_zero) {
    EXPECT_EQ(difference(record_of("办公室", "192.168.1.10", "192.168.1.20"), found(3, database_)), "");
    EXPECT_EQ(difference(record_of("kitchen", "10.0.0.1", "10.0.0.9"), found(2, database_)), "");
}

TEST_F(IpGroupLookup, is_one_statement_on_the_callers_connection) {
    const Recorder recorder;
    found(3, database_);
    EXPECT_EQ(recorder.calls(),
              (Lines{"draw", "sqlite3_prepare_v2 select name,startip,endip from user_ipgroup where Id='3' ;",
                     "sqlite3_step", "sqlite3_finalize"}));
}

TEST_F(IpGroupLookup, of_an_unknown_id_leaves_the_record_zero) {
    for (const int id : {5, 0, -1, -2147483647 - 1, 2147483647}) {
        const Recorder recorder;
        const auto said = support::streams_of(
            [&] { EXPECT_EQ(difference(std::string(record_size, '\0'), found(id, database_)), "") << id; });
        EXPECT_EQ(said.output + said.error, "");
        EXPECT_EQ(recorder.calls({"sqlite3"}),
                  (Lines{"sqlite3_prepare_v2 select name,startip,endip from user_ipgroup where Id='" +
                             std::to_string(id) + "' ;",
                         "sqlite3_step", "sqlite3_finalize"}));
    }
}

TEST_F(IpGroupLookup, reads_null_as_an_empty_text) {
    EXPECT_EQ(difference(std::string(record_size, '\0'), found(4, database_)), "");
}

TEST_F(IpGroupLookup, cuts_each_text_at_the_width_of_its_field) {
    for (const int more : {-1, 0, 1, 500}) {
        const auto x = [](int length) { return std::string(static_cast<std::size_t>(length), 'x'); };
        const auto stored = [&](int width) { return "'" + x(width + more) + "'"; };
        const auto shown = [&](int width) { return x(more < 0 ? width + more : width); };
        database_.execute("update user_ipgroup set name=" + stored(149) + ",startip=" + stored(29) +
                          ",endip=" + stored(29) + " where id=3;");
        EXPECT_EQ(difference(record_of(shown(149), shown(29), shown(29)), found(3, database_)), "") << more;
    }
}

TEST_F(IpGroupLookup, without_the_table_says_so_and_leaves_the_record_zero) {
    database_.execute("drop table user_ipgroup;");
    const Recorder recorder;
    const auto said =
        support::streams_of([&] { EXPECT_EQ(difference(std::string(record_size, '\0'), found(3, database_)), ""); });
    EXPECT_EQ(said.output, "Error: no such table: user_ipgroup");
    EXPECT_EQ(said.error, "");
    EXPECT_EQ(recorder.sleeps(), std::vector<unsigned>{});
}

TEST_F(IpGroupLookup, sleeps_grow_by_five_through_prepare_and_first_step) {
    Recorder recorder;
    recorder.answer("draw", {2147483647});
    recorder.answer("sqlite3_prepare_v2", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    recorder.answer("sqlite3_step", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    EXPECT_EQ(difference(record_of("kitchen", "10.0.0.1", "10.0.0.9"), found(2, database_)), "");
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{155, 160, 165, 170, 175, 180}));
}

TEST_F(IpGroupLookup, leaves_the_record_zero_when_the_first_step_fails) {
    Recorder recorder;
    recorder.answer("sqlite3_step", {SQLITE_CORRUPT});
    EXPECT_EQ(difference(std::string(record_size, '\0'), found(3, database_)), "");
    EXPECT_EQ(recorder.calls({"sqlite3_finalize"}), Lines{"sqlite3_finalize"});
}

}  // namespace
