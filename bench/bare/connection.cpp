#include "bare/connection.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstdlib>

#include "harness/desk.h"

namespace bench::bare {

namespace {

pthread_mutex_t writers = PTHREAD_MUTEX_INITIALIZER;

void set_lock(int fd, int command, short type) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    fcntl(fd, command, &lock);
}

}  // namespace

void draw_delay() {
    timeval now{};
    gettimeofday(&now, nullptr);
    srand(static_cast<unsigned>(now.tv_usec));
    [[maybe_unused]] volatile const int delay = 51 + static_cast<int>(rand() * 100.0 * 0x1p-31);
}

sqlite3 *open(const char *path) {
    sqlite3 *db = nullptr;
    sqlite3_open(path, &db);
    return db;
}

sqlite3_stmt *prepare(sqlite3 *db, const char *sql) {
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(db, sql, -1, &statement, nullptr);
    return statement;
}

const char *text(sqlite3_stmt *statement, int column) {
    const unsigned char *text = sqlite3_column_text(statement, column);
    return text != nullptr ? reinterpret_cast<const char *>(text) : "";
}

Lock::Lock(Draw draw) {
    if (draw == Draw::before_opening) {
        draw_delay();
    }
    fd_ = ::open(paths::lock_file, O_RDWR, 0644);
    if (draw == Draw::after_opening) {
        draw_delay();
    }
    set_lock(fd_, F_SETLKW, F_WRLCK);
}

Lock::~Lock() {
    set_lock(fd_, F_SETLK, F_UNLCK);
    close(fd_);
}

int number(const char *path, const char *sql) {
    draw_delay();
    sqlite3 *const db = open(path);
    sqlite3_stmt *const statement = prepare(db, sql);
    const int number = sqlite3_step(statement) == SQLITE_ROW ? std::atoi(text(statement, 0)) : 0;
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return number;
}

int count_rows(const char *sql) {
    sqlite3 *const db = open(paths::main_database);
    sqlite3_stmt *const statement = prepare(db, sql);
    int count = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        ++count;
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return count;
}

void execute(const char *sql) {
    pthread_mutex_lock(&writers);
    {
        const Lock lock;
        sqlite3 *const db = open(paths::main_database);
        sqlite3_exec(db, "PRAGMA synchronous = NORMAL; ", nullptr, nullptr, nullptr);
        sqlite3_exec(db, "PRAGMA page_size = 12000; ", nullptr, nullptr, nullptr);
        sqlite3_exec(db, "PRAGMA cache_size = 4000; ", nullptr, nullptr, nullptr);
        char *message = nullptr;
        sqlite3_exec(db, sql, nullptr, nullptr, &message);
        sqlite3_free(message);
        sqlite3_close(db);
    }
    pthread_mutex_unlock(&writers);
}

}  // namespace bench::bare
