// Opening a database that is busy may leave a handle behind. It is closed before the next attempt: programs that count
// connections find none left.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "core/helpers.h"

namespace {

int busy_opens = 0;
int handles = 0;  // open ones
Lines calls;

void note(const char *call) {
    calls.push_back(std::string(call) + ", open: " + std::to_string(handles));
}

template <typename Function>
Function *real(Function * /*ours*/, const char *name) {
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

int sqlite3_open(const char *path, sqlite3 **db) {
    note("open");
    const int code = real(&sqlite3_open, "sqlite3_open")(path, db);
    ++handles;
    return busy_opens-- > 0 ? SQLITE_BUSY : code;
}

int sqlite3_close(sqlite3 *db) {
    note("close");
    --handles;
    return real(&sqlite3_close, "sqlite3_close")(db);
}

int usleep(useconds_t /*microseconds*/) {
    note("sleep");
    return 0;
}

}  // extern "C"

namespace {

class BusyOpen : public HelperTest {
protected:
    BusyOpen() {
        handles = 0;
        busy_opens = 2;
        calls.clear();
    }
};

TEST_P(BusyOpen, leaves_no_connection_behind) {
    call("select 5;");
    EXPECT_EQ(calls, (Lines{"open, open: 0", "sleep, open: 1", "close, open: 1", "open, open: 0", "sleep, open: 1",
                            "close, open: 1", "open, open: 0", "close, open: 1"}));
    EXPECT_EQ(handles, 0);
}

INSTANTIATE_TEST_SUITE_P(, BusyOpen,
                         ::testing::ValuesIn(helpers_that([](const Helper &helper) { return helper.opens; })),
                         helper_name);

}  // namespace
