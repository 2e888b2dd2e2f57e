/* Backup, an accident, and the way back. */
#include <string.h>

#include "tour.h"

void lose_and_restore(void) {
    static UrlFilterItemList before;
    static UrlFilterItemList rules;
    step("Backup, accident, restore",
         "backup_sqlite_db copies the database; then a hasty statement deletes every rule,\n"
         "   and restore_sqlite_db brings the copy back.\n");
    GetUrlFilterItemList(&before);
    check(backup_sqlite_db() == 0, "backup made");
    check(DB_EXEC_SQL_CHAR("delete from filter_url; delete from user_timegroup;") == 0,
          "\"delete from filter_url; delete from user_timegroup;\" executed");
    GetUrlFilterItemList(&rules);
    check(rules.count == 0, "the list is empty now");
    check(restore_sqlite_db() == 0, "backup restored");
    GetUrlFilterItemList(&rules);
    print_url_filters(&rules);
    check(before.count == 2 && memcmp(&rules, &before, sizeof(rules)) == 0, "every byte of the list is as it was");
}
