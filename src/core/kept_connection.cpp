#include "core/kept_connection.h"

#include <unistd.h>

#include <atomic>
#include <cstdlib>

#include "core/confinement.h"
#include "core/kept_statements.h"
#include "core/open_file.h"
#include "core/schema_digest.h"

namespace routerdb::kept_connection {

namespace {

/// So many calls go without it after a failure: what has failed once may fail again and again.
constexpr int pause_after_failure = 16;

/// The bytes that the statements of either connection may take, 192 KiB in all. Access points have most of the columns.
constexpr unsigned memory_of_main = 160 * 1024;
constexpr unsigned memory_of_catalogue = 32 * 1024;

/// A connection and what is known of it. Whoever has taken it has all of it alone.
class Kept {
public:
    /// Takes it unless another thread has it. A child is alone at first, whoever had it in its parent.
    bool take();
    void leave() { user_ = 0; }

    /// Finds the connection fit for use, or opens it.
    bool is_ready(Database database);

    /// Finds that the schema of the file is the one that the connection has. A transaction has begun.
    bool has_known_schema(Backoff &backoff);

    /// So many calls go without, and the connection is not kept any longer than this one.
    void pause(int calls) { pause_ = calls; }

    /// What is left of it when the call is over.
    void settle();

    /// Closes it, if there is something to close.
    void close();

    sqlite3 *db() const { return db_; }
    KeptStatements &statements() { return statements_; }

private:
    bool is_usable(Database database) const;
    bool open(Database database);
    void forget();

    std::atomic<pid_t> user_{0};          // who has taken it
    std::atomic<sqlite3 *> db_{nullptr};  // those who have another one look at it, too
    KeptStatements statements_;
    OpenFile file_;
    FileState seen_;  // when the schema was last found to be this one
    std::uint32_t schema_ = 0;
    pid_t process_ = 0;  // that opened it
    int pause_ = 0;      // calls that go without
};

/// One for each database. All of it is zeros until somebody takes it.
Kept connections[2];
std::atomic<bool> closes_at_exit{false};

/// Null for other connections. Nobody has the handle of a kept one but who has taken that.
Kept *find(sqlite3 *db) {
    for (Kept &kept : connections) {
        if (db != nullptr && kept.db() == db) {
            return &kept;
        }
    }
    return nullptr;
}

/// Nobody gets them afterwards: those who still read while the program ends have connections of their own.
void close_all() {
    for (Kept &kept : connections) {
        if (kept.take()) {
            kept.close();
        }
    }
}

/// Has them closed when the library is unloaded or the program ends.
bool close_at_exit() {
    if (!closes_at_exit) {
        closes_at_exit = std::atexit(close_all) == 0;
    }
    return closes_at_exit;
}

bool Kept::take() {
    const pid_t process = getpid();
    pid_t user = user_;
    if (user == process || !user_.compare_exchange_strong(user, process)) {
        return false;
    }
    if (process_ != process) {
        forget();
        process_ = process;
        pause_ = 1;
    }
    return true;
}

bool Kept::is_ready(Database database) {
    if (db() != nullptr && !is_usable(database)) {
        close();
    }
    return db() != nullptr || open(database);
}

bool Kept::is_usable(Database database) const {
    return file_.is_open() && file_.is_at(path_of(database));
}

bool Kept::open(Database database) {
    if (pause_ != 0) {
        --pause_;
        return false;
    }
    pause_ = pause_after_failure;
    const char *const path = path_of(database);
    const ReadingDescriptors before(path);
    FileState now;
    Connection connection;
    if (connection.open_file(path, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX) != SQLITE_OK ||
        !file_.find(path, before) || !file_.look(now) || !close_at_exit()) {
        return false;
    }
    sqlite3 *const db = connection.handle();
    sqlite3_db_config(db, SQLITE_DBCONFIG_LOOKASIDE, static_cast<void *>(nullptr), 0, 0);  // it would stay, too
    confine(db, Texts::own);
    connection.abandon();
    db_ = db;
    pause_ = 0;
    return true;
}

/// The file is looked at first: what changes it afterwards shows the next time.
bool Kept::has_known_schema(Backoff &backoff) {
    FileState now;
    if (!file_.look(now)) {
        return false;
    }
    if (is_unchanged(seen_, now)) {
        return true;
    }
    std::uint32_t schema = 0;
    if (!digest_schema(db_, backoff, schema) || (schema_ != 0 && schema != schema_)) {
        return false;
    }
    seen_ = now;
    schema_ = schema;
    return true;
}

void Kept::settle() {
    sqlite3_db_release_memory(db_);
    if (pause_ != 0) {
        close();
    }
}

/// A descriptor that is somebody else's by now is not SQLite's to close. The handle is nobody's before its memory is
/// free: another thread may open a connection there at once.
void Kept::close() {
    statements_.clear();
    sqlite3 *const db = db_;
    forget();
    if (file_.is_open()) {
        sqlite3_close(db);
    }
}

/// Leaves everything as it is: in a child it is the parent's.
void Kept::forget() {
    db_ = nullptr;
    statements_.forget();
    seen_.settled = false;
    schema_ = 0;
}

}  // namespace

bool lend(Database database, Connection &reading) {
    Kept &kept = connections[static_cast<unsigned>(database)];
    if (!kept.take()) {
        return false;
    }
    if (!kept.is_ready(database)) {
        kept.leave();
        return false;
    }
    reading.take(kept.db());
    return true;
}

bool take_back(sqlite3 *db) {
    Kept *const kept = find(db);
    if (kept == nullptr) {
        return false;
    }
    kept->settle();
    kept->leave();
    return true;
}

int prepare(sqlite3 *db, const char *sql, sqlite3_stmt **statement) {
    Kept *const kept = find(db);
    return kept != nullptr ? kept->statements().prepare(db, sql, statement)
                           : sqlite3_prepare_v2(db, sql, -1, statement, nullptr);
}

void finalize(sqlite3 *db, sqlite3_stmt *statement) {
    if (Kept *const kept = find(db)) {
        kept->statements().put_back(statement, kept == connections ? memory_of_main : memory_of_catalogue);
    } else {
        sqlite3_finalize(statement);
    }
}

// The row of this statement begins a transaction, for which no schema is parsed.
Pin::Pin(sqlite3 *db, Backoff &backoff) : db_(db) {
    Kept *const kept = find(db);
    holds_ = kept == nullptr;
    if (holds_) {
        return;
    }
    const bool begun =
        statement_.prepare(db, "pragma schema_version;", backoff, no_message) && statement_.next_row(backoff);
    holds_ = begun && kept->has_known_schema(backoff);
    if (!holds_) {
        kept->pause(begun ? 1 : pause_after_failure);
    }
}

void Pin::give_up() {
    if (Kept *const kept = find(db_)) {
        kept->pause(pause_after_failure);
    }
}

}  // namespace routerdb::kept_connection
