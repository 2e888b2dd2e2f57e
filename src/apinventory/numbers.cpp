#include "apinventory/numbers.h"

#include <arpa/inet.h>

namespace routerdb {

namespace {

/// A field's text with a terminator, cut at the widest field that holds an address.
struct Terminated {
    explicit Terminated(std::string_view view) { copy_cut(view, text, sizeof(text)); }

    char text[32];
};

}  // namespace

int wlans_in_use(const DevInfo &device) {
    return number_in(field_text(device.Dev_Wlan_Radio_Num));
}

unsigned long address_in_network_order(std::string_view address) {
    return inet_addr(Terminated(address).text);
}

unsigned long address_in_host_order(std::string_view address) {
    return inet_network(Terminated(address).text);
}

}  // namespace routerdb
