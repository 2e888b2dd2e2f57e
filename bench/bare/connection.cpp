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

Connection::Connection(const char *path) {
    sqlite3_open(path, &db_);
}

Connection::~Connection() {
    sqlite3_close(db_);
}

sqlite3_stmt *prepare(sqlite3 *db, const char *sql) {
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(db, sql, -1, &statement, nullptr);
    return statement;
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
    int number = 0;
    for_first(Connection(path), sql, [&number](const Row &row) { number = row.number(0); });
    return number;
}

int count_rows(const char *sql) {
    int count = 0;
    for_each(Connection(paths::main_database), sql, [&count](const Row &) { ++count; });
    return count;
}

void execute(const char *sql) {
    pthread_mutex_lock(&writers);
    {
        const Lock lock;
        const Connection db(paths::main_database);
        sqlite3_exec(db, "PRAGMA synchronous = NORMAL; ", nullptr, nullptr, nullptr);
        sqlite3_exec(db, "PRAGMA page_size = 12000; ", nullptr, nullptr, nullptr);
        sqlite3_exec(db, "PRAGMA cache_size = 4000; ", nullptr, nullptr, nullptr);
        char *message = nullptr;
        sqlite3_exec(db, sql, nullptr, nullptr, &message);
        sqlite3_free(message);
    }
    pthread_mutex_unlock(&writers);
}

}  // namespace bench::bare
