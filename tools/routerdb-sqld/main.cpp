// routerdb-sqld: the reference SQL service. It stays in the foreground; whoever starts services puts it in the back.
#include <syslog.h>

#include <cstdio>
#include <cstring>

#include "server.h"
#include "shared/library_note.h"

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

/// Prints the version of the program, and what the library says that it runs with.
int print_versions() {
    const char *const note = tools::library_note();
    const char *const library = note != nullptr ? note : "without a note";
    const bool printed = std::printf("routerdb-sqld " ROUTERDB_VERSION "\nlibrouterdb %s\n", library) > 0;
    return printed && std::fflush(stdout) == 0 ? 0 : 1;
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
        return print_versions();
    }
    std::fputs(usage, stderr);
    return 2;
}
