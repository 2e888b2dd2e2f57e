#include "apinventory/station_list.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "apinventory/station_program.h"
#include "core/call_errno.h"
#include "core/paths.h"
#include "core/random.h"
#include "core/shell.h"
#include "json/json_list.h"
#include "text/number.h"
#include "text/text.h"

namespace routerdb {

namespace {

constexpr std::size_t trace_command_size = 128;

// Marks in the trace, by which its readers tell the two steps.
constexpr int started = 9643;
constexpr int asking = 9648;

constexpr std::size_t field_size = 50;

/// What a line holds of a station.
struct Station {
    char mac[field_size];
    char time[field_size];
    char signal[field_size];
};

/// Splits a line such as "00:11:22:33:44:55+120+-67+more".
/// @return whether it has three fields
bool parse(char *line, Station &station) {
    char *const fields[] = {station.mac, station.time, station.signal};
    char *rest = nullptr;
    for (char *field : fields) {
        const char *text = strtok_r(line, "+", &rest);
        if (text == nullptr) {
            return false;
        }
        copy_cut(text, field, field_size);
        line = nullptr;
    }
    return true;
}

constexpr json::Key keys[] = {
    {"mac", json::given(0)},
    {"time", json::given(1)},
    {"signal", json::given(2)},
};

void print_lines(FILE *file) {
    char line[128];
    Station station;
    StackText<json::Keys(keys).room() + sizeof(Station)> text;
    json::List list(keys, text);
    json::print("{\"sta\":[");
    while (std::fgets(line, sizeof(line), file) != nullptr) {
        if (parse(line, station)) {
            StackText<12> signal;
            signal.append(long{to_number(station.signal)});
            const std::string_view given[] = {station.mac, station.time, signal.view()};
            list.print(given);
        }
    }
    list.close_in_one_piece("}}\n");
}

}  // namespace

void print_stations(const char *device_address) {
    constexpr char opening[] = "{\"DevStalist\":\n";
    if (!takes_address(device_address)) {
        json::print(opening);
        json::print(json::no_list);
        errno = EINVAL;
        return;
    }
    run_in_shell(trace_command_size, "echo line=%d---- >%s", started, paths::station_trace);
    const unsigned number = 1 + random_below(10);
    run_in_shell(trace_command_size, "echo line=%d--n=%u--devip=%s-- >%s", asking, number, device_address,
                 paths::station_trace);
    StackText<32> path;
    path.append(paths::station_list_start).append(static_cast<unsigned long>(number));
    StationAnswer answer(device_address, path.c_str());
    sync();
    constexpr useconds_t until_written = 100'000;
    sleep_untold(until_written);
    run_in_shell(trace_command_size, "cat %s >%s", path.c_str(), paths::station_trace);
    json::print(opening);
    if (FILE *const lines = answer.open()) {
        print_lines(lines);
    } else {
        json::print(json::no_list);
    }
}

}  // namespace routerdb
