// The lock file, which every writer waits for.
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "checks.h"
#include "core/paths.h"
#include "lock_holders.h"

namespace ctl {

namespace {

using routerdb::paths::lock_file;

/// Most hold it for a moment: that it is held whenever one looks for a while is worth a word.
LockHolders find_lasting_holders() {
    LockHolders found = LockHolders::find();
    for (int again = 0; again < 5 && found.state == LockState::held; ++again) {
        usleep(100'000);
        found = LockHolders::find();
    }
    return found;
}

}  // namespace

void look_at_lock_file(Examination &examination) {
    Report &report = examination.report;
    struct stat file {};
    if (stat(lock_file, &file) != 0) {
        report.fail("\"touch\" makes it, and the router should when it starts", "%s: %s", lock_file,
                    std::strerror(errno));
        return;
    }
    if (!S_ISREG(file.st_mode)) {
        report.fail("put an empty file in its place", "%s is no file", lock_file);
        return;
    }
    report.ok("%s: owner %s, mode %04o", lock_file, name_of_user(file.st_uid),
              static_cast<unsigned>(file.st_mode) & 07777U);
    if ((file.st_mode & (S_IROTH | S_IWOTH)) != 0) {
        report.warn("\"chmod o-rw\" it", "everybody may open %s, mode %04o, and stop all writers by locking it",
                    lock_file, static_cast<unsigned>(file.st_mode) & 07777U);
    }
}

void look_at_lock(Examination &examination) {
    constexpr char advice[] = "if it stays so, end that process: nobody can change anything meanwhile";
    Report &report = examination.report;
    const LockHolders found = find_lasting_holders();
    if (found.state == LockState::free) {
        report.ok("nobody holds it");
    } else if (found.state != LockState::held) {
        report.warn("mend what is said of lock-file first", "not looked at: %s", std::strerror(found.reason));
    } else if (found.count == 0) {
        report.warn("\"routerdbctl lock\" as root says more", "%s", found.why_unknown());
    }
    for (unsigned i = 0; i < found.count; ++i) {
        const ProcessFacts &process = found.holders[i].process;
        report.warn(advice, "held by process %d (%s) of %s", static_cast<int>(process.id), process.name,
                    name_of_user(process.user));
    }
}

}  // namespace ctl
