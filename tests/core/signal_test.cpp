// Signals that arrive while a call waits for the lock file.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>

#include "routerdb.h"
#include "support/database.h"
#include "support/gate.h"
#include "support/named.h"
#include "support/process.h"

namespace {

using support::Gate;
using support::Process;

const Gate *next_gate = nullptr;

void open_next_gate(int /*signal*/) {
    next_gate->open();
    ++next_gate;
}

/// From now on each SIGALRM opens one of `gates`, and ends a system call that waits.
void take_alarms(const Gate *gates) {
    next_gate = gates;
    struct sigaction action {};
    action.sa_handler = open_next_gate;
    sigaction(SIGALRM, &action, nullptr);
}

struct Waiter : support::Named {
    void (*call)();
};

constexpr char insertion[] = "insert into user_urlinfo(name) select 'a';";

const Waiter waiters[] = {
    {{"get_db_lock"}, [] { get_db_lock(); }},
    {{"DbSqlExec"}, [] { DbSqlExec(const_cast<char *>(insertion)); }},  // only read
    {{"DB_EXEC_SQL_CHAR"}, [] { DB_EXEC_SQL_CHAR(insertion); }},
    {{"GET_DB_SQL_INT"}, [] { GET_DB_SQL_INT("select 5;"); }},
    {{"GET_DB_SQL_INT_COUNT"}, [] { GET_DB_SQL_INT_COUNT("select 5;"); }},
    {{"DB_GetDevSNCollection"},
     [] {
         uint32_t number = 0;
         DB_GetDevSNCollection(&number);
     }},
    {{"backup_sqlite_db"}, [] { backup_sqlite_db(); }},
    {{"restore_sqlite_db"}, [] { restore_sqlite_db(); }},
    {{"reset_sqlite_db"}, [] { reset_sqlite_db(); }},
};

class Signal : public ::testing::TestWithParam<Waiter> {
protected:
    /// Sends an alarm to a process that waits for the lock.
    /// @return whether it waits again afterwards
    static bool waits_through_an_alarm(const Process &process, const Gate &gate) {
        EXPECT_TRUE(support::eventually(support::somebody_waits_for_a_lock));
        kill(process.id(), SIGALRM);
        gate.wait();
        return support::eventually([&] { return support::somebody_waits_for_a_lock() || process.has_ended(); }) &&
               !process.has_ended();
    }
};

TEST_P(Signal, does_not_end_the_wait_for_the_lock_file) {
    const Gate gates[2];
    const int handle = get_db_lock();
    Process process([&] {
        take_alarms(gates);
        GetParam().call();
        return true;
    });
    for (const Gate &gate : gates) {
        ASSERT_TRUE(waits_through_an_alarm(process, gate));
    }
    free_db_lock(handle);
    EXPECT_EQ(process.wait(), 0);
}

INSTANTIATE_TEST_SUITE_P(, Signal, ::testing::ValuesIn(waiters), [](const auto &test) { return test.param.name; });

TEST(LockReg, gives_up_the_wait_as_fcntl_does) {
    const Gate gate;
    const int handle = get_db_lock();
    Process process([&] {
        take_alarms(&gate);
        const int fd = open(support::lock_file, O_RDWR);
        return lock_reg(fd, F_SETLKW, F_WRLCK, 0, SEEK_SET, 0) == -1 && errno == EINTR;
    });
    EXPECT_TRUE(support::eventually(support::somebody_waits_for_a_lock));
    kill(process.id(), SIGALRM);
    EXPECT_EQ(process.wait(), 0);
    free_db_lock(handle);
}

}  // namespace
