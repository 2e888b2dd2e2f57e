// Text members of records as data: comparisons and copies walk arrays of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/text.h"
#include "routerdb.h"

namespace routerdb {

/// A text member, by its place from the start of a record, a network, or the first radio's part of a record.
struct Member {
    std::uint16_t offset;
    std::uint8_t width;
};

inline std::string_view text_of(const void *base, const Member &member) {
    return field_text(static_cast<const char *>(base) + member.offset, member.width);
}

/// Whether one of the members holds different texts.
template <std::size_t count>
bool any_differs(const Member (&members)[count], const void *a, const void *b) {
    for (const Member &member : members) {
        if (text_of(a, member) != text_of(b, member)) {
            return true;
        }
    }
    return false;
}

/// Gives a member a text, with its terminator if there is room for one; what the member held behind it stays.
inline void give_text(const Member &member, void *to, std::string_view text) {
    char *field = static_cast<char *>(to) + member.offset;
    std::memcpy(field, text.data(), text.size());
    if (text.size() < member.width) {
        field[text.size()] = '\0';
    }
}

template <std::size_t count>
void copy_members(const Member (&members)[count], void *to, const void *from) {
    for (const Member &member : members) {
        give_text(member, to, text_of(from, member));
    }
}

}  // namespace routerdb

#define MEMBER_OF(Type, member) \
    { offsetof(Type, member), sizeof(Type::member) }
#define DEVICE_MEMBER(member) MEMBER_OF(DevInfo, member)
#define WLAN_MEMBER(member) MEMBER_OF(DevWlanEntry, member)
#define RADIO_MEMBER(member) MEMBER_OF(DevInfo, Dev_Wlan_##member)
