// The power fails at any moment of writes, backups, restores and resets.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "routerdb.h"
#include "soak/access_point.h"
#include "soak/outages.h"
#include "soak/owner.h"
#include "support/profile.h"

namespace {

using soak::Outages;
using soak::Work;

/// Whether a database that is replaced is the one or the other whenever the power fails, and not only when the call has
/// returned.
constexpr bool replaces_at_once = support::build_profile.copies_through_sqlite;

/// Power losses that are drawn from one trace.
constexpr long images_of_a_trace = 25;

class Outage : public ::testing::Test {
protected:
    Outage() : factory_(support::file_content(support::factory_database)) {}
    ~Outage() override {  // which leaves the next test in this private root what it found itself
        for (const char *const path : {support::main_database, support::factory_database}) {
            support::write_file(path, factory_);
        }
    }

    /// Loses power often while so many works are done, on what `prepare` has made.
    /// @param check  looks at what is left
    void lose_power(const std::function<bool()> &prepare, long works, const Work &work,
                    const std::function<void(const Outages::Moment &)> &check);

    struct Writer {
        const char *name;
        std::function<bool()> prepare;
        Work work;
        std::function<std::string(long acknowledged)> complaint;  // about what is left; "" if all is well
        bool syncs_in_full;
    };

    /// Expects all works that were acknowledged, but perhaps the last one, and no half of any.
    void expect_nothing_lost(const Writer &writer);

    /// Expects the database that an operation has or had, and counts where it left none.
    void expect_mended_by_reset(const char *name, int (*operation)(), const char *replaced, const char *by);

    static void tell(const std::string &name, long times, const char *what) { soak::figure(times, name + ": " + what); }

    const long images_ = soak::count(8, 500);

private:
    std::mt19937 random_ = soak::random_numbers();
    const std::string factory_;
};

void Outage::lose_power(const std::function<bool()> &prepare, long works, const Work &work,
                        const std::function<void(const Outages::Moment &)> &check) {
    std::optional<Outages> outages;
    for (long image = 0; image < images_ && !HasFailure(); ++image) {
        if (image % images_of_a_trace == 0) {
            support::put_files({"/var/tmpconfig/database"}, {});
            support::write_file(support::main_database, factory_);
            EXPECT_TRUE(prepare());
            outages.emplace(works, work);
        }
        check(outages->lose_power(random_));
    }
}

/// What is wrong with the main database after the next start, which finds a journal before anybody else does.
std::string complaint_of_next_start(const std::function<std::string()> &complaint) {
    try {
        const int tables = GET_DB_SQL_INT("select name from sqlite_master;");
        const std::string integrity = support::value("pragma integrity_check;");
        return tables < 1 ? "no tables" : integrity != "ok" ? integrity : complaint();
    } catch (const std::exception &error) {
        return error.what();
    }
}

void Outage::expect_nothing_lost(const Writer &writer) {
    constexpr long works = 8;
    long acknowledged = 0;
    long destroyed = 0;
    lose_power(writer.prepare, works, writer.work, [&](const Outages::Moment &moment) {
        acknowledged += moment.acknowledged;
        const std::string wrong = complaint_of_next_start([&] { return writer.complaint(moment.acknowledged); });
        if (!wrong.empty() && !writer.syncs_in_full && moment.before_sync) {
            ++destroyed;
            EXPECT_EQ(reset_sqlite_db(), 0);
        } else {
            EXPECT_EQ(wrong, "") << "after " << moment.acknowledged;
        }
        EXPECT_TRUE(writer.work(works + 1));
    });
    tell(writer.name, images_, "power losses; no statement half done, and a sound database but for what is told here");
    tell(writer.name, acknowledged, "writes acknowledged before, all there but at most the last one of a power loss");
    if (!writer.syncs_in_full) {
        tell(writer.name, destroyed,
             "of the power losses left no sound database (known), since a journal is synced once");
    }
}

constexpr char rows[] = "30";

/// Rows of several pages in all, which tell the number of the last work.
bool insert_rows() {
    support::execute(std::string("with recursive n(i) as (select 1 union all select i + 1 from n where i < ") + rows +
                     ") insert into user_urlinfo(url, mark) select '0', zeroblob(1000) from n;");
    return true;
}

/// Writes all rows in one statement, some of them longer and some shorter than they were. Of pages full of zeros a
/// checksum tells little.
std::string update_of_all_rows(long n) {
    return "update user_urlinfo set url = '" + std::to_string(n) +
           "', mark = case id % 2 when 0 then zeroblob(abs(random()) % 4000) else hex(randomblob(800)) end;";
}

/// All rows are of one work: of the last one that was acknowledged, of the one before, or of the one after.
std::string wrong_rows(long acknowledged) {
    const auto found = support::Database().rows("select url, count(*) from user_urlinfo group by url;");
    for (long n = acknowledged - 1; n <= acknowledged + 1; ++n) {
        if (found == std::vector<std::string>{std::to_string(n) + "|" + rows}) {
            return "";
        }
    }
    return std::to_string(found.size()) + " kinds of rows, one of them " + (found.empty() ? "" : found.front());
}

TEST_F(Outage, in_db_exec_sql_char) {
    expect_nothing_lost({"DB_EXEC_SQL_CHAR", insert_rows,
                         [](long n) { return DB_EXEC_SQL_CHAR(update_of_all_rows(n).c_str()) == 0; }, wrong_rows,
                         support::build_profile.syncs_in_full});
}

TEST_F(Outage, in_db_sql_exec) {
    expect_nothing_lost({"DbSqlExec", insert_rows, [](long n) { return DbSqlExec(update_of_all_rows(n).data()) == 0; },
                         wrong_rows, true});
}

constexpr long access_points = 4;

DevInfo access_point(long n) {
    return soak::access_point(n, access_points);
}

/// What is to be found of registration n: its row whole, or what was there before.
bool is_registered(long n, const std::string &row) {
    return row == (n > 0 ? std::to_string(n) + " " + std::to_string(n) + " 1" : "");
}

/// Whether a row may be that of a new access point between the statements of its registration.
bool is_half_registered(long n, const std::string &row) {
    return !support::build_profile.registers_at_once && n <= access_points && row == std::to_string(n) + "  0";
}

std::string wrong_access_points(long acknowledged) {
    std::string wrong;
    for (long n = acknowledged + 1; n > acknowledged + 1 - access_points; --n) {
        const bool settled = n < acknowledged;
        const std::string row = support::value(
            std::string("select Dev_Name || ' ' || ifnull(Dev_SwName, '') || ' ' || ifnull(Dev_Status, 0) from DevInfo "
                        "where Dev_MAC='") +
            access_point(n + access_points).Dev_MAC + "';");
        const bool possible = is_registered(n, row) || (!settled && is_registered(n - access_points, row)) ||
                              (!settled && is_half_registered(n, row));
        wrong += possible ? "" : std::to_string(n) + " is \"" + row + "\"; ";
    }
    return wrong;
}

TEST_F(Outage, in_a_registration) {
    expect_nothing_lost({"DB_addinfo", [] { return true; }, [](long n) { return DB_addinfo(access_point(n)) != -1; },
                         wrong_access_points, support::build_profile.syncs_in_full});
}

/// So many that a copy takes many blocks.
constexpr long pages = 40;

std::string owner_of(const char *path) {
    return soak::owner_of(path, pages);
}

/// The three databases, told apart by their owners.
bool fill_databases() {
    soak::fill(support::main_database, "backup", pages);
    const bool copied = backup_sqlite_db() == 0;
    support::execute("update pages set owner = 'main';");
    const std::string main = support::file_content(support::main_database);
    support::write_file(support::factory_database, main);
    support::Database(support::factory_database).execute("update pages set owner = 'factory';");
    return copied;
}

void Outage::expect_mended_by_reset(const char *name, int (*operation)(), const char *replaced, const char *by) {
    const bool of_main = std::string(replaced) == support::main_database;
    const std::string before = of_main ? "main" : "backup";
    long destroyed = 0;
    lose_power(
        fill_databases, 1, [=](long /*n*/) { return operation() == 0; },
        [&](const Outages::Moment &moment) {
            const bool done = moment.acknowledged == 1;
            const std::string found = owner_of(replaced);
            const bool sound = found == by || (!done && found == before);
            const bool is_known = !done && found == "nobody's" && !replaces_at_once;
            EXPECT_TRUE(sound || is_known) << found;
            EXPECT_TRUE(of_main || owner_of(support::main_database) == "main");
            destroyed += sound ? 0 : 1;
            EXPECT_EQ(reset_sqlite_db(), 0);
            EXPECT_EQ(owner_of(support::main_database), "factory");
        });
    tell(name, images_, "power losses; as it should be once the call has returned, and a reset works each time");
    if (!replaces_at_once) {
        tell(name, destroyed, "of them left no sound copy of a call that had not returned (known)");
    }
}

TEST_F(Outage, in_a_backup) {
    expect_mended_by_reset("backup_sqlite_db", backup_sqlite_db, support::backup_database, "main");
}

TEST_F(Outage, in_a_restore) {
    expect_mended_by_reset("restore_sqlite_db", restore_sqlite_db, support::main_database, "backup");
}

TEST_F(Outage, in_a_reset) {
    expect_mended_by_reset("reset_sqlite_db", reset_sqlite_db, support::main_database, "factory");
}

}  // namespace
