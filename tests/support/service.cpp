#include "support/service.h"

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

Service::Service(const std::vector<std::string> &arguments)
    : process_([&arguments] { return become(sqld(arguments)); }) {
    const bool served = eventually([] {
        const Peer peer;
        peer.finish();
        return peer.connected() && peer.receive().empty();
    });
    if (!served || !has_children(0)) {
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

void Service::signal(int number) const {
    kill(process_.id(), number);
}

}  // namespace support
