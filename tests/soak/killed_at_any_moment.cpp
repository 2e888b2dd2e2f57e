// Callers that are killed while they write, back up, restore or reset.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

#include "routerdb.h"
#include "soak/access_point.h"
#include "soak/owner.h"
#include "soak/victim.h"
#include "support/database.h"
#include "support/profile.h"

namespace {

using soak::Kill;
using soak::Work;

/// So many that a kill may come in the middle of a copy.
constexpr long pages = 2000;

std::string owner() {
    return soak::owner_of(support::main_database, pages);
}

class Killed : public ::testing::Test {
protected:
    Killed() {
        soak::fill(support::main_database, "main", pages);
        soak::fill(support::factory_database, "factory", pages);
        EXPECT_EQ(backup_sqlite_db(), 0);
        support::Database(support::backup_database).execute("update pages set owner = 'backup';");
        main_ = support::file_content(support::main_database);
        factory_ = support::file_content(support::factory_database);
        backup_ = support::file_content(support::backup_database);
    }
    ~Killed() override {  // which leaves the next test in this private root what it found itself
        for (const char *const path : {support::main_database, support::factory_database}) {
            support::write_file(path, empty_);
        }
    }

    void put_databases_back() const {
        support::write_file(support::main_database, main_);
        support::write_file(support::backup_database, backup_);
    }

    /// A victim at its work, killed within the time that a few works take.
    /// @return what it had acknowledged
    long kill_at(const Work &work, unsigned longest) {
        last_kill_ = soak::draw(random_, 2) == 0 ? Kill::caller_alone : Kill::whole_group;
        soak::Victim victim(work);
        usleep(soak::draw(random_, longest));
        return victim.killed(last_kill_);
    }

    /// Whether the next caller comes to its turn. It may find no sound database.
    /// @param result  receives whether it was well
    bool next_caller_gets_through(const std::function<bool()> &action, bool &result) {
        const auto begin = std::chrono::steady_clock::now();
        support::Process next(action);
        const bool ended = support::eventually([&] { return next.has_ended(); });
        const auto taken = std::chrono::steady_clock::now() - begin;
        longest_wait_ = std::max(longest_wait_, std::chrono::duration_cast<std::chrono::milliseconds>(taken));
        result = ended && next.wait() == 0;
        return ended;
    }

    /// Commands that the victim has left behind have ended.
    bool everybody_has_ended() const {
        return support::eventually([&] { return soak::processes() <= processes_; });
    }

    /// Kills one who works, again and again, and expects that nothing that it acknowledged is missing.
    /// @param missing  what is, after so many works and another one
    void expect_nothing_lost(const char *name, const Work &work, const std::function<std::string(long n)> &missing);

    /// Kills one who replaces the main database, and expects that it is the one or the other; where commands copy, that
    /// a reset brings up what they have destroyed.
    void expect_one_or_the_other(const char *name, int (*operation)());

    /// Rows of the table, which name the function that was killed.
    static void tell(const std::string &name, long times, const char *what) { soak::figure(times, name + ": " + what); }
    void tell_longest_wait(const std::string &name) const {
        tell(name, static_cast<long>(longest_wait_.count()), "milliseconds that the next caller took at most");
    }

    std::mt19937 random_ = soak::random_numbers();
    Kill last_kill_ = Kill::caller_alone;

private:
    const long processes_ = soak::processes();
    std::chrono::milliseconds longest_wait_{0};
    const std::string empty_ = support::file_content(support::factory_database);
    std::string main_;
    std::string backup_;
    std::string factory_;
};

void Killed::expect_nothing_lost(const char *name, const Work &work,
                                 const std::function<std::string(long n)> &missing) {
    const long times = soak::count(2, 334);
    const unsigned longest = std::max(20'000U, 5 * soak::microseconds_of([&] { EXPECT_TRUE(work(1)); }));
    long acknowledged = 0;
    for (long n = 0; n < times && !HasFailure(); ++n) {
        support::execute("delete from user_urlinfo; delete from DevInfo;");
        const long done = kill_at(work, longest);
        bool well = false;
        EXPECT_TRUE(next_caller_gets_through([&] { return work(done + 1); }, well));
        EXPECT_TRUE(well);
        EXPECT_TRUE(everybody_has_ended());
        EXPECT_EQ(owner(), "main");
        EXPECT_EQ(missing(done + 1), "");
        acknowledged += done;
    }
    tell(name, times,
         "kills, by chance of the caller alone or with its commands; sound, and the next one gets the lock");
    tell(name, acknowledged, "writes acknowledged before, all there");
    tell_longest_wait(name);
}

void Killed::expect_one_or_the_other(const char *name, int (*operation)()) {
    const long times = soak::count(2, 334);
    const Work work = [=](long /*n*/) { return operation() == 0; };
    const unsigned longest = 2 * soak::microseconds_of([&] { EXPECT_TRUE(work(1)); });
    long destroyed = 0;
    long lost = 0;
    for (long n = 0; n < times && !HasFailure(); ++n) {
        put_databases_back();
        kill_at(work, longest);
        // A command that is killed with its caller may still be in a system call.
        EXPECT_TRUE(last_kill_ == Kill::caller_alone || everybody_has_ended());
        bool written = false;
        EXPECT_TRUE(next_caller_gets_through(
            [] { return DB_EXEC_SQL_CHAR("insert into user_urlinfo(name) values('next');") == 0; }, written));
        EXPECT_TRUE(everybody_has_ended());
        if (owner() == "nobody's") {
            ++destroyed;
            EXPECT_EQ(reset_sqlite_db(), 0);
            EXPECT_EQ(owner(), "factory");
            EXPECT_EQ(DB_EXEC_SQL_CHAR("insert into user_urlinfo(name) values('next');"), 0);
        } else if (written && support::value("select count(*) from user_urlinfo;") != "1") {
            ++lost;
            EXPECT_TRUE(last_kill_ == Kill::caller_alone);
        }
    }
    tell(name, times, "kills, by chance of the caller alone or with its commands; the next one gets the lock");
    if (support::build_profile.copies_through_sqlite) {
        EXPECT_EQ(destroyed, 0);
        EXPECT_EQ(lost, 0);
        tell(name, times, "of them left the database as it was or as it was to be, with the next write");
    } else {
        tell(name, destroyed, "of them left no sound database (known); a reset brought it up each time");
        tell(name, lost, "next writes were acknowledged and lost to a copy that outlived its caller (known)");
    }
    tell_longest_wait(name);
}

/// The numbers up to n that "user_urlinfo" does not have, and those behind n that it has.
std::string missing_rows(long n) {
    const std::string last = std::to_string(n);
    return support::value(
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < " + last +
        "), names as (select cast(name as integer) as i from user_urlinfo) select ifnull(group_concat(i), '') from"
        "(select i from n where i not in names union all select 'and not ' || i from names where i > " +
        last + ");");
}

/// Writes so many pages that a kill may come between them.
std::string insertion(long n) {
    return "insert into user_urlinfo(name, mark) values('" + std::to_string(n) + "', hex(randomblob(100000)));";
}

TEST_F(Killed, in_db_exec_sql_char) {
    expect_nothing_lost(
        "DB_EXEC_SQL_CHAR", [](long n) { return DB_EXEC_SQL_CHAR(insertion(n).c_str()) == 0; }, missing_rows);
}

TEST_F(Killed, in_db_sql_exec) {
    expect_nothing_lost(
        "DbSqlExec", [](long n) { return DbSqlExec(insertion(n).data()) == 0; }, missing_rows);
}

TEST_F(Killed, in_a_backup_between_writes) {
    expect_nothing_lost(
        "backup_sqlite_db",
        [](long n) { return DB_EXEC_SQL_CHAR(insertion(n).c_str()) == 0 && backup_sqlite_db() == 0; },
        [](long n) {
            EXPECT_EQ(support::Database(support::backup_database).value("pragma integrity_check;"), "ok");
            return missing_rows(n);
        });
}

constexpr long access_points = 20;

DevInfo access_point(long n) {
    return soak::access_point(n, access_points);
}

/// Registrations up to number n of which the access point has no row of its own, or another name.
std::string missing_access_points(long n) {
    std::string missing;
    for (long i = std::max(1L, n - access_points + 1); i <= n; ++i) {
        const DevInfo device = access_point(i);
        const std::string name = support::value(
            std::string("select group_concat(Dev_Name || ' ' || Dev_Status) from DevInfo where Dev_MAC='") +
            device.Dev_MAC + "';");
        missing += name == std::string(device.Dev_Name) + " 1" ? "" : std::to_string(i) + " is " + name + "; ";
    }
    return missing;
}

TEST_F(Killed, in_a_registration) {
    expect_nothing_lost(
        "DB_addinfo", [](long n) { return DB_addinfo(access_point(n)) != -1; }, missing_access_points);
}

TEST_F(Killed, in_a_restore) {
    expect_one_or_the_other("restore_sqlite_db", restore_sqlite_db);
}

TEST_F(Killed, in_a_reset) {
    expect_one_or_the_other("reset_sqlite_db", reset_sqlite_db);
}

}  // namespace
