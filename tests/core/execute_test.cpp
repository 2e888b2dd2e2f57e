// Guarded execution: DbSqlExec.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "support/database.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;

int execute(const std::string &sql) {
    return DbSqlExec(const_cast<char *>(sql.c_str()));  // only read
}

TEST(DbSqlExec, executes_under_the_lock_and_copies_the_file_after_releasing_it) {
    Recorder recorder;
    ASSERT_EQ(execute("insert into user_urlinfo(name) values('a');"), 0);
    EXPECT_EQ(recorder.calls(), (std::vector<std::string>{
                                    "open lock file",
                                    "gettimeofday",
                                    "srand",
                                    "rand",
                                    "lock",
                                    "sqlite3_open /etc/config/systemconf/database/myrouter.db",
                                    "sqlite3_exec insert into user_urlinfo(name) values('a');",
                                    "sqlite3_free",
                                    "sqlite3_close",
                                    "unlock",
                                    "close lock file",
                                    "system cp -f /etc/config/systemconf/database/myrouter.db "
                                    "/etc/config/systemconf/database/myrouter.db >/dev/null 2>&1 &",
                                }));
    EXPECT_EQ(support::value("select count(*) from user_urlinfo"), "1");
}

TEST(DbSqlExec, sleeps_grow_by_five_through_open_and_execute) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    recorder.answer("rand", {0});
    recorder.answer("sqlite3_open", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    recorder.answer("sqlite3_exec", {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    ASSERT_EQ(execute("delete from user_urlinfo;"), 0);
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{56, 61, 66, 71, 76, 81}));
}

}  // namespace
