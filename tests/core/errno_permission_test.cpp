// What calls leave in errno that may not write the database.
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

#include "core/killed_writer.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/left_errno.h"

namespace {

using support::expect_errno;

/// Nobody may write the database from here on, this process included.
void take_permission() {
    ASSERT_EQ(chmod(support::main_database, 0444), 0);
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    const __user_cap_data_struct none[2]{};
    ASSERT_EQ(syscall(SYS_capset, &header, none), 0);
}

TEST(ErrnoOfPermission, is_told_by_what_writes) {
    take_permission();
    expect_errno(EACCES, [] { SetDevStatus("06", "1"); });
    expect_errno(support::found_errno, [] { get_devinfo_count(); });
}

TEST(ErrnoOfPermission, is_told_by_what_reads_if_a_killed_writer_left_something_to_undo) {
    execute_and_be_killed(
        "pragma cache_size=1; begin immediate; with recursive n(i) as (select 1 union all select i+1 from n where "
        "i<900)"
        "insert into DevInfo(Dev_Sn,Dev_Name) select i,zeroblob(500) from n;");
    take_permission();
    expect_errno(EACCES, [] { get_devinfo_count(); });
}

}  // namespace
