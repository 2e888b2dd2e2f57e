// routerdb-sqld: the reference SQL service. It stays in the foreground; whoever starts services puts it in the back.
#include <getopt.h>
#include <syslog.h>

#include <cstdio>
#include <cstdlib>

#include "server.h"
#include "shared/library_note.h"

namespace {

constexpr char usage[] =
    "usage: routerdb-sqld [--allow-schema] [--request-seconds N]\n"
    "       routerdb-sqld --help | --version\n"
    "Answers the rule-table requests of librouterdb until SIGTERM.\n"
    "Messages go to the system log.\n"
    "  --allow-schema       execute statements that change the schema, too\n"
    "  --request-seconds N  end a request that takes longer; 8 by default\n";

int run(const sqld::Settings &settings) {
    openlog("routerdb-sqld", LOG_PID, LOG_DAEMON);
    sqld::Server server(settings);
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

/// Reads a number of seconds.
/// @return 0 for anything else
unsigned seconds_of(const char *text) {
    constexpr unsigned long most = 3600;
    char *end = nullptr;
    const unsigned long seconds = std::strtoul(text, &end, 10);
    return *text >= '0' && *text <= '9' && *end == '\0' && seconds <= most ? static_cast<unsigned>(seconds) : 0;
}

int print_usage() {
    return std::fputs(usage, stdout) != EOF && std::fflush(stdout) == 0 ? 0 : 1;
}

int misused() {
    std::fputs(usage, stderr);
    return 2;
}

}  // namespace

int main(int argc, char **argv) {
    enum : int { allow_schema, request_seconds, help, version };
    constexpr option options[] = {{"allow-schema", no_argument, nullptr, allow_schema},
                                  {"request-seconds", required_argument, nullptr, request_seconds},
                                  {"help", no_argument, nullptr, help},
                                  {"version", no_argument, nullptr, version},
                                  {nullptr, 0, nullptr, 0}};
    sqld::Settings settings;
    opterr = 0;  // the usage says it
    for (int option = 0; (option = getopt_long(argc, argv, "", options, nullptr)) != -1;) {
        switch (option) {
            case allow_schema:
                settings.may_change_schema = true;
                break;
            case request_seconds:
                settings.request_seconds = seconds_of(optarg);
                break;
            case help:
                return argc == 2 ? print_usage() : misused();
            case version:
                return argc == 2 ? print_versions() : misused();
            default:
                return misused();
        }
    }
    return optind == argc && settings.request_seconds != 0 ? run(settings) : misused();
}
