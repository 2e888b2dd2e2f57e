// Texts into fields of records, and their conversion.
#pragma once

#include <cstddef>
#include <cstring>

#include "routerdb.h"

namespace bench {

/// Copies a text into a field of `width` bytes, cut so that its terminator fits.
inline void copy_text(const char *text, std::size_t length, char *field, std::size_t width) {
    const std::size_t size = length < width ? length : width - 1;
    std::memcpy(field, text, size);
    field[size] = '\0';
}

template <std::size_t width>
void copy_text(const char *text, char (&field)[width]) {
    copy_text(text, std::strlen(text), field, width);
}

/// Converts the SSIDs of a record to GB2312 where that is possible, with a converter for each.
void convert_ssids(DevInfo &device);

/// Converts an SSID that was reported in GB2312.
/// @return `converted`; an empty text if the conversion fails
const char *in_utf8(const char *ssid, char (&converted)[ROUTERDB_CONVERSION_ROOM]);

}  // namespace bench
