#include "harness/leases.h"

#include <unistd.h>

#include <csignal>
#include <fstream>

#include "harness/desk.h"

namespace bench {

Leases::Leases() {
    pid_t server = 0;
    if (std::ifstream(paths::dhcp_server_pid) >> server) {
        kill(server, SIGUSR1);
    }
    usleep(1000);
    std::ifstream file(paths::text_leases);
    std::string expiry;
    std::string mac;
    std::string ip;
    std::string host_name;
    std::string client;
    while (file >> expiry >> mac >> ip >> host_name >> client) {
        for (char &letter : mac) {
            letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
        }
        host_names_[mac] = host_name;
    }
}

const char *Leases::host_name(const char *mac) const {
    const auto lease = host_names_.find(mac);
    return lease != host_names_.end() ? lease->second.c_str() : "";
}

}  // namespace bench
