// The request and the calls that carry it: sqlclient_cmd against a service that answers.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstring>
#include <list>
#include <string>
#include <thread>

#include "sqlservice/exchange.h"
#include "support/database.h"
#include "support/fake_service.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/streams.h"
#include "support/without_standard_input.h"

namespace {

using support::Conversation;
using support::Ending;
using support::Exchange;
using support::FakeService;
using support::Hearing;
using support::Recorder;
using support::reply_of;

using Lines = std::vector<std::string>;

TEST(SqlclientCmd, sends_twelve_header_bytes_and_the_text_without_its_terminator) {
    FakeService service(reply_of(""));
    Exchange exchange;
    ASSERT_EQ(exchange.send("select * from filter_url order by Id;"), 0);
    const Lines requests = service.requests();
    ASSERT_EQ(requests.size(), 1U);
    ASSERT_EQ(requests[0].size(), 49U);
    EXPECT_EQ(requests[0], std::string("\2\0\0\0"
                                       "\1\0\0\0"
                                       "\45\0\0\0"
                                       "select * from filter_url order by Id;",
                                       49));
}

TEST(SqlclientCmd, takes_table_operation_and_length_from_the_request) {
    FakeService service(reply_of(""));
    const SqlRequest request{4'000'000'000U, 17, 6, "delete from filter_url;"};
    SqlReply reply{};
    ASSERT_EQ(sqlclient_cmd(&request, &reply), 0);
    free(reply.data);
    EXPECT_EQ(support::readable(service.requests().at(0)), "4000000000 17 6 delete");
}

TEST(SqlclientCmd, sends_long_texts_whole) {
    FakeService service(reply_of(""));
    const std::string text(300'000, 's');
    Exchange exchange;
    ASSERT_EQ(exchange.send(text.c_str()), 0);
    EXPECT_EQ(support::difference(support::words({2, 1, 300'000}) + text, service.requests().at(0)), "");
}

TEST(SqlclientCmd, calls_the_platform_in_a_fixed_order) {
    const FakeService service(reply_of("0123456789"));
    Exchange exchange;
    Recorder recorder;
    ASSERT_EQ(exchange.send(), 0);
    EXPECT_EQ(recorder.calls(), (Lines{
                                    "socket 1 1 0",             // AF_UNIX, SOCK_STREAM
                                    "setsockopt 1 8 32768",     // SO_RCVBUF
                                    "setsockopt 1 7 32768",     // SO_SNDBUF
                                    "setsockopt 1 21 10s 0us",  // SO_SNDTIMEO
                                    "setsockopt 1 20 10s 0us",  // SO_RCVTIMEO
                                    "connect " + std::to_string(2 + std::strlen(support::service_socket)),
                                    "send 12 0",
                                    "send 37 0",
                                    "recv 12 0",
                                    "recv 10 0",
                                }));
}

TEST(SqlclientCmd, does_not_mind_options_that_cannot_be_set) {
    const FakeService service(reply_of("data"));
    Exchange exchange;
    Recorder recorder;
    recorder.answer("setsockopt", {EINVAL, EINVAL, EINVAL, EINVAL});
    EXPECT_EQ(exchange.send(), 0);
    EXPECT_EQ(exchange.data(), "data");
}

TEST(SqlclientCmd, success_leaves_no_descriptor_and_no_message) {
    FakeService service(reply_of("data"));
    const int descriptors = support::open_descriptors();
    Exchange exchange;
    Recorder recorder;
    const auto streams = support::streams_of([&] { EXPECT_EQ(exchange.send(), 0); });
    EXPECT_EQ(streams.output + streams.error, "");
    EXPECT_EQ(recorder.calls({"perror", "syslog"}), Lines{});
    service.requests();  // its own descriptors are closed again
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(SqlclientCmd, leaves_no_descriptor_in_a_program_without_standard_input) {
    FakeService service(reply_of("data"));
    const support::WithoutStandardInput closed;
    Exchange exchange;
    EXPECT_EQ(exchange.send(), 0);
    EXPECT_EQ(fcntl(STDIN_FILENO, F_GETFD), -1);
}

TEST(SqlclientCmd, any_number_of_threads_may_call_it_at_once) {
    FakeService service(reply_of("data"));
    std::list<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([] {
            for (int n = 0; n < 20; ++n) {
                Exchange exchange;
                EXPECT_EQ(exchange.send(), 0);
                EXPECT_EQ(exchange.data(), "data");
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(service.requests().size(), 160U);
}

TEST(SqlclientCmd, takes_a_signal_that_is_handled_while_it_waits_for_a_failure) {
    struct sigaction handled {};
    handled.sa_handler = [](int) {};
    handled.sa_flags = SA_RESTART;  // does not help where a receive has a time-out
    sigaction(SIGUSR1, &handled, nullptr);
    const FakeService service(Conversation{{}, Hearing::whole, Ending::silence});
    Exchange exchange;
    std::atomic<bool> ended{false};
    std::thread sender([&ended, caller = pthread_self()] {
        while (!ended) {
            pthread_kill(caller, SIGUSR1);
            usleep(10'000);
        }
    });
    const auto streams = support::streams_of([&] { EXPECT_EQ(exchange.send(), -1); });
    ended = true;
    sender.join();
    EXPECT_EQ(streams.error, "recv header from sql socket server fail: Interrupted system call\n");
    EXPECT_EQ(exchange.reply.data, nullptr);
}

TEST(SqlclientCmd, waits_ten_seconds_for_an_answer) {
    const FakeService service(Conversation{{}, Hearing::whole, Ending::silence});
    Exchange exchange;
    const Recorder recorder;
    const auto start = std::chrono::steady_clock::now();
    const auto streams = support::streams_of([&] { EXPECT_EQ(exchange.send(), -1); });
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(streams.error, "recv header from sql socket server fail: Resource temporarily unavailable\n");
    EXPECT_EQ(recorder.calls({"syslog"}), Lines{"syslog 3 recv header from sql socket server fail!\n"});
    EXPECT_EQ(exchange.reply.data, nullptr);
    EXPECT_GE(waited, std::chrono::seconds(9));
    EXPECT_LE(waited, std::chrono::seconds(60));
}

}  // namespace
