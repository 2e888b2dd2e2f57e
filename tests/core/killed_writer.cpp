#include "core/killed_writer.h"

#include <signal.h>
#include <unistd.h>

#include "support/process.h"

void insert_rows(const support::Database &database, int count, int size) {
    database.execute("with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
                     std::to_string(count) + ") insert into user_urlinfo(mark) select hex(randomblob(" +
                     std::to_string(size / 2) + ")) from n;");
}

void execute_and_be_killed(const std::string &statements) {
    support::Process writer([&] {
        const support::Database database;
        database.execute(statements);
        return kill(getpid(), SIGKILL) == 0;
    });
    ASSERT_EQ(writer.wait(), 128 + SIGKILL);
}

void KilledWriter::SetUp() {
    insert_rows(support::Database(), 100, 400);
    ASSERT_EQ(backup_sqlite_db(), 0);
    support::execute("delete from user_urlinfo;");
    insert_rows(support::Database(), 200, 1000);
    committed_ = support::file_content(support::main_database);
    // The cache is small: much of the transaction has reached the file by then.
    execute_and_be_killed(
        "pragma cache_size = 5; begin; update user_urlinfo set mark = 'half done' where id % 2;"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 300)"
        "insert into user_urlinfo(mark) select hex(randomblob(1000)) from n;");
    ASSERT_TRUE(support::file_exists(journal));
    ASSERT_NE(support::file_content(support::main_database), committed_);
}

std::string KilledWriter::content_of(const char *path) {
    const support::Database database(path);
    EXPECT_EQ(database.value("pragma integrity_check;"), "ok");
    return database.value("select count(*) || ' rows of ' || ifnull(sum(length(mark)), 0) from user_urlinfo;");
}
