// What calls leave in errno: the reason of a failure, and what was there before otherwise, where failures are told so.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include "core/errno_cases.h"
#include "support/database.h"
#include "support/left_errno.h"
#include "support/recorder.h"

namespace {

using errno_cases::Case;
using support::found_errno;
using support::Recorder;

class Errno : public testing::TestWithParam<Case> {
protected:
    Errno() { recorder_.keep_commands_from_running(); }

    void refuse_memory() {
        constexpr int none = SQLITE_NOMEM;  // for as many connections as a call opens
        recorder_.answer("sqlite3_open", {none, none, none, none, none, none, none, none, none, none, none, none,
                                          none, none, none, none, none, none, none, none, none, none, none, none});
    }

    static void expect(int reason) { support::expect_errno(reason, GetParam().call); }

private:
    Recorder recorder_;
};

TEST_P(Errno, is_left_alone_by_success) {
    errno_cases::fill_databases();
    expect(found_errno);
}

TEST_P(Errno, is_left_alone_where_there_is_no_row) {
    expect(found_errno);
}

TEST_P(Errno, tells_of_a_table_that_is_not_there) {
    errno_cases::drop_tables();
    expect(EIO);
}

TEST_P(Errno, tells_of_a_database_that_cannot_be_opened) {
    for (const char *database : {support::main_database, support::catalogue_database}) {
        support::write_file(database, "This file is no database, and long enough to show that it is none.");
    }
    expect(EIO);
}

TEST_P(Errno, tells_of_memory_that_ran_out) {
    refuse_memory();
    expect(ENOMEM);
}

TEST_P(Errno, tells_of_a_lock_file_that_is_not_there) {
    errno_cases::fill_databases();
    ASSERT_EQ(unlink(support::lock_file), 0);
    expect(GetParam().lock == errno_cases::Lock::taken ? ENOENT : found_errno);
}

INSTANTIATE_TEST_SUITE_P(Of, Errno, testing::ValuesIn(errno_cases::all()), testing::PrintToStringParamName());

}  // namespace
