// Each call that an exported function makes and that can fail does, one after the other: no crash, no lock, nothing
// left.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cerrno>

#include "core/helpers.h"
#include "soak/calls/calls.h"
#include "soak/left_over.h"
#include "soak/soak.h"
#include "support/process.h"
#include "support/service.h"
#include "support/streams.h"
#include "support/wrapped_calls.h"

namespace {

using soak::Call;
using soak::Held;
using support::WrappedCalls;
using Fault = WrappedCalls::Fault;

/// One call whose n-th call fails.
class Point {
public:
    /// @param first  what the process held before its first call
    Point(const Call &call, int n, const Fault &fault, const Held &first) : call_(call) {
        soak::put_router_back();
        open_standard_input();
        before_ = support::build_profile.keeps_connection ? first : soak::held_now();
        make(n, fault);
        after_ = soak::held_now();
    }

    bool came_up() const { return came_up_; }

    /// What should not be; empty if all is well.
    std::string complaint() const {
        // Of the service's processes one may still be about to give its lock back.
        const bool free = support::eventually(support::lock_file_is_free);
        return std::string(free ? "" : ", a lock is held") + soak::left_over(call_, before_, after_) +
               (blocks_ == 0 ? "" : ", blocks left: " + std::to_string(blocks_));
    }

    const std::string &function() const { return function_; }

private:
    void make(int n, const Fault &fault) {
        const CallersConnection main = open_callers_connection();
        const CallersConnection catalogue = open_callers_connection(support::catalogue_database);
        support::streams_of([&] {
            WrappedCalls calls;
            calls.fail_any(n, fault);
            call_.make({main.get(), catalogue.get()});
            came_up_ = calls.failed();
            function_ = calls.failed_function();
            blocks_ = calls.blocks().size();
        });
    }

    const Call &call_;
    Held before_{};
    Held after_{};
    std::size_t blocks_ = 0;
    bool came_up_ = false;
    std::string function_;
};

class EveryCallFails : public ::testing::Test {
protected:
    EveryCallFails() { soak::make_router(); }

    /// Fails the calls of one function in turn, in a process of its own, up to the first complaint.
    /// @return whether there was none
    static bool fail_each(const Call &call, const Fault &fault, long &points) {
        const Held first = soak::held_now();
        for (int n = 1;; n += soak::among_ordinary_tests() ? 7 : 1) {
            const Point point(call, n, fault, first);
            if (const std::string complaint = point.complaint(); !complaint.empty()) {
                std::printf("%s, call %d fails, of %s%s\n", call.name.c_str(), n, point.function().c_str(),
                            complaint.c_str());
                std::fflush(stdout);
                return false;
            }
            if (!point.came_up()) {
                return true;
            }
            ++points;
        }
    }

    static void fail_all(const Fault &fault, const char *what) {
        const support::Service service;
        const soak::Shared<long> points;
        for (const Call &call : soak::calls()) {
            support::Process process([&] { return fail_each(call, fault, *points); });
            EXPECT_EQ(process.wait(), 0) << call.name;
        }
        EXPECT_GT(*points, 200);
        soak::figure(*points, what);
    }
};

TEST_F(EveryCallFails, once) {
    fail_all({EIO, SQLITE_NOMEM, false}, "points at which a call failed: no crash, no lock, nothing left");
}

TEST_F(EveryCallFails, and_all_behind_it) {
    fail_all({EIO, SQLITE_NOMEM, true}, "points from which all calls failed: no crash, no lock, nothing left");
}

TEST_F(EveryCallFails, once_with_a_busy_database) {
    fail_all({EAGAIN, SQLITE_BUSY, false},
             "points at which a call failed or was busy: no crash, no lock, nothing left");
}

}  // namespace
