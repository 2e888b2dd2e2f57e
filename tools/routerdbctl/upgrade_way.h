// From which database to which schema: the router's two, or the one that the command line names.
#pragma once

#include "options.h"
#include "sql.h"
#include "status.h"

namespace ctl {

enum class RouterDatabase : unsigned char { main, catalogue };

/// Which database, where its rows come from, and which one has the schema that it gets.
struct UpgradeWay {
    RouterDatabase which;
    const char *live;
    const char *from;
    const char *to;
    const char *factory;     // the copy of the firmware that runs
    const char *rules_name;  // of the file beside it

    /// What lines begin with.
    const char *name() const;

    bool keeps_rows() const { return from == live; }
};

/// The way of one of the router's databases, from itself to the firmware's factory copy.
UpgradeWay usual_way(RouterDatabase which);

/// The way that --from and --to name. What is in the files says which database they are.
/// @return done, or what fail() has said
Status read_way(const Options &options, UpgradeWay &way);

/// Adds the path of the rules beside a database.
Sql &add_rules_path(Sql &path, const UpgradeWay &way, const char *database);

}  // namespace ctl
