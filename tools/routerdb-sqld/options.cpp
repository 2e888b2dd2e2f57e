#include "options.h"

#include <getopt.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "pool.h"
#include "rights.h"

namespace sqld {

const char usage[] =
    "usage: routerdb-sqld [OPTION]...\n"
    "       routerdb-sqld --help | --version\n"
    "Answers the rule-table requests of librouterdb until SIGTERM.\n"
    "Messages go to the system log, and on SIGUSR1 what it has done so far.\n"
    "  --allow-schema       execute statements that change the schema, too\n"
    "  --group NAME         whose programs may connect, beside those of the owner\n"
    "  --user NAME          give up the rights of root when the socket is there\n"
    "  --workers N          processes that serve; as many as processors by default,\n"
    "                       but no more than 4\n"
    "  --fork               start a process for each request instead\n"
    "  --request-seconds N  end a request that takes longer; 8 by default\n"
    "  --memory MiB         of a process that serves; 64 by default\n"
    "  --rows N             refuse lists of more; 128 by default, and at least\n";

namespace {

constexpr unsigned most_by_default = 4;

enum Option : int { allow_schema, fork_each, group, help, memory, request_seconds, rows, user, version, workers };

constexpr option options[] = {{"allow-schema", no_argument, nullptr, allow_schema},
                              {"fork", no_argument, nullptr, fork_each},
                              {"group", required_argument, nullptr, group},
                              {"help", no_argument, nullptr, help},
                              {"memory", required_argument, nullptr, memory},
                              {"request-seconds", required_argument, nullptr, request_seconds},
                              {"rows", required_argument, nullptr, rows},
                              {"user", required_argument, nullptr, user},
                              {"version", no_argument, nullptr, version},
                              {"workers", required_argument, nullptr, workers},
                              {nullptr, 0, nullptr, 0}};

/// Reads a number of the command line.
bool read_number(unsigned least, unsigned most, unsigned &number) {
    char *end = nullptr;
    const unsigned long value = std::strtoul(optarg, &end, 10);
    number = static_cast<unsigned>(value);
    return *optarg >= '0' && *optarg <= '9' && *end == '\0' && value >= least && value <= most;
}

bool is_known(bool found, const char *what) {
    if (!found) {
        std::fprintf(stderr, "routerdb-sqld: there is no %s %s\n", what, optarg);
    }
    return found;
}

bool read_option(int option, Settings &settings) {
    switch (option) {
        case allow_schema:
            settings.may_change_schema = true;
            return true;
        case fork_each:
            settings.forks = true;
            return true;
        case group:
            return is_known(find_group(optarg, settings.socket_group), "group");
        case memory:
            return read_number(16, 2048, settings.memory_mib);
        case request_seconds:
            return read_number(1, 3600, settings.request_seconds);
        case rows:
            return read_number(Settings().rows, 100'000, settings.rows);
        case user:
            settings.user = optarg;
            return is_known(is_user(optarg), "user");
        case workers:
            return read_number(1, most_serving, settings.workers);
        default:
            return false;
    }
}

unsigned default_workers() {
    const long processors = sysconf(_SC_NPROCESSORS_ONLN);
    return processors < 1 ? 1 : std::min(static_cast<unsigned>(processors), most_by_default);
}

}  // namespace

Wish read_options(int argc, char **argv, Settings &settings) {
    settings.workers = default_workers();
    opterr = 0;  // the usage says it
    bool understood = true;
    for (int option = 0; understood && (option = getopt_long(argc, argv, "", options, nullptr)) != -1;) {
        if (argc == 2 && (option == help || option == version)) {
            return option == help ? Wish::help : Wish::version;
        }
        understood = read_option(option, settings);
    }
    if (understood && optind == argc) {
        return Wish::serve;
    }
    std::fputs(usage, stderr);
    return Wish::none;
}

}  // namespace sqld
