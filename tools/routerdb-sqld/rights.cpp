#include "rights.h"

#include <grp.h>
#include <pwd.h>
#include <syslog.h>
#include <unistd.h>

namespace sqld {

bool find_group(const char *name, unsigned &group) {
    const struct group *const found = getgrnam(name);
    if (found != nullptr) {
        group = found->gr_gid;
    }
    return found != nullptr;
}

bool is_user(const char *name) {
    return getpwnam(name) != nullptr;
}

bool become_user(const char *name) {
    const passwd *const user = getpwnam(name);
    const bool became = user != nullptr && setgroups(0, nullptr) == 0 && initgroups(name, user->pw_gid) == 0 &&
                        setgid(user->pw_gid) == 0 && setuid(user->pw_uid) == 0;
    if (!became) {
        syslog(LOG_ERR, "cannot become user %s: %m", name);
    }
    return became;
}

}  // namespace sqld
