// Texts into fields of records, and their conversion.
#pragma once

#include <cstring>
#include <string_view>

#include "routerdb.h"

namespace bench {

/// Copies a text into a field of `width` bytes, cut so that its terminator fits.
inline void copy_text(std::string_view text, char *field, std::size_t width) {
    const std::size_t size = text.size() < width ? text.size() : width - 1;
    std::memcpy(field, text.data(), size);
    field[size] = '\0';
}

template <std::size_t width>
void copy_text(std::string_view text, char (&field)[width]) {
    copy_text(text, field, width);
}

/// Whether the name of a network, 1 to 8, is kept in GB2312 where a conversion is asked for.
constexpr bool is_converted(int network) {
    return network != 1 && network != 5;
}

/// Converts the SSIDs of a record to GB2312 where that is possible, with a converter for each.
void convert_ssids(DevInfo &device);

/// Converts an SSID that was reported in GB2312.
/// @return `converted`; an empty text if the conversion fails
const char *in_utf8(const char *ssid, char (&converted)[ROUTERDB_CONVERSION_ROOM]);

}  // namespace bench
