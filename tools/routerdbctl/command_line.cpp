#include "command_line.h"

#include <getopt.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "choices.h"
#include "meaning.h"
#include "output.h"

namespace ctl {

namespace {

enum Number : int {
    number_output,
    number_quiet,
    number_no_header,
    number_color,
    number_timeout,
    number_dry_run,
    number_yes,
    number_help,
    number_version,
    number_where,
    number_fields,
    number_sort,
    number_limit,
    number_from,
    number_to,
    number_if,
    number_all,
    number_force,
    number_check,
    number_merge,
    number_replace,
    number_json,
    number_of_options
};

}  // namespace

// In the order of their numbers.
// clang-format off
extern const OptionText option_texts[] = {
    {"output",    "FORMAT", "table, json, jsonl, tsv, set (lines that make the rules again), sql", 0, 'o'},
    {"quiet",     nullptr,  "no remarks on standard error, errors only", 0, 'q'},
    {"no-header", nullptr,  "no line with the names of columns", 0, '\0'},
    {"color",     "WHEN",   "auto, never or always", 0, '\0'},
    {"timeout",   "SECONDS", "how long to wait for others; 10 by default", 0, '\0'},
    {"dry-run",   nullptr,  "print what would be done, and do nothing", 0, '\0'},
    {"yes",       nullptr,  "do not ask", 0, 'y'},
    {"help",      nullptr,  "how a command is used", 0, 'h'},
    {"version",   nullptr,  "versions of this program and of the library", 0, 'V'},
    {"where",     "FIELD=VALUE", "rows that have it; several must all hold", option_where, '\0'},
    {"fields",    "A,B",    "these columns only", option_fields, '\0'},
    {"sort",      "FIELD",  "in this order; -FIELD for the other way round", option_sort, '\0'},
    {"limit",     "N",      "so many rows at most", option_limit, '\0'},
    {"from",      "FILE",   "lines of FIELD=VALUE, \"-\" for standard input; for an upgrade, the old database", option_from, '\0'},
    {"to",        "FILE",   "the database whose schema it gets, in place of the factory copy", option_to, '\0'},
    {"if",        "FIELD=OLD", "only while the field still has this value", option_if, '\0'},
    {"all",       nullptr,  "all rows of the table", option_all, '\0'},
    {"force",     nullptr,  "though a check speaks against it", option_force, '\0'},
    {"check",     nullptr,  "look only, and change nothing", option_check, '\0'},
    {"merge",     nullptr,  "keep rows that the file does not have (as without it)", option_merge, '\0'},
    {"replace",   nullptr,  "remove rows that the file does not have", option_replace, '\0'},
    {"json",      nullptr,  "for bug reports, as JSON, without keys and passwords", option_json, '\0'},
};
// clang-format on
static_assert(sizeof(option_texts) / sizeof(*option_texts) == number_of_options);

extern const OptionText *const option_texts_end = option_texts + number_of_options;

namespace {

/// Finds a word in a list of them, in which its number is its meaning.
template <std::size_t count>
Status choose(const char *what, const char *word, const char (&words)[count][10], unsigned &number) {
    Choices choices(what, word);
    for (const auto &one : words) {
        choices.offer(one, one);
    }
    const char *found = nullptr;
    const Status status = choices.decide(found);
    number = status == Status::done ? static_cast<unsigned>(found - words[0]) / unsigned{sizeof(words[0])} : 0;
    return status;
}

Status read_format(Options &options) {
    constexpr char words[][10] = {"table", "json", "jsonl", "tsv", "set", "sql"};
    unsigned number = 0;
    const Status status = choose("format", optarg, words, number);
    options.format = static_cast<Format>(number + 1);
    return status;
}

Status read_color(Options &options) {
    constexpr char words[][10] = {"auto", "never", "always"};
    unsigned number = 0;
    const Status status = choose("choice of colours", optarg, words, number);
    options.color = static_cast<Color>(number);
    return status;
}

Status read_count(const char *name, unsigned &count) {
    std::int32_t number = 0;
    if (!read_number(optarg, number) || number < 1 || number > 86'400) {
        return fail(Status::usage, "--%s takes a number from 1 to 86400, not \"%s\"", name, optarg);
    }
    count = static_cast<unsigned>(number);
    return Status::done;
}

Status add_condition(Options &options) {
    if (options.conditions == most_conditions) {
        return fail(Status::usage, "--where may be said %d times", most_conditions);
    }
    options.where[options.conditions++] = optarg;
    return Status::done;
}

/// Takes an option that has an argument.
Status take_argument(int number, Options &options) {
    switch (number) {
        case number_output:
            return read_format(options);
        case number_color:
            return read_color(options);
        case number_timeout:
            return read_count("timeout", options.seconds);
        case number_limit:
            return read_count("limit", options.limit);
        case number_where:
            return add_condition(options);
        default:
            break;
    }
    const char *&place = number == number_fields ? options.fields
                         : number == number_sort ? options.sort
                         : number == number_from ? options.from
                         : number == number_to   ? options.to
                                                 : options.expected;
    place = optarg;
    return Status::done;
}

struct Wishes {
    bool help;
    bool version;
};

Status take_option(int number, Options &options, Wishes &wishes) {
    const OptionText &text = option_texts[number];
    options.given |= text.bit;
    wishes.help = wishes.help || number == number_help;
    wishes.version = wishes.version || number == number_version;
    options.no_header = options.no_header || number == number_no_header;
    options.is_dry_run = options.is_dry_run || number == number_dry_run;
    options.yes = options.yes || number == number_yes;
    if (number == number_quiet) {
        keep_quiet(true);
    }
    return text.argument != nullptr ? take_argument(number, options) : Status::done;
}

/// The options as getopt has them: a number for each, whether it was typed as a letter or as a word.
struct ForGetopt {
    char letters[2 * number_of_options + 2] = ":";
    option words[number_of_options + 1]{};

    ForGetopt() {
        std::size_t length = 1;
        for (int number = 0; number < number_of_options; ++number) {
            const OptionText &text = option_texts[number];
            words[number] = {text.name, text.argument != nullptr ? required_argument : no_argument, nullptr,
                             256 + number};
            if (text.letter != '\0') {
                letters[length++] = text.letter;
                letters[length] = text.argument != nullptr ? ':' : '\0';
                length += text.argument != nullptr ? 1 : 0;
            }
        }
    }
};

int number_of(int found) {
    for (int number = 0; number < number_of_options; ++number) {
        if (found == 256 + number || found == option_texts[number].letter) {
            return number;
        }
    }
    return number_of_options;
}

Status fail_option(int found, char **argv) {
    return fail(Status::usage, "%s %s; \"routerdbctl help\" lists the options", argv[optind - 1],
                found == ':' ? "takes a value" : "is no option, or not so");
}

Status read_options(int argc, char **argv, Options &options, Wishes &wishes) {
    const ForGetopt forms;
    opterr = 0;
    for (int found = 0; (found = getopt_long(argc, argv, forms.letters, forms.words, nullptr)) != -1;) {
        const int number = number_of(found);
        const Status status =
            number == number_of_options ? fail_option(found, argv) : take_option(number, options, wishes);
        if (status != Status::done) {
            return status;
        }
    }
    return Status::done;
}

/// Whether a command takes what it was given.
Status check_use(const Command &command, const Invocation &invocation) {
    for (const OptionText *text = option_texts; text != option_texts_end; ++text) {
        if (invocation.options.has(static_cast<OptionBit>(text->bit)) && (command.options & text->bit) == 0) {
            return fail(Status::usage, "%s%s%s takes no --%s", command.group, *command.name != '\0' ? " " : "",
                        command.name, text->name);
        }
    }
    if (invocation.count < command.least || invocation.count > command.most) {
        return fail(Status::usage, "usage: routerdbctl %s%s%s %s", command.group, *command.name != '\0' ? " " : "",
                    command.name, command.arguments);
    }
    return Status::done;
}

const Command *command_of(Status (*run)(Invocation &invocation)) {
    const Command *command = commands;
    while (command->run != run) {
        ++command;
    }
    return command;
}

}  // namespace

Status find_command(char **words, int &count, const Command *&command) {
    Choices groups("command", words[0]);
    for (const Command *one = commands; one != commands_end; ++one) {
        if (one == commands || std::strcmp(one->group, one[-1].group) != 0) {
            groups.offer(one->group, one);
        }
    }
    Status status = groups.decide(command);
    if (command == nullptr || *command->name == '\0') {
        count = 1;
        return status;
    }
    const char *const group = command->group;
    if (count < 2) {
        command = nullptr;
        return fail(Status::usage, "usage: routerdbctl %s COMMAND; \"routerdbctl help %s\" lists them", group, group);
    }
    char what[32];
    std::snprintf(what, sizeof(what), "%s command", group);
    Choices names(what, words[1]);
    for (const Command *one = command; one != commands_end && std::strcmp(one->group, command->group) == 0; ++one) {
        names.offer(one->name, one);
    }
    count = 2;
    return names.decide(command);
}

Status read_command_line(int argc, char **argv, Invocation &invocation, const Command *&command) {
    Wishes wishes{};
    Status status = read_options(argc, argv, invocation.options, wishes);
    if (status != Status::done) {
        return status;
    }
    choose_colors(invocation.options.color);
    invocation.arguments = argv + optind;
    invocation.count = argc - optind;
    if (wishes.help || wishes.version || invocation.count == 0) {
        command = command_of(wishes.version ? show_version : help);
        return wishes.help || wishes.version ? Status::done : Status::usage;
    }
    int words = invocation.count;
    status = find_command(invocation.arguments, words, command);
    if (command == nullptr) {
        return status;
    }
    invocation.arguments += words;
    invocation.count -= words;
    return check_use(*command, invocation);
}

}  // namespace ctl
