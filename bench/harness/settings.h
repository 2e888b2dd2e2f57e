// Which columns of `DevInfo` are written, with their values.
#pragma once

#include <vector>

#include "apinventory/places.h"
#include "harness/texts.h"
#include "routerdb.h"

namespace bench {

/// What DB_UpdateInfo writes of an access point with two radios: its address, and what is set for networks and radios.
const std::vector<places::Place> &configured_places();

/// What DB_addinfo writes of one: all that it reports, which leaves out its state and its group.
const std::vector<places::Place> &reported_places();

/// The address as a number, in digits.
struct AddressNumber {
    explicit AddressNumber(const DevInfo &device);
    char digits[24];
};

inline const char *text_in(const DevInfo &device, const places::Place &place) {
    return reinterpret_cast<const char *>(&device) + place.offset;
}

/// Calls `write` with each column that DB_UpdateInfo writes, and its value.
template <typename Write>
void for_each_configured(const DevInfo &device, Write write) {
    for (const places::Place &place : configured_places()) {
        write(place.name.c_str(), text_in(device, place));
    }
    write("Dev_IPSUM", AddressNumber(device).digits);
}

/// Calls `write` with each column that DB_addinfo writes, and its value: names of networks are converted.
template <typename Write>
void for_each_reported(const DevInfo &device, Write write) {
    char converted[ROUTERDB_CONVERSION_ROOM];
    for (const places::Place &place : reported_places()) {
        const bool converts = place.wlan != 0 && place.width == sizeof(DevWlanEntry::Ssid) && is_converted(place.wlan);
        const char *const text = text_in(device, place);
        write(place.name.c_str(), converts ? in_utf8(text, converted) : text);
    }
    write("Dev_IPSUM", AddressNumber(device).digits);
}

}  // namespace bench
