// Update statements as arrays of fragments, such as " Dev_Wlan1_Ssid='...',". Blanks and commas are irregular, and the
// statements are compared whole by those who trace them: each fragment says its own.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/encoding.h"
#include "core/text.h"
#include "routerdb.h"

namespace routerdb {

enum class Lead : std::uint8_t { blank, nothing };
enum class Tail : std::uint8_t { comma, comma_blank, blank };  // behind the closing quote

/// What stands between the quotes.
enum class Value : std::uint8_t {
    text,            // the member
    address_number,  // the member, an IPv4 address, as a number
    reported_ssid,   // the member converted from GB2312, but for the first network of each radio
    power,           // the member; without a number from 10 to 100 the fragment is left out
};

/// What stands between the quotes and around them.
struct Content {
    Lead lead : 1;
    Tail tail : 2;
    Value value : 2;
    std::uint8_t width;
    std::uint16_t offset;  // of the member, from the base of its scope
};

/// A row has its column's name in itself: a pointer would take a relocation each time the library is loaded.
template <std::size_t room>
struct Fragment {
    char column[room];
    Content content;
};

using DeviceFragment = Fragment<24>;
using WlanFragment = Fragment<16>;
using RadioFragment = Fragment<18>;

/// What a list of fragments is about, and what it puts around each column's name: "Dev_Wlan3_" before it for a
/// network, "Dev_Wlan_" before and "_sec" behind it for the second radio.
struct Scope {
    const void *base;
    const char *prefix;
    unsigned wlan;  // number of the network, from 1; 0 for none
    const char *suffix;
    bool doubles_quotes;
    Gb2312ToUtf8 *converter;  // of the record; null where nothing is converted
};

void append_fragment(Text &sql, const char *column, Content content, const Scope &scope);

template <std::size_t room>
void append_fragment(Text &sql, const Fragment<room> &fragment, const Scope &scope) {
    append_fragment(sql, fragment.column, fragment.content, scope);
}

/// An array of fragments, whatever room its rows have for names: one loop serves all.
struct FragmentList {
    const char *first;   // the name in the first row
    std::uint8_t room;   // for a name; the content stands behind it
    std::uint8_t count;  // of rows

    template <std::size_t room_of_names, std::size_t count_of_rows>
    constexpr FragmentList(const Fragment<room_of_names> (&rows)[count_of_rows])
        : first(rows[0].column), room(room_of_names), count(count_of_rows) {
        static_assert(offsetof(Fragment<room_of_names>, content) == room_of_names);
    }
};

void append_fragments(Text &sql, const FragmentList &fragments, const Scope &scope);

/// The scope of a record as a whole.
/// @param prefix  "WlanGroup_", or nothing in `DevInfo`
Scope scope_of(const DevInfo &record, const char *prefix, bool doubles_quotes);

/// The same for network `number`, from 0, with a converter where SSIDs are converted, and for the first and the second
/// radio.
/// @param prefix  "Dev_Wlan" or "WlanGroup_Wlan", with "_" for a radio
Scope scope_of_wlan(const DevInfo &record, const char *prefix, unsigned number, bool doubles_quotes,
                    Gb2312ToUtf8 *converter);
Scope scope_of_radio(const DevInfo &record, const char *prefix, bool second, bool doubles_quotes);

}  // namespace routerdb

// Rows of fragment arrays: the member gives place and width, and the column's name where the two are alike.
#define FRAGMENT(Type, member, column, lead, value, tail)                                             \
    {                                                                                                 \
        column, {                                                                                     \
            routerdb::Lead::lead, routerdb::Tail::tail, routerdb::Value::value, sizeof(Type::member), \
                offsetof(Type, member)                                                                \
        }                                                                                             \
    }
#define DEVICE(lead, member, tail) FRAGMENT(DevInfo, member, #member, lead, text, tail)
#define DEVICE_AS(lead, member, column, tail) FRAGMENT(DevInfo, member, column, lead, text, tail)
#define WLAN(lead, member, tail) FRAGMENT(DevWlanEntry, member, #member, lead, text, tail)
#define RADIO(lead, member, tail) FRAGMENT(DevInfo, Dev_Wlan_##member, #member, lead, text, tail)
#define RADIO_AS(lead, member, column, tail) FRAGMENT(DevInfo, Dev_Wlan_##member, column, lead, text, tail)
