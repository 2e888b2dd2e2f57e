// What operations leave behind, as text to compare; and how it is taken away again before the next run.
#pragma once

#include <string>

#include "harness/variant.h"

namespace bench {

/// The statement that DB_EXEC_SQL_CHAR is measured with.
inline constexpr char update_sql[] = "update DevInfo set Dev_Name='Reception desk' where Dev_Sn='218212544';";

namespace outcomes {

/// Takes standard output over, and keeps the databases as they are now to restore them from. Once, at the start.
void set_up();

/// The bytes of `desk`.
std::string device();
std::string devices();
std::string url_filters();
std::string behavior_rules();
std::string reply();

/// The rows of `DevInfo`.
std::string device_rows();

/// What was printed since forget_printed().
std::string printed();

/// The rest prepares runs.
void free_devices(Variant variant);

/// Gives the databases the content they had at the start.
void restore(Variant variant);

/// The same, and puts a changed record of the known access point into `desk`.
void restore_for_update(Variant variant);

/// The same, and puts the record of the known access point into `desk`, as it would report itself.
void restore_for_report(Variant variant);

/// The same, and deletes the known access point, whose record `desk` has as it would report itself.
void restore_for_registration(Variant variant);

/// Has another process write what is there already. Also forgets what was printed.
void write_elsewhere(Variant variant);

/// Waits until the last change of the databases is so long ago that readers can tell from the files that there is none.
void let_settle();

/// Also opens standard input again, which some functions close.
void forget_printed(Variant variant);

/// Closes the streams of lease files that runs leave open.
void close_left_open(Variant variant);

/// Frees the last reply and chooses who answers the next request: the service in the modern profile for that variant,
/// in the exact one for all others.
void choose_service(Variant variant);

}  // namespace outcomes

}  // namespace bench
