// What an access point answers when it is asked for its stations.
#include <unistd.h>

#include "fuzz/fuzz.h"
#include "routerdb.h"

const char fuzz::what[] = "answers of access points about their stations: no byte beyond a buffer, in modern JSON";

void fuzz::prepare() {}

namespace {

/// Writes the answer where the program that asks for it would.
void answer(const std::string &command, int output, const std::string &lines) {
    if (command.find("capwapmanage") == std::string::npos) {
        return;
    }
    const std::size_t to = command.find('>');
    if (to != std::string::npos) {
        fuzz::put_file(command.substr(to + 1).c_str(), lines);
    } else {
        fuzz::require(write(output, lines.data(), lines.size()) == static_cast<ssize_t>(lines.size()), "no answer");
    }
}

}  // namespace

void fuzz::run(Input input) {
    const std::string lines = input.take_rest();
    on_command([&lines](const std::string &command, int output) { answer(command, output, lines); });
    GetApDevStaList("10.0.0.1");
    // Deliberate: the exact profile prints texts as they stand.
    require(!build_profile.escapes_json || is_json(printed()), "no JSON: " + printed());
}
