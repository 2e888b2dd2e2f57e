// Every failure of sqlclient_cmd: what it reports, what it leaves in the reply, and that it leaves nothing else.
#include <gtest/gtest.h>

#include <cerrno>

#include "sqlservice/exchange.h"
#include "support/database.h"
#include "support/fake_service.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/streams.h"
#include "support/wrapped_calls.h"

namespace {

using support::Conversation;
using support::Exchange;
using support::FakeService;
using support::Recorder;
using support::words;
using support::WrappedCalls;

using Lines = std::vector<std::string>;

struct Case : support::Named {
    const char *function;  // whose n-th call fails
    int n;
    int error;
    std::string service;  // what it answers
    std::string message;
    std::string reason;
    const char *reply;  // what it holds afterwards
};

constexpr char untouched[] = "71 72 73";
constexpr char cleared[] = "0 0 0";
constexpr char received[] = "5 6 4";

std::vector<Case> cases() {
    const std::string whole = words({5, 6, 4}) + "data";
    const std::string without_data = words({5, 6, 0});
    return {
        {"socket", "socket", 1, EMFILE, whole, "cannot create sql socket client", "Too many open files", untouched},
        {"connect", "connect", 1, ECONNREFUSED, whole, "cannot connect sql socket client", "Connection refused",
         untouched},
        {"header send", "send", 1, EAGAIN, whole, "send header to sql socket server fail",
         "Resource temporarily unavailable", untouched},
        {"text send", "send", 2, ENOBUFS, whole, "send data to sql socket server fail", "No buffer space available",
         untouched},
        {"header receive", "recv", 1, ECONNRESET, whole, "recv header from sql socket server fail",
         "Connection reset by peer", cleared},
        {"allocation of the data", "malloc", 1, ENOMEM, whole, "sql client malloc data buffer fail",
         "Cannot allocate memory", received},
        {"allocation without data", "malloc", 1, ENOMEM, without_data, "sql client malloc data buffer fail",
         "Cannot allocate memory", "5 6 0"},
        {"data receive", "recv", 2, EAGAIN, whole, "recv data from sql socket server fail",
         "Resource temporarily unavailable", received},
    };
}

class Failure : public testing::TestWithParam<Case> {};

TEST_P(Failure, is_reported_twice_and_leaves_nothing_behind) {
    const Case &failure = GetParam();
    FakeService service(failure.service);
    const int descriptors = support::open_descriptors();
    Exchange exchange;
    Recorder recorder;
    WrappedCalls calls;
    calls.fail(failure.function, failure.n, failure.error);
    const auto streams = support::streams_of([&] { EXPECT_EQ(exchange.send(), -1); });
    EXPECT_TRUE(calls.failed());
    EXPECT_EQ(streams.error, failure.message + ": " + failure.reason + "\n");
    EXPECT_EQ(streams.output, "");
    EXPECT_EQ(recorder.calls({"perror", "syslog"}),
              (Lines{"perror " + failure.message, "syslog 3 " + failure.message + "!\n"}));
    EXPECT_EQ(exchange.header(), failure.reply);
    EXPECT_EQ(exchange.reply.data, failure.reply == untouched ? Exchange::odd_place() : nullptr);
    service.requests();  // its own descriptors are closed again
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_EQ(calls.blocks(), std::vector<std::size_t>{});
}

INSTANTIATE_TEST_SUITE_P(Of, Failure, testing::ValuesIn(cases()));

TEST(SqlclientCmd, without_a_service_cannot_connect) {
    Exchange exchange;
    const Recorder recorder;
    const auto streams = support::streams_of([&] { EXPECT_EQ(exchange.send(), -1); });
    EXPECT_EQ(streams.error, "cannot connect sql socket client: No such file or directory\n");
    EXPECT_EQ(recorder.calls({"syslog"}), Lines{"syslog 3 cannot connect sql socket client!\n"});
    EXPECT_EQ(exchange.header(), untouched);
}

TEST(SqlclientCmd, a_service_that_ends_before_the_header_is_a_failure) {
    for (const std::string &piece : Lines{"", "\5", words({5}), words({5, 6}), words({5, 6, 4}).substr(0, 11)}) {
        FakeService service(piece.empty() ? Conversation{} : Conversation{{piece}});
        const int descriptors = support::open_descriptors();
        Exchange exchange;
        Recorder recorder;
        const auto streams = support::streams_of([&] {
            errno = E2BIG;  // the report has the last reason that the system gave, unless replies are checked
            EXPECT_EQ(exchange.send(), -1);
        });
        EXPECT_EQ(streams.error, support::build_profile.checks_replies
                                     ? "recv header from sql socket server fail: Protocol error\n"
                                     : "recv header from sql socket server fail: Argument list too long\n")
            << piece.size();
        EXPECT_EQ(recorder.calls({"perror", "syslog"}), (Lines{"perror recv header from sql socket server fail",
                                                               "syslog 3 recv header from sql socket server fail!\n"}));
        EXPECT_EQ(exchange.reply.word0, piece.empty() ? 0U : 5U);
        EXPECT_EQ(exchange.reply.data, nullptr);
        service.requests();  // its own descriptors are closed again
        EXPECT_EQ(support::open_descriptors(), descriptors);
    }
}

TEST(SqlclientCmd, the_header_is_received_with_one_call) {
    FakeService service(Conversation{{words({5, 6}), words({0})}});
    Exchange exchange;
    Recorder recorder;
    support::streams_of([&] { EXPECT_EQ(exchange.send(), -1); });
    EXPECT_EQ(recorder.calls({"recv"}), Lines{"recv 12 0"});
}

TEST(SqlclientCmd, a_connection_that_breaks_behind_the_header_leaves_size_and_no_data) {
    FakeService service(Conversation{{words({5, 6, 4}) + "da"}, support::Hearing::left_unread});
    Exchange exchange;
    const auto streams = support::streams_of([&] { EXPECT_EQ(exchange.send(), -1); });
    EXPECT_EQ(streams.error, "recv data from sql socket server fail: Connection reset by peer\n");
    EXPECT_EQ(exchange.header(), received);
    EXPECT_EQ(exchange.reply.data, nullptr);
}

}  // namespace
