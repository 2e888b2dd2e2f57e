#include "harness/texts.h"

#include <iconv.h>

#include "harness/device_columns.h"

namespace bench {

void convert_ssids(DevInfo &device) {
    for (const unsigned network : converted_networks) {
        char(&ssid)[sizeof(DevWlanEntry::Ssid)] = device.wlan[network].Ssid;
        char converted[2 * sizeof(ssid)];
        char *in = ssid;
        char *out = converted;
        std::size_t in_left = std::strlen(ssid) + 1;
        std::size_t out_left = sizeof(converted);
        const iconv_t converter = iconv_open("gb2312", "utf-8");
        if (iconv(converter, &in, &in_left, &out, &out_left) != static_cast<std::size_t>(-1)) {
            copy_text(converted, ssid);
        }
        iconv_close(converter);
    }
}

}  // namespace bench
