// Help, completion and versions: what the tables of commands and options say.
#include <cstdio>
#include <cstring>

#include "command_line.h"
#include "output.h"
#include "shared/library_note.h"
#include "tables.h"

namespace ctl {

namespace {

const char *space_before(const char *word) {
    return *word != '\0' ? " " : "";
}

void print_usage(const Command &command) {
    std::printf("usage: routerdbctl %s%s%s%s%s", command.group, space_before(command.name), command.name,
                space_before(command.arguments), command.arguments);
    std::puts(command.options != 0 ? " [OPTION]..." : "");
    std::printf("  %s\n", command.help);
}

void print_option(const OptionText &option) {
    char form[32];
    const bool has_letter = option.letter != '\0';
    std::snprintf(form, sizeof(form), "%c%c%c --%s%s%s", has_letter ? '-' : ' ', has_letter ? option.letter : ' ',
                  has_letter ? ',' : ' ', option.name, option.argument != nullptr ? " " : "",
                  option.argument != nullptr ? option.argument : "");
    std::printf("  %-25s %s\n", form, option.help);
}

void print_options(std::uint32_t bits) {
    for (const OptionText *option = option_texts; option != option_texts_end; ++option) {
        if (bits == 0 ? option->bit == 0 : (option->bit & bits) != 0) {
            print_option(*option);
        }
    }
}

void print_overview() {
    std::puts("usage: routerdbctl [OPTION]... COMMAND\nReads and changes the configuration databases of the router.\n");
    for (const Command *command = commands; command != commands_end; ++command) {
        char form[64];
        std::snprintf(form, sizeof(form), "%s%s%s%s%s", command->group, space_before(command->name), command->name,
                      space_before(command->arguments), command->arguments);
        std::printf("  %-37s %s\n", form, command->help);
    }
    std::puts(
        "\nCommands and tables may be shortened as long as they are clear. \"table list\" has the tables,\n"
        "\"table show TABLE\" the fields of one. Beside its fields a rule takes days=mon-fri, hours=20:30-23:59,\n"
        "group=\"School nights\" and group=#3.\n");
    print_options(0);
    std::puts(
        "\nThe exit status is 0 when it was done, 1 when it was refused, differs or is held, 2 for a wrong use,\n"
        "3 when it is not there, 4 when service or database cannot be reached, 5 when nobody can tell.");
}

Status print_group(const char *group) {
    const char *before = "";
    for (const Command *command = commands; command != commands_end; ++command) {
        if (std::strcmp(command->group, group) == 0) {
            std::fputs(before, stdout);
            print_usage(*command);
            before = "\n";
        }
    }
    return Status::done;
}

constexpr char completion[] =
    "_routerdbctl() {\n"
    "    local before=\"${COMP_WORDS[*]:1:COMP_CWORD-1}\" word=${COMP_WORDS[COMP_CWORD]}\n"
    "    case $before in\n";

void print_case(const char *pattern) {
    std::printf("    %s) COMPREPLY=($(compgen -W '", pattern);
}

}  // namespace

Status help(Invocation &invocation) {
    if (invocation.count == 0) {
        print_overview();
        return Status::done;
    }
    const Command *command = nullptr;
    if (invocation.count == 1) {
        char any[] = "";
        char *words[] = {invocation.arguments[0], any};
        int count = 1;
        for (const Command *one = commands; one != commands_end; ++one) {
            if (std::strcmp(one->group, words[0]) == 0 && *one->name != '\0') {
                return print_group(one->group);
            }
        }
        const Status status = find_command(words, count, command);
        if (status != Status::done) {
            return status;
        }
    } else {
        int count = invocation.count;
        const Status status = find_command(invocation.arguments, count, command);
        if (status != Status::done) {
            return status;
        }
    }
    print_usage(*command);
    print_options(command->options | 1U << 31U);
    return Status::done;
}

Status complete(Invocation &invocation) {
    if (std::strcmp(invocation.arguments[0], "bash") != 0) {
        return fail(Status::usage, "there is completion for bash alone");
    }
    std::fputs(completion, stdout);
    print_case("''");
    const char *last = "";
    for (const Command *command = commands; command != commands_end; last = command->group, ++command) {
        if (std::strcmp(last, command->group) != 0) {
            std::printf("%s ", command->group);
        }
    }
    std::puts("' -- \"$word\")) ;;");
    for (const Command *command = commands; command != commands_end; ++command) {
        if (*command->name == '\0' || (command != commands && std::strcmp(command[-1].group, command->group) == 0)) {
            continue;
        }
        print_case(command->group);
        for (const Command *one = command; one != commands_end && std::strcmp(one->group, command->group) == 0; ++one) {
            std::printf("%s ", one->name);
        }
        std::puts("' -- \"$word\")) ;;");
    }
    print_case("'table show' | 'rule '* | export* | diff*");
    for (const Table &table : tables) {
        std::printf("%s ", table.name);
    }
    std::puts(
        "' -- \"$word\")) ;;\n    *) COMPREPLY=() ;;\n    esac\n}\ncomplete -o default -F _routerdbctl routerdbctl");
    return Status::done;
}

Status show_version(Invocation &) {
    const char *const note = tools::library_note();
    std::printf("routerdbctl " ROUTERDB_VERSION "\nlibrouterdb %s\n", note != nullptr ? note : "without a note");
    return Status::done;
}

}  // namespace ctl
