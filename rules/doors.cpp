// The exported lookups. The operations on a table stand in the table's own file.
#include "rules/references.h"

const uint32_t acl_wifi_id[3] = {ROUTERDB_TABLE_ACL0, ROUTERDB_TABLE_ACL1, ROUTERDB_TABLE_ACL2};

void GetTimeControlById(sqlite3 *db, int id, TimeGroupItem *group) {
    routerdb::References(db).find_time_group(id, *group);
}
