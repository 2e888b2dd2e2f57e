// Every exported function where disks are full, files are missing or hold something else, and clocks go back.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <map>

#include "core/helpers.h"
#include "soak/calls/calls.h"
#include "soak/places.h"
#include "soak/soak.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/service.h"
#include "support/streams.h"

namespace {

using soak::Call;
using soak::Calls;
using soak::Place;

/// Whether a copy that is cut short, or is of a database that is none, replaces nothing.
constexpr bool checks_copies = support::build_profile.copies_through_sqlite;

// What some functions do with the main database: they tell more than the others.
const std::vector<std::string> writers{"DbSqlExec", "DB_EXEC_SQL_CHAR", "SetDevStatusbyIP",
                                       "DB_savezerocfgwlangroupinfo"};
const std::vector<std::string> readers{"DB_getinfo", "GetDevStatus", "GetApDevList_count", "GET_DB_SQL_INT_COUNT_ROUTE",
                                       "DB_getwlangroupinfoByindex"};
const std::vector<std::string> copiers{"backup_sqlite_db", "restore_sqlite_db", "reset_sqlite_db"};

bool is_one_of(const std::vector<std::string> &names, const Call &call) {
    return std::find(names.begin(), names.end(), call.name) != names.end();
}

/// So many calls: first those that are named above, then the others in any order, again and again.
Calls drawn_calls(long count) {
    Calls calls = soak::calls();
    std::mt19937 random = soak::random_numbers();
    std::shuffle(calls.begin(), calls.end(), random);
    std::stable_partition(calls.begin(), calls.end(), [](const Call &call) {
        return is_one_of(writers, call) || is_one_of(readers, call) || is_one_of(copiers, call);
    });
    Calls drawn;
    for (long n = 0; n < count; ++n) {
        drawn.push_back(calls[static_cast<std::size_t>(n) % calls.size()]);
    }
    return drawn;
}

using Contents = std::map<std::string, std::string>;

Contents contents() {
    Contents found;
    for (const char *const path : {support::main_database, support::catalogue_database, support::backup_database}) {
        found[path] = support::file_exists(path) ? support::file_content(path) : "nothing";
    }
    return found;
}

bool is_sound(const std::string &path) {
    try {
        const support::Database database(path.c_str());
        return database.value("pragma integrity_check;") == "ok" &&
               database.value("select count(*) from sqlite_master where name = 'DevInfo';") == "1";
    } catch (const std::exception &) {
        return false;
    }
}

/// One call where a place has failed.
class Visit {
public:
    Visit(const Place &place, const Call &call) : place_(place), call_(call) {
        const CallersConnection main = open_callers_connection();
        const CallersConnection catalogue = open_callers_connection(support::catalogue_database);
        place.spoil();
        const Contents before = contents();
        support::streams_of([&] {
            open_standard_input();
            errno = 0;
            call.make({main.get(), catalogue.get()});
            errno_ = errno;
        });
        for (const auto &[path, content] : contents()) {
            if (content != before.at(path)) {
                look_at_change(path);
            }
        }
    }

    /// What should not be; empty if all is well.
    std::string complaint() const {
        const int expected = is_one_of(writers, call_) ? place_.writers_errno : place_.readers_errno;
        const bool tells = is_one_of(writers, call_) || is_one_of(readers, call_);
        const bool told = !support::build_profile.tells_failures || !tells || errno_ == expected;
        return lost_ + (told ? "" : ", errno is " + std::to_string(errno_));
    }

    /// Whether a copy has put something in the place of a database that is none.
    bool copied_over() const { return copied_over_; }

private:
    void look_at_change(const std::string &path) {
        const bool by_copy = is_one_of(copiers, call_);
        if (!is_sound(path)) {
            copied_over_ = by_copy;
            lost_ += by_copy && !checks_copies ? "" : ", no sound database any more: " + path;
        } else if (!place_.takes_writes && !by_copy) {
            lost_ += ", written: " + path;
        }
    }

    const Place &place_;
    const Call &call_;
    int errno_ = 0;
    std::string lost_;
    bool copied_over_ = false;
};

/// What does not work when a place has been mended.
std::string complaint_of_next_calls() {
    static UserUrlItemList list;
    const bool written = DB_EXEC_SQL_CHAR("insert into user_urlinfo(name) values('next');") == 0;
    const bool read = GET_DB_SQL_INT("select id from user_urlinfo where name = 'next';") == 1;
    GetUserUrlItemList(&list);
    return std::string(written ? "" : ", the next write fails") + (read ? "" : ", the next reading fails") +
           (list.count > 0 ? "" : ", the service has no rows");
}

class PlacesThatFail : public ::testing::TestWithParam<Place> {
protected:
    PlacesThatFail() {
        soak::make_router();
        backup_ = support::file_content(support::backup_database);
    }
    ~PlacesThatFail() override { put_all_back(); }

    void put_all_back() const {
        soak::put_places_back();
        support::write_file(support::backup_database, backup_);
    }

    static bool visit(const Call &call, long &copied_over) {
        const Place &place = GetParam();
        const Visit visit(place, call);
        place.mend();
        if (visit.copied_over()) {
            ++copied_over;
            restore_sqlite_db();  // what a copy has left may destroy the main database
            reset_sqlite_db();
            support::execute("insert into user_urlinfo(name) values('first');");
        }
        const std::string complaint = visit.complaint() + complaint_of_next_calls();
        if (!complaint.empty()) {
            std::printf("%s, %s%s\n", place.name.c_str(), call.name.c_str(), complaint.c_str());
            std::fflush(stdout);
        }
        return complaint.empty();
    }

private:
    std::string backup_;
};

TEST_P(PlacesThatFail, are_survived_by_every_function) {
    // A worker would keep a database open that is deleted with its disk, and give its room back on the next full one.
    const support::Service service({"--fork"});
    const soak::Shared<long> copied_over;
    const long times = soak::count(24, 1400);
    for (const Call &call : drawn_calls(times)) {
        support::Process process([&] { return visit(call, *copied_over); });
        ASSERT_TRUE(support::eventually([&] { return process.has_ended(); })) << call.name;
        EXPECT_EQ(process.wait(), 0) << call.name;
        put_all_back();
    }
    soak::figure(
        times,
        GetParam().name + ": calls; none crashes or waits, nothing lost but what is told here, and the next ones work");
    if (*copied_over > 0) {
        soak::figure(*copied_over, GetParam().name + ": copies that left no sound database (known)");
    }
}

std::string statement_for(const Helper &helper) {
    if (!reads_rows(helper)) {
        return "update DevInfo set Dev_Name = 'a';";
    }
    const bool of_main = helper.database == std::string(support::main_database);
    return of_main ? "select count(Dev_Sn) from DevInfo;" : "select count(Id) from App_Class;";
}

/// What a caller sees of a failure is what the tests of the helper expect of it.
void expect_visible(const Helper &helper, const Place &place) {
    const CallersConnection callers = open_callers_connection();
    place.spoil();
    Outcome outcome{};
    support::streams_of([&] {
        open_standard_input();
        outcome = helper.call(callers.get(), statement_for(helper).c_str());
    });
    const int reason = reads_rows(helper) ? place.readers_errno : place.writers_errno;
    if (place.name == "no_lock_file") {
        EXPECT_EQ(outcome.result == -1, helper.locks);
    } else if (place.name == "no_directory") {
        EXPECT_TRUE(!helper.opens || outcome == helper.open_failure.outcome);
    } else {
        EXPECT_EQ(outcome == helper.statement_failure.outcome, reason != 0);
    }
}

TEST_P(PlacesThatFail, are_seen_by_callers_of_statement_helpers) {
    for (const Helper &helper : helpers()) {
        support::Process process([&] {
            expect_visible(helper, GetParam());
            return !HasFailure();
        });
        EXPECT_EQ(process.wait(), 0) << helper.name;
        put_all_back();
    }
}

INSTANTIATE_TEST_SUITE_P(All, PlacesThatFail, ::testing::ValuesIn(soak::places()),
                         [](const auto &place) { return place.param.name; });

/// What a process with the lock and the test tell each other.
struct Signals {
    std::atomic<bool> locked;
    std::atomic<bool> let_go;
};

bool hold_lock(Signals &signals) {
    const int handle = get_db_lock();
    signals.locked = true;
    return support::eventually([&] { return signals.let_go.load(); }) && free_db_lock(handle) == 0;
}

bool insert(const char *name) {
    return DB_EXEC_SQL_CHAR((std::string("insert into user_urlinfo(name) values('") + name + "');").c_str()) == 0;
}

TEST(LockFile, that_is_removed_holds_up_nobody_for_good) {
    const long times = soak::count(3, 600);
    for (long n = 0; n < times && !::testing::Test::HasFailure(); ++n) {
        support::execute("delete from user_urlinfo;");
        const soak::Shared<Signals> signals;
        support::Process holder([&] { return hold_lock(*signals); });
        ASSERT_TRUE(support::eventually([&] { return signals->locked.load(); }));
        support::Process waiting([] { return insert("a"); });
        ASSERT_TRUE(support::eventually(support::somebody_waits_for_a_lock));
        unlink(support::lock_file);
        support::streams_of([] { EXPECT_FALSE(insert("b")); });
        support::write_file(support::lock_file, "");
        EXPECT_TRUE(insert("c"));
        EXPECT_FALSE(waiting.has_ended());
        signals->let_go = true;
        EXPECT_EQ(holder.wait(), 0);
        EXPECT_TRUE(support::eventually([&] { return waiting.has_ended(); }));
        EXPECT_EQ(support::value("select group_concat(name) from (select name from user_urlinfo order by 1);"), "a,c");
    }
    support::execute("delete from user_urlinfo;");
    soak::figure(times, "lock files removed while somebody waits; all who found one have written");
}

}  // namespace
