#include "apinventory/apply.h"

#include <cstring>

#include "apinventory/numbers.h"
#include "apinventory/parts.h"

namespace routerdb {

namespace {

using members::Given;
using members::Member;

/// @param of_group  tells what kind of group it is
bool gives(Given given, Table of_group) {
    switch (given) {
        case members::by_none:
            break;
        case members::by_either:
            return true;
        case members::by_wlan_group:
            return of_group == Table::wlan_groups;
        case members::by_zero_config:
        case members::by_zero_config_if_it_suits:
            return of_group == Table::zero_config_groups;
    }
    return false;
}

/// The channel that a radio takes from its group.
std::string_view channel_for(const Part &radio, std::string_view channel) {
    constexpr int last_of_first_radio = 13;
    const int number = number_in(channel);
    if (radio.number == 0) {
        return !channel.empty() && number <= last_of_first_radio ? channel : "0";
    }
    return number > 0 ? channel : "15";
}

/// Puts a text there, with its terminator if there is room for one; what stood behind it stays.
void put(std::string_view text, char *field, std::size_t width) {
    std::memcpy(field, text.data(), text.size());
    if (text.size() < width) {
        field[text.size()] = '\0';
    }
}

void apply(DevInfo &device, const DevInfo &group, Table of_group) {
    for (const Part &part : parts) {
        for (const Member &member : members_of(part)) {
            if (!gives(member.given, of_group)) {
                continue;
            }
            char *const field = field_of(device, part, member);
            if (part.kind == members::Kind::network) {
                std::memset(field, 0, member.width);
            }
            const std::string_view text = text_of(group, part, member);
            put(member.given == members::by_zero_config_if_it_suits ? channel_for(part, text) : text, field,
                member.width);
        }
    }
}

}  // namespace

void apply_group(DevInfo &device, const DevInfo &group) {
    apply(device, group, Table::wlan_groups);
}

void apply_zero_config(DevInfo &device, const DevInfo &group) {
    apply(device, group, Table::zero_config_groups);
}

}  // namespace routerdb
