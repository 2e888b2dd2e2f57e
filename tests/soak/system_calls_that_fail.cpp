// Each system call that an exported function makes fails, one after the other: no crash, no lock, nothing left, a sound
// database.
#include <gtest/gtest.h>

#include <map>

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

/// Runs the program that makes one call, traced.
/// @return its exit status
int run(const Call &call, const std::vector<std::string> &options) {
    support::Process process([&] { return soak::become_traced(options, {ONE_CALL, call.name}); });
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
                         (sound ? "" : ", a database is broken") + "\n" + support::file_content(soak::traced_output);
}

/// All of them, some 18,000 in each profile, take two hours.
constexpr soak::Share share{200, 4};

struct Way {
    How how;
    const char *what;
};

constexpr Way ways[] = {
    {How::once, "system calls that failed: no crash, no lock, nothing left, sound databases"},
    {How::from_there_on, "system calls that failed from then on: no crash, no lock, nothing left, sound databases"},
    {How::interrupted, "system calls that a signal interrupted: no crash, no lock, nothing left, sound databases"},
};

/// What a call does when nothing fails.
soak::Ranges system_calls_of(const Call &call) {
    soak::put_router_back();
    EXPECT_EQ(run(call, {}), 0) << call.name << ": " << support::file_content(soak::traced_output);
    return soak::read_marked_calls();
}

TEST(SystemCallsThatFail, leave_nothing_behind) {
    soak::make_router();
    const support::Service service;
    std::mt19937 random = soak::random_numbers();
    std::map<How, long> failed;
    for (const Call &call : soak::calls()) {
        const soak::Ranges ranges = system_calls_of(call);
        for (const Way &way : ways) {
            for (const Point &point : soak::draw_points(ranges, way.how, random, share)) {
                EXPECT_EQ(complaint_about(call, point, way.how), "") << call.name;
                failed[way.how] += soak::has_failed() ? 1 : 0;
            }
        }
    }
    for (const Way &way : ways) {
        EXPECT_GT(failed[way.how], 5);
        soak::figure(failed[way.how], way.what);
    }
}

}  // namespace
