// routerdbctl: the companion of librouterdb for the command line.
#include <clocale>
#include <cstdio>

#include "command_line.h"

int main(int argc, char **argv) {
    using ctl::Status;
    std::setlocale(LC_CTYPE, "C.UTF-8");  // how wide characters are
    ctl::Invocation invocation{};
    const ctl::Command *command = nullptr;
    Status status = ctl::read_command_line(argc, argv, invocation, command);
    if (status == Status::done) {
        status = command->run(invocation);
    } else if (argc < 2) {
        std::fputs("usage: routerdbctl [OPTION]... COMMAND; \"routerdbctl help\" lists them\n", stderr);
    }
    if (std::fflush(stdout) != 0 && status == Status::done) {
        status = ctl::fail(Status::unreachable, "cannot write to standard output");
    }
    return static_cast<int>(status);
}
