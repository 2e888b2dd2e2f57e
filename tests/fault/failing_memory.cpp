#include "fault/failing_memory.h"

#include <sqlite3.h>

#include <stdexcept>
#include <utility>

namespace {

sqlite3_mem_methods real;
int left = 0;  // allocations up to the one that fails; 0: none fails
bool goes_on = false;
bool failed = false;

bool fails_now() {
    if (failed) {
        return goes_on;
    }
    failed = left > 0 && --left == 0;
    return failed;
}

void *allocate(int size) {
    return fails_now() ? nullptr : real.xMalloc(size);
}

void *reallocate(void *block, int size) {
    return fails_now() ? nullptr : real.xRealloc(block, size);
}

}  // namespace

FailingMemory::FailingMemory() {
    sqlite3_shutdown();
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &real);
    sqlite3_mem_methods ours = real;
    ours.xMalloc = allocate;
    ours.xRealloc = reallocate;
    if (sqlite3_config(SQLITE_CONFIG_MALLOC, &ours) != SQLITE_OK || sqlite3_initialize() != SQLITE_OK) {
        throw std::runtime_error("SQLite takes no other memory");
    }
}

void FailingMemory::fail(int n, Extent extent) {
    left = n;
    goes_on = extent == Extent::all_from_there_on;
    failed = false;
}

bool FailingMemory::calm() {
    left = 0;
    goes_on = false;
    return std::exchange(failed, false);
}
