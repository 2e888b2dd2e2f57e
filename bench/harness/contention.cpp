#include "harness/contention.h"

#include <sqlite3.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>

#include "harness/desk.h"
#include "harness/outcomes.h"

namespace bench {

namespace {

constexpr int most_processes = 16;
constexpr double duration = 1.0;

/// What one process found. Shared with those that it was forked from.
struct Share {
    long updates;
    double longest;  // seconds
};

double now() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// As users of SQLite do without the library: no lock file, SQLite waits for the others.
bool update_with_busy_timeout() {
    constexpr int milliseconds = 60000;
    sqlite3 *db = nullptr;
    sqlite3_open(paths::main_database, &db);
    sqlite3_busy_timeout(db, milliseconds);
    const int code = sqlite3_exec(db, update_sql, nullptr, nullptr, nullptr);
    sqlite3_close(db);
    return code == SQLITE_OK;
}

void update_until(double end, const std::function<bool()> &update, Share &share) {
    for (double start = now(); start < end;) {
        if (!update()) {
            std::fputs("bench: an update failed\n", stderr);
            std::exit(1);
        }
        const double stop = now();
        share.longest = std::max(share.longest, stop - start);
        ++share.updates;
        start = stop;
    }
}

void measure(const char *variant, int processes, const std::function<bool()> &update, Share *shares, FILE *file) {
    constexpr double time_to_start = 0.05;
    const double start = now() + time_to_start;
    for (int number = 0; number < processes; ++number) {
        shares[number] = {};
        std::fflush(file);
        if (fork() == 0) {
            usleep(static_cast<useconds_t>(std::max(0.0, start - now()) * 1e6));
            update_until(start + duration, update, shares[number]);
            _exit(0);
        }
    }
    bool all_well = true;
    for (int status = 0; wait(&status) > 0;) {
        all_well = all_well && status == 0;
    }
    if (!all_well) {
        std::exit(1);
    }
    const double elapsed = now() - start;
    Share sum{};
    for (int number = 0; number < processes; ++number) {
        sum.updates += shares[number].updates;
        sum.longest = std::max(sum.longest, shares[number].longest);
    }
    std::fprintf(file, "%s %d %.0f %.1f\n", variant, processes, static_cast<double>(sum.updates) / elapsed,
                 sum.longest * 1e3);
}

}  // namespace

void contend(const Profiles &profiles, const char *path) {
    FILE *const file = std::fopen(path, "w");
    auto *const shares = static_cast<Share *>(
        mmap(nullptr, most_processes * sizeof(Share), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    if (file == nullptr || shares == MAP_FAILED) {
        std::perror("bench: cannot measure contention");
        std::exit(1);
    }
    for (int processes = 1; processes <= most_processes; processes *= 2) {
        measure(
            "exact", processes, [&] { return profiles.exact.DB_EXEC_SQL_CHAR(update_sql) == 0; }, shares, file);
        measure(
            "modern", processes, [&] { return profiles.modern.DB_EXEC_SQL_CHAR(update_sql) == 0; }, shares, file);
        measure("busy_timeout", processes, update_with_busy_timeout, shares, file);
    }
    std::fclose(file);
}

}  // namespace bench
