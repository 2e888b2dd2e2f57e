#include "support/service.h"

#include <unistd.h>

#include <csignal>
#include <fstream>
#include <stdexcept>

#include "support/peer.h"

namespace support {

std::vector<std::string> sqld(const std::vector<std::string> &arguments) {
    std::vector<std::string> words{ROUTERDB_SQLD};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return words;
}

std::string told(const std::string &outcome) {
    return "28 request " + outcome + " (user " + std::to_string(getuid()) + ", process " + std::to_string(getpid()) +
           ")";
}

Service::Service(const std::vector<std::string> &arguments)
    : process_([&arguments] { return become(sqld(arguments)); }) {
    const bool served = eventually([this] {
        const Peer peer;
        peer.finish();
        // One that was killed a moment ago may still listen.
        return peer.connected() && peer.listener() == process_.id() && peer.receive().empty();
    });
    if (!served) {
        throw std::runtime_error("the service does not start");
    }
}

std::vector<pid_t> Service::children() const {
    const std::string id = std::to_string(process_.id());
    std::ifstream file("/proc/" + id + "/task/" + id + "/children");
    std::vector<pid_t> children;
    for (pid_t child = 0; file >> child;) {
        children.push_back(child);
    }
    return children;
}

bool Service::has_children(std::size_t count) const {
    return eventually([&] { return children().size() == count; });
}

void Service::collect_all() {
    for (int n = 0; n < 2; ++n) {  // when the first one has been heard, the service listens to the others once more
        const Peer peer;
        peer.send(std::string(12, '\xff'));  // too long for any request
        peer.receive();
    }
}

void Service::signal(int number) const {
    kill(process_.id(), number);
}

}  // namespace support
