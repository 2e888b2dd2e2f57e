// The n-th allocation of SQLite fails, for every n.
#include <sqlite3.h>

#include <algorithm>

#include "fault/direct_calls.h"
#include "fault/failing_memory.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/profile.h"

namespace {

/// Comes before anything that uses SQLite.
class Memory {
protected:
    FailingMemory memory_;
};

class AllocationFaults : Memory, public DirectRoad {
protected:
    /// A call without memory ends like one of its documented failures, unless it does without.
    static bool is_documented(const Outcome &outcome) {
        const DirectCall &call = GetParam();
        std::vector<Outcome> documented{call.success};
        for (const std::vector<Outcome> *outcomes : {&call.open, &call.exec, &call.prepare, &call.step, &call.unread}) {
            documented.insert(documented.end(), outcomes->begin(), outcomes->end());
        }
        return std::find(documented.begin(), documented.end(), outcome) != documented.end();
    }

    /// @return how many allocations were failed in turn
    int fail_each(FailingMemory::Extent extent) {
        for (int n = 1;; ++n) {
            SCOPED_TRACE(n);
            const Outcome outcome = make_call([&] { FailingMemory::fail(n, extent); });
            const bool came_up = FailingMemory::calm();
            EXPECT_TRUE(is_documented(outcome)) << outcome;
            expect_nothing_left();
            if (!came_up || HasFailure()) {
                EXPECT_EQ(outcome, GetParam().success);
                return n - 1;
            }
        }
    }
};

TEST_P(AllocationFaults, one_allocation_fails) {
    EXPECT_GT(fail_each(FailingMemory::Extent::one_allocation), 20);
}

TEST_P(AllocationFaults, all_memory_is_gone) {
    EXPECT_GT(fail_each(FailingMemory::Extent::all_from_there_on), 20);
}

INSTANTIATE_TEST_SUITE_P(, AllocationFaults, ::testing::ValuesIn(direct_calls()), call_name);

TEST(MaintenanceFaults, all_memory_is_gone) {
    constexpr bool copies = support::build_profile.copies_through_sqlite;
    const FailingMemory memory;
    make_databases_small();
    for (int n = 1, more = true; more; ++n) {
        support::execute("update numbers set a = 1;");
        FailingMemory::fail(n, FailingMemory::Extent::all_from_there_on);
        const int result = reset_sqlite_db();
        more = FailingMemory::calm();
        EXPECT_EQ(result, copies && more ? -1 : 0);
        EXPECT_EQ(sqlite3_memory_used(), 0);
        EXPECT_TRUE(support::lock_file_is_free());
        EXPECT_EQ(support::value("select group_concat(a) from numbers;"), result == 0 ? "5,7" : "1,1");
    }
}

}  // namespace
