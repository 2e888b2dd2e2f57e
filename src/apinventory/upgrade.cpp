#include "apinventory/upgrade.h"

#include <cstdlib>

#include "core/execute.h"
#include "core/profiles.h"
#include "text/text.h"

namespace routerdb {

void delete_upgrade(const ApDevUpgradeInfo *info) {
    if (info == nullptr || info->Dev_SwName[0] == '\0') {
        return;
    }
    StackText<300> sql;
    sql.append("delete from DevUpgradeInfo where Dev_SwName=").append_quoted(field_text(info->Dev_SwName)).append(";");
    [[maybe_unused]] const int result = execute(profiles::exec_char, sql);
}

void free_upgrades(ApDevUpgradeList &list) {
    for (int index = 0; index < static_cast<std::int32_t>(list.count) && index < ROUTERDB_DEVICE_LIST_CAPACITY;
         ++index) {
        ApDevUpgradeInfo *&info = list.items[index];
        if (info != nullptr) {
            std::free(info->block);
            info->block = nullptr;
            std::free(info);
            info = nullptr;
        }
    }
}

}  // namespace routerdb
