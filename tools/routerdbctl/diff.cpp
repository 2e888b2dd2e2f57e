// What has changed since an export, the backup, or the factory.
#include <cstdio>
#include <cstring>

#include "beside.h"
#include "commands.h"
#include "differences.h"
#include "session.h"

namespace ctl {

Status show_differences(Invocation &invocation) {
    Session session(invocation);
    if (session.status() != Status::done) {
        return session.status();
    }
    char backup[] = "backup";
    const char *const file = invocation.count > 0 ? invocation.arguments[0] : backup;
    const int words = invocation.count > 0 ? 1 : 0;
    Status status = put_beside(session.database(), file);
    status = status != Status::done
                 ? status
                 : compare(session.database(), "other", "main", invocation.arguments + words, invocation.count - words);
    bool differs = false;
    status = status != Status::done ? status : print_differences(invocation, session.database(), differs);
    return status == Status::done && differs ? Status::refused : status;
}

}  // namespace ctl
