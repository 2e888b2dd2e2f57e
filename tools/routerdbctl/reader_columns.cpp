#include "reader_columns.h"

namespace ctl {

const char *group_name_of(const char *member) {
    constexpr const char *names[][2] = {
        {"Dev_Wlan_GroupId", "WlanGroup_Id"},
        {"wlan_group_name", "WlanGroup_Name"},
        {"Dev_RebootTime_Enable", "WlanGroup_Dev_RebootTime_Enable"},
        {"Dev_RebootTime", "WlanGroup_Dev_RebootTime"},
        {"Beacon_Inertval", "Beacon_Interval"},
        {"RxOption", "RevOption"},
    };
    for (const auto &name : names) {
        if (std::strcmp(name[0], member) == 0) {
            return name[1];
        }
    }
    return member;
}

}  // namespace ctl
