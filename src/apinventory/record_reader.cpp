#include "apinventory/record_reader.h"

#include <cstring>

#include "apinventory/device_fields.h"
#include "core/encoding.h"
#include "core/text.h"

namespace routerdb {

namespace {

template <std::size_t count>
void read_fields(const Row &row, const DeviceField (&fields)[count], DevInfo &record) {
    for (const DeviceField &field : fields) {
        row.copy(field.column, reinterpret_cast<char *>(&record) + field.offset, field.width);
    }
}

/// Replaces the text by its conversion; one that cannot be converted stays.
void convert_ssid(Utf8ToGb2312 &converter, char (&ssid)[sizeof(DevWlanEntry::Ssid)]) {
    char converted[ROUTERDB_CONVERSION_ROOM];
    // The terminator is converted too, so that nothing has to be cleared first.
    if (convert(converter, ssid, std::strlen(ssid) + 1, converted, 0) == 0) {
        copy_cut(converted, ssid, sizeof(ssid));
    }
}

void read_wlans(const Row &row, const Layout &layout, std::uint8_t WlanField::*position, Ssids ssids, DevInfo &record) {
    Utf8ToGb2312 converter;
    for (unsigned number = 0; number < ROUTERDB_WLANS; ++number) {
        DevWlanEntry &wlan = record.wlan[number];
        for (const WlanField &field : wlan_fields) {
            if (field.*position != no_column) {
                const int column = layout.first_wlan + layout.wlan_columns * static_cast<int>(number) + field.*position;
                row.copy(column, reinterpret_cast<char *>(&wlan) + field.offset, field.width);
            }
        }
        if (ssids == Ssids::in_gb2312 && !leads_its_radio(number)) {
            convert_ssid(converter, wlan.Ssid);
        }
    }
}

void read_radios(const Row &row, const Layout &layout, std::uint8_t RadioField::*position, DevInfo &record) {
    char *const bytes = reinterpret_cast<char *>(&record);
    for (const RadioField &field : radio_fields) {
        if (field.*position != no_column) {
            row.copy(field.*position, bytes + field.offset, radio_width);
            row.copy(field.*position + layout.second_radio, bytes + field.offset + second_radio, radio_width);
        }
    }
}

}  // namespace

void read_device(const Row &row, Ssids ssids, DevInfo &device) {
    device.Dev_Sn = static_cast<std::uint32_t>(row.unsigned_number(0));
    read_fields(row, device_fields, device);
    read_wlans(row, device_layout, &WlanField::device, ssids, device);
    read_radios(row, device_layout, &RadioField::device, device);
}

void read_group(const Row &row, Ssids ssids, DevInfo &group) {
    read_fields(row, group_fields, group);
    read_wlans(row, group_layout, &WlanField::group, ssids, group);
    read_radios(row, group_layout, &RadioField::group, group);
}

void read_zero_config_group(const Row &row, Ssids ssids, DevInfo &group) {
    read_group(row, ssids, group);
    read_fields(row, zero_config_fields, group);
}

}  // namespace routerdb
