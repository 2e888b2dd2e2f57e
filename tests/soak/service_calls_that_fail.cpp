// Each system call that the service makes fails, one after the other, in every process of it: it ends with a word
// before it serves, or it goes on serving.
#include <gtest/gtest.h>

#include <csignal>

#include "soak/soak.h"
#include "soak/system_calls.h"
#include "support/database.h"
#include "support/peer.h"
#include "support/process.h"
#include "support/service.h"
#include "tools/question.h"

namespace {

using soak::How;
using soak::Point;
using support::Process;

constexpr soak::Share share{20, 1};

std::string list() {
    return support::exchange(url_list());
}

/// @return whether a row more is there
bool writes() {
    const support::Database database(support::main_database);
    const std::string groups = "select count(*) from user_timegroup;";
    const int before = std::stoi(database.value(groups));
    support::exchange(support::request(5, 2, "insert into user_timegroup(name) values('a');"));
    return std::stoi(database.value(groups)) == before + 1;
}

/// A request of each kind.
/// @return whether it was answered as it should be
bool answers(const std::string &expected_list) {
    return support::exchange(question()) == answer() && list() == expected_list && writes();
}

std::vector<std::string> joined(std::vector<std::string> words, const std::vector<std::string> &more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

class ServiceCallsThatFail : public ::testing::Test {
protected:
    ServiceCallsThatFail() {
        support::Database(support::main_database).execute(url_rows);
        const support::Service service;
        expected_list_ = list();
    }

    static bool run(const std::vector<std::string> &options, const std::vector<std::string> &arguments) {
        // The tracer is the grandchild, so that the service is the process that is known. Commands are not traced: a
        // "cp" that cannot look at its files copies one onto itself.
        return soak::become_traced(joined({"-f", "-D", "-b", "execve"}, options), support::sqld(arguments));
    }

    /// Starts the service with a fault, asks it, and stops it.
    /// @return what should not be; empty if all is well
    std::string complaint_about(const std::vector<std::string> &options) const {
        Process service([&] { return run(options, {"--workers", "2"}); });
        const bool done = support::eventually([&] { return service.has_ended() || answers(expected_list_); });
        kill(service.id(), SIGTERM);
        const int status = service.wait();
        const bool free = support::eventually(support::lock_file_is_free);
        return std::string(done ? "" : ", it does not answer") + (free ? "" : ", a lock is held") +
               (status < 128 ? "" : ", ended by signal " + std::to_string(status - 128));
    }

    /// What the service calls once it is loaded.
    soak::Ranges calls() const {
        Process helper([] { return run({}, {"--version"}); });
        EXPECT_EQ(helper.wait(), 0);
        const soak::Ranges loading = soak::read_all_calls();
        EXPECT_EQ(complaint_about({}), "");
        soak::Ranges calls = soak::read_all_calls();
        for (const auto &[name, range] : loading) {
            calls[name].before = range.end;
        }
        return calls;
    }

    void fail_all(How how, const char *what) const {
        std::mt19937 random = soak::random_numbers(static_cast<long>(how));
        long failed = 0;
        for (const Point &point : soak::draw_points(calls(), how, random, share)) {
            EXPECT_EQ(complaint_about({"-e", "trace=" + point.name, "-e", soak::fault(point, how)}), "")
                << soak::fault(point, how);
            failed += soak::has_failed() ? 1 : 0;
        }
        EXPECT_GT(failed, 0);
        soak::figure(failed, what);
    }

private:
    std::string expected_list_;
};

TEST_F(ServiceCallsThatFail, once) {
    fail_all(How::once, "system calls of the service that failed: it serves, or has ended with a status before");
}

TEST_F(ServiceCallsThatFail, interrupted) {
    fail_all(How::interrupted, "system calls of the service that a signal interrupted: it serves");
}

}  // namespace
