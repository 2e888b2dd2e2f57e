// The databases of an upgrade on one connection: the old one, the target, and the new one that becomes of them.
#pragma once

#include <cstdint>

#include "database.h"
#include "upgrade_way.h"

namespace ctl {

/// Whether the live database is looked at, or nobody else may use it until it has been replaced.
enum class Hold : unsigned char { look, exclusive };

class UpgradeDatabases {
public:
    static constexpr char fresh[] = "fresh";    // what is made
    static constexpr char target[] = "target";  // what has the schema

    /// Opens them all, and makes the new one the same as the target.
    /// @param new_file  null to make it in memory
    /// @return done; refused when there is nothing to begin with; not_found; unreachable. fail() has said it
    Status open(const UpgradeWay &way, const char *new_file, unsigned seconds);

    /// The old rows: the live database's unless others were named.
    const char *old() const { return old_; }

    const Database &connection() const { return database_; }

    /// Of a database, as its header has it.
    std::int32_t version(const char *schema) const;

    /// Runs statements that write to the new one.
    /// @return done; refused when the rows break what its schema asks for; unreachable
    Status write(const char *sql);

    /// Ends the writing; the live database stays locked as long as this does.
    Status finish();

private:
    Status open_live(const UpgradeWay &way, Hold hold, unsigned seconds);
    Status attach(const char *path, const char *mode, const char *schema);
    Status copy_target(const UpgradeWay &way, const char *new_file, unsigned seconds);
    Status begin(Hold hold);
    Status check_old() const;

    Database database_;
    const char *old_ = "main";
};

}  // namespace ctl
