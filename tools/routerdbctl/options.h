// What the command line says besides the command and its arguments.
#pragma once

#include <cstdint>

namespace ctl {

enum class Format : std::uint8_t { standard, table, json, jsonl, tsv, set, sql };
enum class Color : std::uint8_t { automatic, never, always };

/// An option that some commands take. Each is a bit of a command's set.
enum OptionBit : std::uint32_t {
    option_where = 1U << 0U,
    option_fields = 1U << 1U,
    option_sort = 1U << 2U,
    option_limit = 1U << 3U,
    option_from = 1U << 4U,
    option_to = 1U << 5U,
    option_if = 1U << 6U,
    option_all = 1U << 7U,
    option_force = 1U << 8U,
    option_check = 1U << 9U,
    option_merge = 1U << 10U,
    option_replace = 1U << 11U,
    option_json = 1U << 12U,
};

inline constexpr int most_conditions = 8;

struct Options {
    Format format = Format::standard;
    Color color = Color::automatic;
    bool no_header = false;
    bool is_dry_run = false;
    bool yes = false;
    unsigned seconds = 0;  // 0 for what the command takes by default
    std::uint32_t given = 0;

    int conditions = 0;
    const char *where[most_conditions]{};
    const char *fields = nullptr;
    const char *sort = nullptr;
    unsigned limit = 0;
    const char *from = nullptr;
    const char *to = nullptr;
    const char *expected = nullptr;  // --if

    bool has(OptionBit option) const { return (given & option) != 0; }
};

/// What a command is run with.
struct Invocation {
    Options options;
    char **arguments;
    int count;

    unsigned seconds() const { return options.seconds != 0 ? options.seconds : 10; }
};

}  // namespace ctl
