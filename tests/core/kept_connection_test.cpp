// The connection that is kept: when it is there, who reads on it, and what it holds in between.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "core/kept.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using kept::keep_connection;
using kept::name_device;
using kept::read_name;
using support::Recorder;
using Lines = std::vector<std::string>;

TEST(KeptConnection, is_opened_by_the_second_call) {
    name_device("first");
    const int before = support::open_descriptors();
    EXPECT_EQ(read_name(), "first");
    EXPECT_EQ(support::open_descriptors(), before);
    EXPECT_EQ(read_name(), "first");
    EXPECT_EQ(support::open_descriptors(), before + 1);
    EXPECT_EQ(read_name(), "first");
    EXPECT_EQ(support::open_descriptors(), before + 1);
}

TEST(KeptConnection, spares_later_calls_opening_and_preparing) {
    name_device("first");
    keep_connection();
    Recorder recorder;
    recorder.let_connections_be_kept();
    EXPECT_EQ(read_name(), "first");
    EXPECT_EQ(recorder.calls({"sqlite3_open", "sqlite3_prepare", "sqlite3_finalize", "sqlite3_close"}), Lines());
}

TEST(KeptConnection, reads_and_nothing_else) {
    keep_connection();
    EXPECT_EQ(fcntl(kept::descriptor(), F_GETFL) & O_ACCMODE, O_RDONLY);
    Recorder recorder;
    recorder.let_connections_be_kept();
    SetDevStatus("06", "1");
    EXPECT_EQ(recorder.calls({"sqlite3_open"}), Lines{std::string("sqlite3_open ") + support::main_database});
}

TEST(KeptConnection, closes_for_programs) {
    keep_connection();
    EXPECT_NE(fcntl(kept::descriptor(), F_GETFD) & FD_CLOEXEC, 0);
}

TEST(KeptConnection, holds_no_lock_between_calls) {
    keep_connection();
    EXPECT_EQ(support::locks(), "");
    const support::Database writer;
    writer.execute("begin exclusive; commit;");
}

TEST(KeptConnection, is_not_that_of_callers_texts) {
    keep_connection();
    Recorder recorder;
    recorder.let_connections_be_kept();
    EXPECT_EQ(GET_DB_SQL_INT("select * from DevInfo where Dev_Sn='7';"), 0);
    EXPECT_EQ(get_devinfo_count(), 0);
    static UrlFilterItemList list;
    GetUrlFilterItemListInServer(&list, "select * from filter_url where id='1' or 1;");
    GetTableCount("DevInfo");
    EXPECT_EQ(recorder.calls({"sqlite3_open"}).size(), 3U);
}

/// Values become parameters, whatever they hold.
TEST(KeptConnection, finds_values_with_quotation_marks) {
    int number = 0;
    for (const char *const mac : {"06", "it's", "''", "'", "a'b''c'''", "\"", "?", "-- ?1", ""}) {
        const std::string status = std::to_string(++number);
        char sql[100];
        sqlite3_snprintf(sizeof(sql), sql, "insert into DevInfo(Dev_Sn,Dev_MAC,Dev_Status) values(%d,%Q,'%d');", number,
                         mac, number);
        support::execute(sql);
        for (int call = 0; call < 3; ++call) {
            char found[5] = "";
            GetDevStatus(mac, found);
            EXPECT_EQ(found, status) << mac;
        }
    }
    EXPECT_EQ(kept::descriptors().size(), 1U);
}

TEST(KeptConnection, of_the_catalogue_is_another_one) {
    support::Database(support::catalogue_database).execute("insert into App_Class values(3,'A','B',0,'m');");
    keep_connection();
    const int before = support::open_descriptors();
    for (int call = 0; call < 3; ++call) {
        EXPECT_NE(support::streams_of([] { GetAppClassItem("3"); }).output.find("\"A\""), std::string::npos);
    }
    EXPECT_EQ(support::open_descriptors(), before + 1);
}

TEST(KeptConnection, waits_for_a_writer_and_says_so_in_the_same_way) {
    name_device("first");
    keep_connection();
    const support::Database writer;
    writer.execute("begin exclusive; update DevInfo set Dev_Name='second';");
    Recorder recorder;
    recorder.let_connections_be_kept();
    int sleeps = 0;
    recorder.watch([&](const std::string &line) {
        if (line.compare(0, 6, "usleep") == 0 && ++sleeps == 3) {
            writer.execute("commit;");
        }
    });
    EXPECT_EQ(read_name(), "second");
    EXPECT_EQ(recorder.calls({"usleep", "syslog", "sqlite3_open"}), (Lines{"usleep 55", "usleep 60", "usleep 65"}));
}

TEST(KeptConnection, lets_nobody_write_between_the_look_at_the_schema_and_the_first_row) {
    name_device("first");
    keep_connection();
    sqlite3 *writer = nullptr;
    ASSERT_EQ(sqlite3_open(support::main_database, &writer), SQLITE_OK);
    Recorder recorder;
    int steps = 0;
    recorder.watch([&](const std::string &line) {
        if (line == "sqlite3_step" && ++steps > 1) {
            EXPECT_EQ(sqlite3_exec(writer, "begin exclusive; commit;", nullptr, nullptr, nullptr), SQLITE_BUSY);
        }
    });
    EXPECT_EQ(read_name(), "first");
    EXPECT_GT(steps, 1);
    sqlite3_close(writer);
}

TEST(KeptConnection, is_closed_when_a_statement_cannot_be_prepared_on_it) {
    keep_connection();
    Recorder recorder;
    recorder.answer("sqlite3_prepare_v2", {SQLITE_ERROR});
    EXPECT_EQ(get_devinfo_count(), 0);
    EXPECT_EQ(kept::descriptors().size(), 0U);
}

TEST(KeptConnection, does_without_for_a_while_after_a_failure) {
    name_device("first");
    keep_connection();
    Recorder recorder;
    recorder.let_connections_be_kept();
    recorder.answer("sqlite3_step", {SQLITE_CORRUPT});
    EXPECT_EQ(read_name(), "first");
    EXPECT_EQ(kept::descriptors().size(), 0U);
    for (int call = 0; call < 16; ++call) {
        EXPECT_EQ(read_name(), "first");
        EXPECT_EQ(kept::descriptors().size(), 0U);
    }
    EXPECT_EQ(read_name(), "first");
    EXPECT_EQ(kept::descriptors().size(), 1U);
}

}  // namespace
