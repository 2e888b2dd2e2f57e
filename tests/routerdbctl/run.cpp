#include "run.h"

#include <sys/mman.h>
#include <unistd.h>

#include <sstream>

#include "support/process.h"
#include "support/streams.h"

namespace support {

namespace {

/// Puts a text where standard input is.
bool take_input(const std::string &text) {
    const int file = memfd_create("input", MFD_CLOEXEC);
    const auto size = static_cast<ssize_t>(text.size());
    return file >= 0 && write(file, text.data(), text.size()) == size && lseek(file, 0, SEEK_SET) == 0 &&
           dup2(file, STDIN_FILENO) == STDIN_FILENO;
}

}  // namespace

Result run(std::vector<std::string> arguments, std::string input) {
    arguments.insert(arguments.begin(), ROUTERDBCTL);
    Result result{};
    const Streams::Text streams = streams_of([&] {
        Process process([&] { return take_input(input) && become(arguments); });
        result.status = process.wait();
    });
    result.output = streams.output;
    result.error = streams.error;
    return result;
}

std::vector<std::string> lines_of(const std::string &text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace support
