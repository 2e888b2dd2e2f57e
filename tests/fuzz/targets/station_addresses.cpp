// Addresses of access points, which get into commands.
#include <arpa/inet.h>

#include "fuzz/fuzz.h"
#include "routerdb.h"

const char fuzz::what[] = "addresses of access points: in modern none but an IPv4 one gets into a command";

void fuzz::prepare() {}

void fuzz::run(Input input) {
    const std::string text = input.take_rest();
    Argument address(text.substr(0, text.find('\0')));
    in_addr number{};
    const bool is_address = inet_pton(AF_INET, address.text(), &number) == 1;
    if (!build_profile.keeps_addresses_from_shell) {
        allow_foreign_commands();  // Deliberate: in exact callers check the address.
    }
    GetApDevStaList(address.text());
    require(!build_profile.keeps_addresses_from_shell || is_address == !commands().empty(),
            is_address ? "an address is refused" : "a command with what is no address");
    constexpr std::size_t longest_command = 255;
    for (const std::string &command : commands()) {
        require(command.size() < longest_command, "a command that is cut");
    }
}
