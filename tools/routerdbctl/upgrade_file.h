// The files of an upgrade: the new database takes the live one's name when it is on disk, and the old one is kept
// beside.
#pragma once

#include "sql.h"
#include "status.h"

namespace ctl {

/// Whether two paths lead to one file.
bool is_same_file(const char *one, const char *other);

/// The lock file, which everybody who writes through the library holds.
class UpgradeLock {
public:
    UpgradeLock() = default;
    UpgradeLock(const UpgradeLock &) = delete;
    UpgradeLock &operator=(const UpgradeLock &) = delete;
    ~UpgradeLock();

    /// Waits for it. When its time is over, this process ends with the status unreachable.
    Status acquire(unsigned seconds);

private:
    int handle_ = -1;
};

class UpgradeFile {
public:
    /// @param live  path of the database; where it is a link, the file that it leads to changes
    explicit UpgradeFile(const char *live);

    /// Where the new database is made: in the live one's directory.
    const char *path() const { return new_.text(); }

    /// Whether an upgrade that was interrupted has left its new database.
    bool is_left_over() const;
    void remove() const;

    /// Gives the new database the live one's name, mode and owner.
    /// @param from  whose mode and owner it gets without a live one
    /// @param kept  receives where the old one is now; empty without one
    /// @return done; unreachable, with nothing changed; unknown when a power loss may still undo it
    Status put_in_place(const char *from, Sql &kept) const;

private:
    Status finish_new(const char *like) const;
    Status keep_old(Sql &kept) const;
    Status sync_directory() const;

    Sql live_;
    Sql new_;
    Sql directory_;
};

}  // namespace ctl
