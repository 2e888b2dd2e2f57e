// A service that hangs up while the request is on its way must not end the caller: SIGPIPE.
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

#include "sqlservice/exchange.h"
#include "support/fake_service.h"
#include "support/named.h"
#include "support/streams.h"
#include "support/wrapped_calls.h"

namespace {

using support::Conversation;
using support::Exchange;
using support::FakeService;
using support::Hearing;
using support::WrappedCalls;

int handled = 0;

extern "C" void count_signal(int /*signal*/) {
    ++handled;
}

/// What the caller has made of SIGPIPE before.
struct Caller : support::Named {
    void (*handler)(int);
    bool blocks;
};

void prepare(const Caller &caller) {
    sigset_t sigpipe;
    sigemptyset(&sigpipe);
    sigaddset(&sigpipe, SIGPIPE);
    pthread_sigmask(caller.blocks ? SIG_BLOCK : SIG_UNBLOCK, &sigpipe, nullptr);
    std::signal(SIGPIPE, caller.handler);
}

bool blocked() {
    sigset_t mask;
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    return sigismember(&mask, SIGPIPE) == 1;
}

bool pending() {
    sigset_t waiting;
    sigpending(&waiting);
    return sigismember(&waiting, SIGPIPE) == 1;
}

/// Sends to a service that hangs up before the n-th send.
/// @return what came on standard error
std::string hang_up_before_send(int n) {
    const FakeService service(Conversation{{}, n == 1 ? Hearing::none : Hearing::header_only});
    Exchange exchange;
    WrappedCalls calls;
    calls.after(n == 1 ? "connect" : "send", 1, [&] { service.wait_for_hang_up(); });
    return support::streams_of([&] { EXPECT_EQ(exchange.send(), -1); }).error;
}

class HangUp : public testing::TestWithParam<Caller> {};

TEST_P(HangUp, is_a_failure_and_raises_no_signal) {
    prepare(GetParam());
    EXPECT_EQ(hang_up_before_send(1), "send header to sql socket server fail: Broken pipe\n");
    EXPECT_EQ(hang_up_before_send(2), "send data to sql socket server fail: Broken pipe\n");
    EXPECT_FALSE(pending());
    EXPECT_EQ(blocked(), GetParam().blocks);
    EXPECT_EQ(handled, 0);
}

INSTANTIATE_TEST_SUITE_P(, HangUp,
                         testing::Values(Caller{"when the caller leaves sigpipe alone", SIG_DFL, false},
                                         Caller{"when the caller ignores sigpipe", SIG_IGN, false},
                                         Caller{"when the caller handles sigpipe", count_signal, false},
                                         Caller{"when the caller blocks sigpipe", SIG_DFL, true}));

TEST(SqlclientCmd, leaves_a_sigpipe_that_waited_before_to_the_caller) {
    prepare({"blocks", SIG_DFL, true});
    raise(SIGPIPE);
    ASSERT_TRUE(pending());
    hang_up_before_send(1);
    EXPECT_TRUE(pending());
}

TEST(SqlclientCmd, does_not_keep_the_signal_of_the_callers_own_streams) {
    prepare({"handles", count_signal, false});
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    const int standard_error = dup(STDERR_FILENO);
    const FakeService service(Conversation{{}, Hearing::none});
    Exchange exchange;
    {
        WrappedCalls calls;
        calls.after("connect", 1, [&] {
            service.wait_for_hang_up();
            dup2(ends[1], STDERR_FILENO);
        });
        EXPECT_EQ(exchange.send(), -1);
    }
    dup2(standard_error, STDERR_FILENO);
    EXPECT_EQ(handled, 1);
}

}  // namespace
