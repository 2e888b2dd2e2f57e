// What operations leave behind, as text to compare; and how it is taken away again before the next run.
#pragma once

#include <string>

namespace bench {

/// The statement that DB_EXEC_SQL_CHAR is measured with.
inline constexpr char update_sql[] = "update DevInfo set Dev_Name='Reception desk' where Dev_Sn='218212544';";

namespace outcomes {

/// Takes standard output over, and keeps the databases as they are now to restore them from. Once, at the start.
void set_up();

/// The bytes of `places`.
std::string device();
std::string devices();
std::string url_filters();
std::string behavior_rules();

/// The rows of `DevInfo`.
std::string device_rows();

/// What was printed since forget_printed().
std::string printed();

void free_devices();

/// Gives the databases the content they had at the start.
void restore();

/// The same, and puts a changed record of the known access point into `places`.
void restore_for_update();

/// Also opens standard input again, which some functions close.
void forget_printed();

}  // namespace outcomes

}  // namespace bench
