// What sqlclient_cmd makes of replies: whole, in pieces, cut short, without data.
#include <gtest/gtest.h>
#include <malloc.h>

#include <cerrno>

#include "sqlservice/exchange.h"
#include "support/fake_service.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/wrapped_calls.h"

namespace {

using support::Conversation;
using support::Exchange;
using support::FakeService;
using support::Hearing;
using support::Recorder;
using support::words;
using support::WrappedCalls;

using Lines = std::vector<std::string>;

struct Case : support::Named {
    Lines pieces;
    std::string header;
    std::string data;
    std::size_t block;  // bytes allocated
    Lines receives;
    bool refused = false;  // where replies are checked
};

std::string big_data() {
    std::string data;
    for (int i = 0; i < 983'040; ++i) {
        data += static_cast<char>(i * 7 + i / 256);
    }
    return data;
}

/// Header of a reply with ten bytes of data.
std::string ten() {
    return words({0, 0, 10});
}

std::vector<Case> replies_without_data() {
    return {
        {"without data comes with four bytes", {words({5, 6, 0})}, "5 6 0", "", 4, {"recv 12 0"}},
        {"with a size below zero comes with four bytes",
         {words({5, 6, 0xfffffffb})},
         "5 6 -5",
         "",
         4,
         {"recv 12 0"},
         true},
        {"with the smallest size comes with four bytes",
         {words({5, 6, 0x80000000})},
         "5 6 -2147483648",
         "",
         4,
         {"recv 12 0"},
         true},
    };
}

std::vector<Case> replies() {
    return {
        {"with one byte is read", {words({5, 6, 1}) + "x"}, "5 6 1", "x", 1, {"recv 12 0", "recv 1 0"}},
        {"words are stored as received",
         {words({0xfffffffe, 0x80000001, 4}), "data"},
         "4294967294 2147483649 4",
         "data",
         4,
         {"recv 12 0", "recv 4 0"}},
        {"in pieces is put together",
         {ten(), "0123", "456", "789"},
         "0 0 10",
         "0123456789",
         10,
         {"recv 12 0", "recv 10 0", "recv 6 0", "recv 3 0"}},
        {"byte by byte is put together",
         {ten(), "0", "1", "2", "3", "4", "5", "6", "7", "8", "9"},
         "0 0 10",
         "0123456789",
         10,
         {"recv 12 0", "recv 10 0", "recv 9 0", "recv 8 0", "recv 7 0", "recv 6 0", "recv 5 0", "recv 4 0", "recv 3 0",
          "recv 2 0", "recv 1 0"}},
        {"cut short succeeds with zero bytes behind",
         {ten() + "0123"},
         "0 0 10",
         std::string("0123\0\0\0\0\0\0", 10),
         10,
         {"recv 12 0", "recv 10 0", "recv 6 0"},
         true},
        {"cut off behind its header succeeds with zero bytes",
         {ten()},
         "0 0 10",
         std::string(10, '\0'),
         10,
         {"recv 12 0", "recv 10 0"},
         true},
        {"is read to the announced size only",
         {ten() + "0123456789abc"},
         "0 0 10",
         "0123456789",
         10,
         {"recv 12 0", "recv 10 0"}},
    };
}

/// Expects that a reply is none where replies are checked.
void expect_refusal(const Case &reply) {
    const FakeService service(Conversation{reply.pieces});
    Exchange exchange;
    const Recorder recorder;
    const WrappedCalls calls;
    errno = 0;
    EXPECT_EQ(exchange.send(), -1);
    EXPECT_EQ(errno, EPROTO);
    EXPECT_EQ(exchange.reply.data, nullptr);
    EXPECT_EQ(calls.blocks(), std::vector<std::size_t>{});
    EXPECT_EQ(recorder.calls({"recv"}), reply.receives);
}

class Reply : public testing::TestWithParam<Case> {};

TEST_P(Reply, is_taken_over) {
    if (GetParam().refused && support::build_profile.checks_replies) {
        return expect_refusal(GetParam());
    }
    mallopt(M_PERTURB, 0x5a);  // fresh blocks are not zero
    const FakeService service(Conversation{GetParam().pieces});
    Exchange exchange;
    Recorder recorder;
    WrappedCalls calls;
    ASSERT_EQ(exchange.send(), 0);
    EXPECT_EQ(exchange.header(), GetParam().header);
    ASSERT_NE(exchange.reply.data, nullptr);
    EXPECT_EQ(exchange.data(), GetParam().data);
    EXPECT_EQ(calls.blocks(), std::vector<std::size_t>{GetParam().block});
    EXPECT_EQ(recorder.calls({"recv"}), GetParam().receives);
    EXPECT_EQ(recorder.calls({"perror", "syslog"}), Lines{});
}

INSTANTIATE_TEST_SUITE_P(, Reply, testing::ValuesIn(replies()));
INSTANTIATE_TEST_SUITE_P(WithoutData, Reply, testing::ValuesIn(replies_without_data()));

TEST(SqlclientCmd, receives_a_megabyte_unchanged) {
    const std::string data = big_data();
    const FakeService service(support::reply_of(data));
    Exchange exchange;
    ASSERT_EQ(exchange.send(), 0);
    EXPECT_EQ(support::difference(data, exchange.data()), "");
}

TEST(SqlclientCmd, reads_the_size_again_after_each_piece) {
    const FakeService service(Conversation{{ten(), "0123", "456789"}});
    Exchange exchange;
    Recorder recorder;
    WrappedCalls calls;
    calls.after("recv", 2, [&] { exchange.reply.size = 4; });
    ASSERT_EQ(exchange.send(), 0);
    EXPECT_EQ(exchange.data(), "0123");
    EXPECT_EQ(recorder.calls({"recv"}), (Lines{"recv 12 0", "recv 10 0"}));
}

TEST(SqlclientCmd, short_sends_are_neither_detected_nor_repeated_unless_sends_are_checked) {
    for (const int n : {1, 2}) {
        const FakeService service(
            Conversation{{support::reply_of("data")}, n == 1 ? Hearing::none : Hearing::header_only});
        Exchange exchange;
        Recorder recorder;
        WrappedCalls calls;
        calls.shorten_send(n, 5);
        errno = 0;
        EXPECT_EQ(exchange.send(), support::build_profile.checks_sends ? -1 : 0);
        if (support::build_profile.checks_sends) {
            EXPECT_EQ(errno, EIO);
            EXPECT_EQ(recorder.calls({"send"}), (n == 1 ? Lines{"send 5 0"} : Lines{"send 12 0", "send 5 0"}));
            continue;
        }
        EXPECT_EQ(recorder.calls({"send"}), (n == 1 ? Lines{"send 5 0", "send 37 0"} : Lines{"send 12 0", "send 5 0"}));
    }
}

}  // namespace
