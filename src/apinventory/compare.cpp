#include "apinventory/compare.h"

#include <cstdio>

#include "apinventory/numbers.h"
#include "apinventory/parts.h"
#include "core/call_errno.h"

namespace routerdb {

namespace {

using members::Kind;
using members::Member;

/// Whether a part counts for an access point with so many networks in use.
bool is_compared(const Part &part, int in_use) {
    constexpr int of_one_radio = 4;
    constexpr int of_two_radios = 8;
    switch (part.kind) {
        case Kind::device:
            break;
        case Kind::network:
            return part.number < of_one_radio || in_use != of_one_radio;
        case Kind::radio:
            return part.number == 0 || in_use == of_two_radios;
    }
    return true;
}

/// WEP and key texts count when the group's security uses them.
bool uses_wep(const DevWlanEntry &network) {
    const int cipher = number_in(field_text(network.Securitycipher));
    return cipher == 1 || cipher == 2;
}

bool uses_key(const DevWlanEntry &network) {
    return number_in(field_text(network.Authmode)) == 1;
}

bool counts(const Part &part, const Member &member, const DevInfo &group, Table of_group) {
    switch (member.compared) {
        case members::never:
            break;
        case members::always:
            return true;
        case members::under_wep:
            return uses_wep(group.wlan[part.number]);
        case members::under_key:
            return uses_key(group.wlan[part.number]);
        case members::against_zero_config:
            return of_group == Table::zero_config_groups;
    }
    return false;
}

/// @param of_group  tells what kind of group it is
bool differs(const DevInfo &device, const DevInfo &group, Table of_group) {
    const int in_use = wlans_in_use(device);
    for (const Part &part : parts) {
        if (!is_compared(part, in_use)) {
            continue;
        }
        for (const Member &member : members_of(part)) {
            if (text_of(device, part, member) != text_of(group, part, member) &&
                counts(part, member, group, of_group)) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

bool differs_from_group(const DevInfo &device, const DevInfo &group) {
    if (number_in(field_text(device.Dev_Wlan_GroupId)) != number_in(field_text(group.Dev_Wlan_GroupId))) {
        const CallErrno untold;  // what becomes of the output is not looked at
        std::printf("%s %d\n", "CompareDevInfoWithGroupInfo", 6054);
        return true;
    }
    return differs(device, group, Table::wlan_groups);
}

bool differs_from_zero_config(const DevInfo &device, const DevInfo &group) {
    return differs(device, group, Table::zero_config_groups);
}

}  // namespace routerdb
