// The exported lookups. The operations on a table stand in the table's own file.
#include <cstring>

#include "appcatalog/catalogue.h"
#include "rules/behavior_names.h"
#include "rules/references.h"
#include "text/text.h"

using namespace routerdb;

const uint32_t acl_wifi_id[3] = {ROUTERDB_TABLE_ACL0, ROUTERDB_TABLE_ACL1, ROUTERDB_TABLE_ACL2};

namespace {

/// The caller vouches for the room.
void copy_names(const Catalogue::Entry &names, char *name, char *name_en) {
    if (names.found()) {
        std::strcpy(name, names.name());
        std::strcpy(name_en, names.name_en());
    }
}

}  // namespace

void GetTimeControlById(sqlite3 *db, int id, TimeGroupItem *group) {
    find_time_group(db, id, *group);
}

void GetIpGroup_IpRangeById(sqlite3 *db, int id, IpGroupItem *group) {
    find_ip_group(db, id, *group);
}

void GetClassNameByClassId(int id, char *name, char *name_en) {
    Catalogue catalogue;
    copy_names(catalogue.of_class(id), name, name_en);
}

void GetAppNameByClassIdAppfeature(int class_id, const char *feature, char *name, char *name_en) {
    Catalogue catalogue;
    copy_names(catalogue.of_application(class_id, or_empty(feature)), name, name_en);
}

void GetBehaviorItemInfoTypeName(const char *info, char *names, char *names_en) {
    Catalogue catalogue;
    append_behavior_names(catalogue, or_empty(info), {names, SIZE_MAX}, {names_en, SIZE_MAX});
}
