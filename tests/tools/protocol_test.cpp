// What the service makes of single requests, good and bad.
#include <gtest/gtest.h>
#include <unistd.h>

#include "routerdb.h"
#include "support/database.h"
#include "support/peer.h"
#include "support/record.h"
#include "support/service.h"
#include "support/system_log.h"

namespace {

using support::exchange;
using support::Peer;
using support::request;
using support::told;
using support::words;

using Lines = std::vector<std::string>;

constexpr std::size_t longest = 65536;

class Sqld : public testing::Test {
protected:
    Sqld() {
        log_.lines();  // of the start
        support::execute("insert into user_timegroup values(1,'group',0,0,0,0,0,0,0,'','','');");
    }

    static std::string groups() { return support::value("select count(*) from user_timegroup"); }

    /// A scalar through the library: size and data.
    static std::string scalar(const std::string &sql) {
        const SqlRequest question{100, 1, static_cast<std::uint32_t>(sql.size()), sql.c_str()};
        SqlReply reply{};
        EXPECT_EQ(sqlclient_cmd(&question, &reply), 0);
        std::string text = std::to_string(reply.size) + ":";
        if (reply.size > 0) {
            text.append(static_cast<const char *>(reply.data), static_cast<std::size_t>(reply.size));
        }
        free(reply.data);
        return text;
    }

    /// A statement with blanks in front, so long.
    static std::string padded(const std::string &statement, std::size_t length) {
        return std::string(length - statement.size(), ' ') + statement;
    }

    support::SystemLog log_;
    support::Service service_{{"--workers", "1"}};
};

TEST_F(Sqld, echoes_table_and_operation_before_the_records) {
    const std::string record = support::Record(380).number(0, 1).text(4, "group").bytes();
    EXPECT_EQ(exchange(request(5, 1, "select * from user_timegroup;")), words({5, 1, 380}) + record);
    EXPECT_EQ(exchange(request(2, 1, "select * from filter_url;")), words({2, 1, 0}));
}

TEST_F(Sqld, executes_and_answers_without_data) {
    EXPECT_EQ(exchange(request(5, 2, "insert into user_timegroup(name) values('a');")), words({5, 2, 0}));
    EXPECT_EQ(groups(), "2");
    EXPECT_EQ(exchange(request(4'000'000'000U, 2, "insert into user_timegroup(name) values('b');")),
              words({4'000'000'000U, 2, 0}))
        << "an execute is not bound to the table";
    EXPECT_EQ(groups(), "3");
    EXPECT_EQ(exchange(request(5, 2, "select * from user_timegroup;")), words({5, 2, 0}));
}

TEST_F(Sqld, answers_executions_that_fail_without_data) {
    EXPECT_EQ(exchange(request(5, 2, "insert into nowhere values('a key');")), words({5, 2, 0}));
    EXPECT_EQ(exchange(request(5, 2, "nonsense")), words({5, 2, 0}));
    EXPECT_EQ(log_.lines(), (Lines{told("failed"), told("failed")}));
}

// Without data it would be an empty table.
TEST_F(Sqld, hangs_up_on_queries_that_fail) {
    EXPECT_EQ(exchange(request(5, 1, "select * from nowhere where key='a key';")), "");
    EXPECT_EQ(exchange(request(100, 1, "select * from nowhere;")), "");
    EXPECT_EQ(exchange(request(5, 1, "")), "");
    EXPECT_EQ(exchange(request(77, 1, "select * from user_timegroup;")), "");
    EXPECT_EQ(exchange(request(0, 1, "select * from user_timegroup;")), "");
    EXPECT_EQ(log_.lines(),
              (Lines{told("refused, SQL logic error"), told("refused, SQL logic error"), told("refused, it is empty"),
                     told("refused, no such table"), told("refused, no such table")}));
}

TEST_F(Sqld, hangs_up_on_queries_that_fail_on_their_way) {
    EXPECT_EQ(exchange(request(100, 1, "select abs(-9223372036854775807-1);")), "");
    EXPECT_EQ(exchange(request(5, 1, "select *, abs(-9223372036854775807-id) from user_timegroup;")), "");
    EXPECT_EQ(log_.lines(), Lines(2, told("refused, SQL logic error")));
}

TEST_F(Sqld, answers_scalars_as_terminated_text) {
    EXPECT_EQ(scalar("select count(*) from user_timegroup where name='group';"), std::string("2:1\0", 4));
    EXPECT_EQ(scalar("select name,id from user_timegroup;"), std::string("6:group\0", 8));
    EXPECT_EQ(scalar("select '';"), std::string("1:\0", 3));
    EXPECT_EQ(scalar("select '" + std::string(60'000, 'x') + "';"), "60001:" + std::string(60'000, 'x') + '\0');
}

TEST_F(Sqld, answers_scalars_that_are_null_or_lack_a_row_without_data) {
    EXPECT_EQ(scalar("select null;"), "0:");
    EXPECT_EQ(scalar("select mark from user_timegroup where id='2';"), "0:");
}

TEST_F(Sqld, hangs_up_on_an_unknown_operation) {
    for (const unsigned operation : {0U, 3U, 0xffffffffU}) {
        EXPECT_EQ(exchange(request(5, operation, "delete from user_timegroup;")), "");
    }
    EXPECT_EQ(groups(), "1");
    EXPECT_EQ(log_.lines(), Lines(3, told("refused, unknown operation")));
}

TEST_F(Sqld, takes_statements_of_up_to_64_kibibytes) {
    const std::string removal = "delete from user_timegroup;";
    EXPECT_EQ(exchange(request(5, 2, padded(removal, longest + 1))), "");
    EXPECT_EQ(groups(), "1");
    EXPECT_EQ(exchange(words({5, 2, 0xffffffff}) + removal), "");
    EXPECT_EQ(groups(), "1");
    EXPECT_EQ(exchange(request(5, 2, padded(removal, longest))), words({5, 2, 0}));
    EXPECT_EQ(groups(), "0");
    EXPECT_EQ(log_.lines(), Lines(2, told("refused, it is longer than 64 KiB")));
}

TEST_F(Sqld, refuses_a_request_that_breaks_off) {
    const std::string whole = request(5, 2, "delete from user_timegroup; ");
    for (const auto &[length, part] : std::vector<std::pair<std::size_t, std::string>>{
             {0, "header"}, {1, "header"}, {11, "header"}, {12, "text"}, {whole.size() - 1, "text"}}) {
        const Peer peer;
        peer.send(whole.substr(0, length));
        peer.finish();
        EXPECT_EQ(peer.receive(), "");
        EXPECT_EQ(log_.lines(), Lines{told("refused, its " + part + " breaks off")});
    }
    EXPECT_EQ(groups(), "1");
}

TEST_F(Sqld, takes_a_request_byte_by_byte) {
    const Peer peer;
    for (const char byte : request(5, 2, "delete from user_timegroup;")) {
        peer.send(std::string(1, byte));
        usleep(1000);
    }
    EXPECT_EQ(peer.receive(), words({5, 2, 0}));
    EXPECT_EQ(groups(), "0");
}

TEST_F(Sqld, does_not_mind_a_peer_that_leaves_without_its_reply) {
    {
        const Peer peer;
        peer.send(request(5, 2, "insert into user_timegroup(name) values('a');"));
    }
    EXPECT_TRUE(support::eventually([] { return groups() == "2"; }));
    EXPECT_EQ(exchange(request(5, 2, "delete from user_timegroup;")), words({5, 2, 0}));
}

// SQLite looks at a counter in the file, which a copy may have in common with what it replaces.
TEST_F(Sqld, reads_scalars_from_a_copy_in_the_place_of_the_database) {
    const std::string question = "select name from user_timegroup;";
    support::write_file("/var/other.db", support::file_content(support::main_database));
    support::execute("update user_timegroup set name='first';");
    EXPECT_EQ(scalar(question), std::string("6:first\0", 8));
    support::Database("/var/other.db").execute("update user_timegroup set name='other';");
    usleep(50'000);  // more than the clock of file systems takes
    support::write_file(support::main_database, support::file_content("/var/other.db"));
    EXPECT_EQ(scalar(question), std::string("6:other\0", 8));
}

TEST_F(Sqld, leaves_no_write_ahead_log_open) {
    support::execute("pragma journal_mode=wal; update user_timegroup set name='logged';");
    EXPECT_EQ(scalar("select name from user_timegroup;"), std::string("7:logged\0", 9));
    EXPECT_TRUE(
        support::eventually([] { return !support::file_exists(std::string(support::main_database) + "-wal"); }));
}

}  // namespace
