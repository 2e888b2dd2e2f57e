// A worker by itself: the test holds the service's end of its channel.
#include "routerdb-sqld/worker.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>
#include <string>

#include "question.h"
#include "routerdb-sqld/channel.h"
#include "support/process.h"

namespace {

class SqldWorkerAlone : public ::testing::Test {
protected:
    SqldWorkerAlone()
        : has_channel_(sqld::make_channel(ends_)), process_([this] {
              close(ends_[0]);
              sqld::work(ends_[1], 100, sqld::Settings{});
              return false;  // it ends by itself
          }) {
        close(ends_[1]);
    }

    ~SqldWorkerAlone() override { close(ends_[0]); }

    void SetUp() override { ASSERT_TRUE(has_channel_); }

    /// @return what the client receives whose question the worker gets
    std::string answer_to_question() const {
        static sqld::Request request;
        const std::string bytes = question();
        std::memcpy(&request, bytes.data(), bytes.size());
        int connection[2] = {-1, -1};
        EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, connection), 0);
        EXPECT_TRUE(sqld::hand_over(channel(), connection[0], request, bytes.size()));
        close(connection[0]);
        char reply[100];
        const ssize_t size = recv(connection[1], reply, sizeof(reply), MSG_WAITALL);
        close(connection[1]);
        return {reply, size > 0 ? static_cast<std::size_t>(size) : 0};
    }

    int channel() const { return ends_[0]; }
    support::Process &process() { return process_; }

private:
    int ends_[2] = {-1, -1};
    bool has_channel_;
    support::Process process_;
};

TEST_F(SqldWorkerAlone, answers_one_request_after_the_other_until_the_service_has_gone) {
    for (int request = 0; request < 3; ++request) {
        EXPECT_EQ(answer_to_question(), answer());
        sqld::Report report{};
        EXPECT_TRUE(support::eventually([&] { return hear(channel(), report) == sqld::Heard::report; }));
        EXPECT_EQ(report.kind, sqld::Report::answered);
        EXPECT_FALSE(report.is_last);
    }
    EXPECT_FALSE(process().has_ended());
    shutdown(channel(), SHUT_WR);
    EXPECT_EQ(process().wait(), 0);
}

// It would count as busy until its time is over.
TEST_F(SqldWorkerAlone, ends_when_the_service_does_not_hear_that_it_has_answered) {
    shutdown(channel(), SHUT_RD);
    EXPECT_EQ(answer_to_question(), answer());
    EXPECT_TRUE(support::eventually([this] { return process().has_ended(); }));
}

}  // namespace
