#include "harness/texts.h"

#include <iconv.h>

namespace bench {

namespace {

/// @param in_length  counts the terminator
bool convert(const char *to, const char *from, const char *in, std::size_t in_length, char *out, std::size_t room) {
    const iconv_t converter = iconv_open(to, from);
    char *next = const_cast<char *>(in);
    const bool converted = iconv(converter, &next, &in_length, &out, &room) != static_cast<std::size_t>(-1);
    iconv_close(converter);
    return converted;
}

}  // namespace

void convert_ssids(DevInfo &device) {
    for (int network = 1; network <= ROUTERDB_WLANS; ++network) {
        char(&ssid)[sizeof(DevWlanEntry::Ssid)] = device.wlan[network - 1].Ssid;
        char converted[2 * sizeof(ssid)];
        if (is_converted(network) &&
            convert("gb2312", "utf-8", ssid, std::strlen(ssid) + 1, converted, sizeof(converted))) {
            copy_text(converted, ssid);
        }
    }
}

const char *in_utf8(const char *ssid, char (&converted)[ROUTERDB_CONVERSION_ROOM]) {
    return convert("utf-8", "gb2312", ssid, std::strlen(ssid) + 1, converted, sizeof(converted)) ? converted : "";
}

}  // namespace bench
