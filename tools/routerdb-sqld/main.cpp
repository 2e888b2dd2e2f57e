// routerdb-sqld: the reference SQL service. It stays in the foreground; whoever starts services puts it in the back.
#include <syslog.h>

#include <cstdio>
#include <cstring>

#include "server.h"

namespace {

constexpr char usage[] =
    "usage: routerdb-sqld [--help | --version]\n"
    "Answers the rule-table requests of librouterdb until SIGTERM.\n"
    "Messages go to the system log.\n";

int run() {
    openlog("routerdb-sqld", LOG_PID, LOG_DAEMON);
    sqld::Server server;
    if (!server.listen()) {
        std::fprintf(stderr, "routerdb-sqld: cannot listen, see the system log\n");
        return 1;
    }
    syslog(LOG_INFO, "started");
    server.run();
    syslog(LOG_INFO, "stopped");
    return 0;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc == 1) {
        return run();
    }
    if (argc == 2 && std::strcmp(argv[1], "--help") == 0) {
        return std::fputs(usage, stdout) == EOF ? 1 : 0;
    }
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
        return std::puts("routerdb-sqld " ROUTERDB_VERSION) == EOF ? 1 : 0;
    }
    std::fputs(usage, stderr);
    return 2;
}
