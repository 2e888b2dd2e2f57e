// The commands: one table of them, which parsing, help, completion and the manual page walk.
#pragma once

#include <cstdint>

#include "options.h"
#include "status.h"

namespace ctl {

inline constexpr int any_number = 1000;

struct Command {
    const char *group;      // its first word
    const char *name;       // its second word; empty for a command of one word
    const char *arguments;  // what follows, for people
    const char *help;
    std::uint32_t options;
    int least;  // arguments
    int most;
    Status (*run)(Invocation &invocation);
};

extern const Command commands[];
extern const Command *const commands_end;

// In rule_reading.cpp
Status list_tables(Invocation &invocation);
Status show_table(Invocation &invocation);
Status list_rules(Invocation &invocation);
Status get_rule(Invocation &invocation);
// In rule_changes.cpp
Status add_rule(Invocation &invocation);
Status set_rule(Invocation &invocation);
Status remove_rules(Invocation &invocation);
Status enable_rules(Invocation &invocation);
Status disable_rules(Invocation &invocation);
// In export.cpp, import.cpp and diff.cpp
Status export_tables(Invocation &invocation);
Status import_tables(Invocation &invocation);
Status show_differences(Invocation &invocation);
// In access_points.cpp
Status list_access_points(Invocation &invocation);
Status show_access_point(Invocation &invocation);
Status set_access_point(Invocation &invocation);
Status set_access_point_status(Invocation &invocation);
Status set_access_point_group(Invocation &invocation);
// In maintenance.cpp
Status back_up(Invocation &invocation);
Status restore(Invocation &invocation);
Status reset(Invocation &invocation);
Status execute_sql(Invocation &invocation);
Status query_sql(Invocation &invocation);
Status count_sql(Invocation &invocation);
// In upgrade.cpp
Status upgrade_databases(Invocation &invocation);
// In lock.cpp and doctor.cpp
Status show_lock(Invocation &invocation);
Status examine(Invocation &invocation);
// In help.cpp
Status complete(Invocation &invocation);
Status help(Invocation &invocation);
Status show_version(Invocation &invocation);

}  // namespace ctl
