// routerdb-sqld: the reference SQL service. It stays in the foreground; whoever starts services puts it in the back.
#include <syslog.h>

#include <cstdio>

#include "options.h"
#include "server.h"
#include "shared/library_note.h"
#include "surroundings.h"

namespace {

int serve(const sqld::Settings &settings) {
    openlog("routerdb-sqld", LOG_PID, LOG_DAEMON);
    sqld::Server server(settings);
    if (!server.start()) {
        std::fprintf(stderr, "routerdb-sqld: cannot listen, see the system log\n");
        return 1;
    }
    sqld::tell_what_is_missing();
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

int print_usage() {
    return std::fputs(sqld::usage, stdout) != EOF && std::fflush(stdout) == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char **argv) {
    sqld::Settings settings;
    switch (sqld::read_options(argc, argv, settings)) {
        case sqld::Wish::serve:
            return serve(settings);
        case sqld::Wish::help:
            return print_usage();
        case sqld::Wish::version:
            return print_versions();
        default:
            return 2;
    }
}
