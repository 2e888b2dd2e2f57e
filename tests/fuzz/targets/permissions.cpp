// What routerdb-sqld lets requests do: reading reads, and executing changes rows.
#include <sqlite3.h>

#include "fuzz/fuzz.h"
#include "routerdb-sqld/permission.h"
#include "support/database.h"

const char fuzz::what[] = "permitted statements: a query changes nothing, an execution rows alone, none opens a file";

namespace {

using fuzz::require;

sqlite3_vfs watched_files;
const sqlite3_vfs *files = nullptr;
bool opened_a_file = false;

/// Temporary files have no name.
int note_opening(sqlite3_vfs * /*unused*/, const char *name, sqlite3_file *file, int flags, int *flags_out) {
    opened_a_file = opened_a_file || (name != nullptr && (flags & SQLITE_OPEN_MAIN_DB) != 0);
    return files->xOpen(sqlite3_vfs_find("unix"), name, file, flags, flags_out);
}

int end_long_statements(void * /*unused*/) {
    return 1;
}

/// A database in memory, and what must not change in it.
class Bench {
public:
    Bench() {
        sqlite3_open(":memory:", &db_);
        run("create table a(b, c); insert into a values(1,2),(3,4); create table d(e);");
        sqlite3_progress_handler(db_, 20000, end_long_statements, nullptr);
        opened_a_file = false;
    }
    Bench(const Bench &) = delete;
    Bench &operator=(const Bench &) = delete;
    ~Bench() { sqlite3_close(db_); }

    sqlite3 *db() const { return db_; }
    void run(const char *sql) const { sqlite3_exec(db_, sql, nullptr, nullptr, nullptr); }

    /// What a change of rows leaves as it is. SQLite's own statistics, which "analyze" makes, are none of it.
    std::string schema() const {
        return values("select group_concat(sql) from sqlite_master where name not like 'sqlite\\_%' escape '\\'") +
               values("pragma user_version") + values("pragma application_id") + values("pragma journal_mode") +
               values("select group_concat(name) from pragma_database_list where name <> 'temp'");
    }
    std::string rows() const { return values("select group_concat(b || ',' || c, ' ') from a"); }

private:
    std::string values(const char *sql) const {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(db_, sql, -1, &statement, nullptr);
        std::string text;
        if (sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_text(statement, 0) != nullptr) {
            text = reinterpret_cast<const char *>(sqlite3_column_text(statement, 0));
        }
        sqlite3_finalize(statement);
        return text + "\n";
    }

    sqlite3 *db_ = nullptr;
};

void query(const std::string &sql) {
    const Bench bench;
    const std::string schema = bench.schema();
    const std::string rows = bench.rows();
    sqlite3_stmt *statement = nullptr;
    if (sqld::prepare_query(bench.db(), sql.c_str(), statement) == nullptr) {
        require(statement != nullptr, "a query that is none");
        while (sqlite3_step(statement) == SQLITE_ROW) {
        }
    }
    sqlite3_finalize(statement);
    require(sqlite3_next_stmt(bench.db(), nullptr) == nullptr, "a statement is left open");
    sqlite3_set_authorizer(bench.db(), nullptr, nullptr);
    require(bench.rows() == rows && bench.schema() == schema, "a query changes the database: " + sql);
    require(!opened_a_file, "a query opens a file: " + sql);
}

void execute(const std::string &sql) {
    const Bench bench;
    const std::string schema = bench.schema();
    const std::string rows = bench.rows();
    const bool permitted = sqld::permits_execution(bench.db(), sql.c_str(), false);
    require(sqlite3_next_stmt(bench.db(), nullptr) == nullptr, "a statement is left open");
    require(bench.rows() == rows && bench.schema() == schema, "a text is run when it is looked at: " + sql);
    if (permitted) {
        bench.run(sql.c_str());
        bench.run("rollback;");  // what a text began and did not end
        require(bench.schema() == schema, "a permitted text changes more than rows: " + sql);
        require(!opened_a_file, "a permitted text opens a file: " + sql);
    }
}

}  // namespace

void fuzz::prepare() {
    files = sqlite3_vfs_find("unix");
    watched_files = *files;
    watched_files.zName = "watched";
    watched_files.xOpen = note_opening;
    sqlite3_vfs_register(&watched_files, 1);
}

void fuzz::run(Input input) {
    const bool is_query = input.take_number(2) == 0;
    const std::string sql = input.take_rest();
    (is_query ? query : execute)(sql.substr(0, sql.find('\0')));
}
