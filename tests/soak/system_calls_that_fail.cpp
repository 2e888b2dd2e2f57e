// Each system call that an exported function makes fails, one after the other: no crash, no lock, nothing left, a sound
// database.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>

#include "soak/calls/calls.h"
#include "soak/soak.h"
#include "soak/system_calls.h"
#include "support/database.h"
#include "support/process.h"
#include "support/service.h"

namespace {

using soak::Call;
using soak::How;
using soak::Point;

constexpr char trace_file[] = "/tmp/system-calls";
constexpr char output_file[] = "/tmp/output";

/// Runs the program that makes one call, traced.
/// @return its exit status
int run(const Call &call, const std::vector<std::string> &options) {
    support::Process process([&] {
        const bool redirected = std::freopen(output_file, "w", stdout) != nullptr && dup2(1, 2) == 2;
        return redirected && support::become(soak::traced(trace_file, options, {ONE_CALL, call.name}));
    });
    return process.wait();
}

bool is_sound(const char *path) {
    try {
        return support::Database(path).value("pragma integrity_check;") == "ok";
    } catch (const std::exception &) {
        return false;
    }
}

/// What should not be after a system call has failed; empty if all is well.
std::string complaint_about(const Call &call, const Point &point, How how) {
    soak::put_router_back();
    const int status = run(call, {"-e", "trace=" + point.name, "-e", soak::fault(point, how)});
    const bool free = support::eventually(support::lock_file_is_free);
    const bool sound = is_sound(support::main_database) && is_sound(support::catalogue_database);
    const bool is_well = status == 0 && free && sound;
    return is_well ? ""
                   : soak::fault(point, how) + ": status " + std::to_string(status) + (free ? "" : ", a lock is held") +
                         (sound ? "" : ", a database is broken") + "\n" + support::file_content(output_file);
}

class SystemCallsThatFail : public ::testing::Test {
protected:
    SystemCallsThatFail() { soak::make_router(); }

    static void fail_all(How how, const char *what) {
        const support::Service service;
        std::mt19937 random = soak::random_numbers(static_cast<long>(how));
        long failed = 0;
        for (const Call &call : soak::calls()) {
            soak::put_router_back();
            EXPECT_EQ(run(call, {}), 0) << call.name << ": " << support::file_content(output_file);
            for (const Point &point : soak::draw_points(soak::read_marked_calls(trace_file), how, random)) {
                EXPECT_EQ(complaint_about(call, point, how), "") << call.name;
                failed += soak::has_failed(trace_file) ? 1 : 0;
            }
        }
        EXPECT_GT(failed, 50);
        soak::figure(failed, what);
    }
};

TEST_F(SystemCallsThatFail, once) {
    fail_all(How::once, "system calls that failed: no crash, no lock, nothing left, sound databases");
}

TEST_F(SystemCallsThatFail, from_there_on) {
    fail_all(How::from_there_on,
             "system calls that failed from then on: no crash, no lock, nothing left, sound databases");
}

TEST_F(SystemCallsThatFail, interrupted) {
    fail_all(How::interrupted,
             "system calls that a signal interrupted: no crash, no lock, nothing left, sound databases");
}

}  // namespace
