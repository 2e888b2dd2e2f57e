// What rivals need for behaviour rules beside the database: the leases, read once for a list, and the names joined.
#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "harness/texts.h"
#include "routerdb.h"

namespace bench {

/// Asks the DHCP server for its leases and reads them.
class Leases {
public:
    Leases();

    /// Empty for a MAC address without a lease.
    const char *host_name(const char *mac) const;

private:
    std::map<std::string, std::string> host_names_;
};

/// In two languages.
struct Names {
    std::string name;
    std::string name_en;
};

/// Writes the names of "1:f1?f2AND2:f3" into both texts of a rule.
/// @param find_class        with the number of a class and Names; returns whether there is one
/// @param find_application  with the number of a class, a feature and Names
template <typename FindClass, typename FindApplication>
void write_names(BehaviorItem &rule, FindClass find_class, FindApplication find_application) {
    const std::string info = rule.behavior_info;
    Names all;
    Names names;
    const auto append = [&all, &names](const char *separator) {
        all.name += separator + names.name;
        all.name_en += separator + names.name_en;
    };
    for (std::size_t start = 0; start < info.size();) {
        const std::size_t end = std::min(info.find("AND", start), info.size());
        const std::size_t colon = info.find(':', start);
        const int class_id = std::stoi(info.substr(start, colon - start));
        if (find_class(class_id, names)) {
            append(all.name.empty() ? "" : "AND");
        }
        const char *separator = ":";
        for (std::size_t feature = colon + 1; feature < end; separator = "?") {
            const std::size_t feature_end = std::min(info.find('?', feature), end);
            if (find_application(class_id, info.substr(feature, feature_end - feature), names)) {
                append(separator);
            }
            feature = feature_end + 1;
        }
        start = end + 3;
    }
    copy_text(all.name.c_str(), rule.behavior_names);
    copy_text(all.name_en.c_str(), rule.behavior_names_en);
}

}  // namespace bench
