#include "harness/settings.h"

#include <arpa/inet.h>

#include <algorithm>
#include <cstdio>
#include <initializer_list>
#include <string_view>

namespace bench {

namespace {

using places::Place;

bool is_one_of(const Place &place, std::initializer_list<std::string_view> names) {
    return std::find(names.begin(), names.end(), place.name) != names.end();
}

bool is_configured(const Place &place) {
    if (place.wlan != 0) {
        return place.name != "Dev_Wlan" + std::to_string(place.wlan) + "_Bssid";
    }
    if (place.radio != 0) {
        return !is_one_of(place, {"Dev_Wlan_Rate", "Dev_Wlan_MaxTxpower", "Dev_Wlan_Current_Channel",
                                  "Dev_Wlan_Sta_Num", "Dev_Wlan_Rate_sec", "Dev_Wlan_MaxTxpower_sec",
                                  "Dev_Wlan_Current_Channel_sec", "Dev_Wlan_Sta_Num_sec"});
    }
    return is_one_of(place, {"Dev_IP_Assign", "Dev_Ipaddress", "Dev_Subnet", "Dev_Wlan_GroupId"});
}

bool is_reported(const Place &place) {
    return place.device != places::none && !is_one_of(place, {"Dev_Status", "Dev_Upgrade_Status", "Dev_Wlan_GroupId"});
}

std::vector<Place> those(bool (*wanted)(const Place &)) {
    std::vector<Place> chosen;
    std::copy_if(places::all().begin(), places::all().end(), std::back_inserter(chosen), wanted);
    return chosen;
}

}  // namespace

const std::vector<Place> &configured_places() {
    static const std::vector<Place> chosen = those(is_configured);
    return chosen;
}

const std::vector<Place> &reported_places() {
    static const std::vector<Place> chosen = those(is_reported);
    return chosen;
}

AddressNumber::AddressNumber(const DevInfo &device) {
    std::snprintf(digits, sizeof(digits), "%lu", static_cast<unsigned long>(inet_network(device.Dev_Ipaddress)));
}

}  // namespace bench
