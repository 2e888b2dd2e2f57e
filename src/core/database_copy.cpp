#include "core/database_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "core/call_errno.h"
#include "core/confinement.h"
#include "core/connection.h"
#include "core/database_check.h"
#include "core/paths.h"
#include "core/retry.h"
#include "text/text.h"

namespace routerdb {

namespace {

/// The path of a file that has another one's name and more.
struct PathBeside : StackText<128> {
    PathBeside(const char *path, const char *suffix) { append(path).append(suffix); }
};

bool is_there(const char *path) {
    return access(path, F_OK) == 0;
}

/// What a writer to a file may have left beside it would be taken for a part of the one that gets its name.
void remove_journals_of(const char *path) {
    for (const char *const suffix : {"-journal", "-wal", "-shm"}) {
        unlink(PathBeside(path, suffix).c_str());
    }
}

/// One copy, in as many attempts as it takes.
class DatabaseCopy {
public:
    DatabaseCopy(const char *from, const char *to) : from_(from), to_(to), new_file_(to, ".new") {}
    DatabaseCopy(const DatabaseCopy &) = delete;
    DatabaseCopy &operator=(const DatabaseCopy &) = delete;
    ~DatabaseCopy() { end(); }

    /// Where the destination is a database, its content is replaced instead of its file.
    bool into_database = false;

    /// @return a reason for errno, or 0
    int run();

private:
    int attempt();
    int begin();
    int open_source();
    int open_destination();
    int open_new_file();
    int refuse(const Check &check);
    int put_in_place();
    int tell(int code);
    void end();

    const char *from_;
    const char *to_;
    PathBeside new_file_;
    bool is_new_file_ = false;
    const char *fault_ = nullptr;
    Backoff backoff_{FirstDelay::microseconds_50, 1000};  // an attempt reads all of the source
    Connection source_;
    Connection destination_;
    sqlite3_backup *backup_ = nullptr;
};

int DatabaseCopy::run() {
    int code = retry_while_busy(backoff_, nullptr, [this] { return attempt(); });
    end();
    if (code == SQLITE_OK && is_new_file_) {
        code = put_in_place();
    }
    if (code != SQLITE_OK && is_new_file_) {
        unlink(new_file_.c_str());
        remove_journals_of(new_file_.c_str());
    }
    return code == SQLITE_OK ? 0 : tell(code);
}

/// A copy that waits for readers to end has the destination's lock, so that no new ones come: it goes on from there.
int DatabaseCopy::attempt() {
    int code = backup_ == nullptr ? begin() : SQLITE_OK;
    if (code == SQLITE_OK) {
        code = sqlite3_backup_step(backup_, -1);
    }
    if (backup_ == nullptr || (code != SQLITE_BUSY && code != SQLITE_LOCKED)) {
        end();
    }
    return code == SQLITE_DONE ? SQLITE_OK : code & 0xff;
}

int DatabaseCopy::begin() {
    int code = open_source();
    if (code == SQLITE_OK) {
        code = open_destination();
    }
    if (code != SQLITE_OK) {
        return code;
    }
    backup_ = sqlite3_backup_init(destination_.handle(), "main", source_.handle(), "main");
    return backup_ != nullptr ? SQLITE_OK : sqlite3_errcode(destination_.handle());
}

int DatabaseCopy::open_source() {
    if (!is_there(from_)) {
        fault_ = "it is not there";
        return SQLITE_NOTFOUND;
    }
    const int code = source_.open_file(from_, SQLITE_OPEN_READWRITE);
    if (code != SQLITE_OK) {
        return code;
    }
    confine(source_.handle(), Texts::own);
    const int left = leave_write_ahead_log(source_.handle(), backoff_);
    return refuse(left != SQLITE_OK ? Check{left, damaged} : check_content(source_.handle(), backoff_));
}

int DatabaseCopy::open_destination() {
    is_new_file_ = false;
    if (!into_database || !is_there(to_)) {
        return open_new_file();
    }
    int code = destination_.open_file(to_, SQLITE_OPEN_READWRITE);
    if (code == SQLITE_OK) {
        confine(destination_.handle(), Texts::own);
        code = leave_write_ahead_log(destination_.handle(), backoff_);
    }
    if (code == SQLITE_OK) {
        const Check layout = check_layout(destination_.handle(), from_, backoff_);
        code = is_no_database(layout.code) ? layout.code : refuse(layout);
    }
    return is_no_database(code) && fault_ == nullptr ? open_new_file() : code;
}

int DatabaseCopy::open_new_file() {
    is_new_file_ = true;
    unlink(new_file_.c_str());
    remove_journals_of(new_file_.c_str());
    return destination_.open_file(new_file_.c_str(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

int DatabaseCopy::refuse(const Check &check) {
    fault_ = check.code == SQLITE_OK || is_no_database(check.code) ? check.fault : nullptr;
    return check.code == SQLITE_OK && fault_ != nullptr ? SQLITE_MISMATCH : check.code;
}

/// The file is on disk; its name is when the directory is.
int DatabaseCopy::put_in_place() {
    struct stat like {};
    const bool known = stat(to_, &like) == 0 || stat(from_, &like) == 0;
    if (known) {
        chmod(new_file_.c_str(), like.st_mode & 07777);
        [[maybe_unused]] const int owned = chown(new_file_.c_str(), like.st_uid, like.st_gid);  // as root only
    }
    remove_journals_of(to_);
    return std::rename(new_file_.c_str(), to_) == 0 ? SQLITE_OK : SQLITE_IOERR;
}

int DatabaseCopy::tell(int code) {
    const char *const reason = fault_ != nullptr ? fault_ : sqlite3_errstr(code);
    syslog(LOG_ERR, "%s is not copied to %s: %s\n", from_, to_, reason);
    return code == SQLITE_NOTFOUND ? ENOENT : fault_ != nullptr ? EINVAL : errno_of(code);
}

void DatabaseCopy::end() {
    sqlite3_backup_finish(backup_);
    backup_ = nullptr;
    destination_.close();
    source_.close();
}

}  // namespace

int copy_to_file(const char *from, const char *to) {
    return DatabaseCopy(from, to).run();
}

int copy_to_main_database(const char *from) {
    DatabaseCopy copy(from, paths::main_database);
    copy.into_database = true;
    return copy.run();
}

}  // namespace routerdb
