/* A program that knows the installed library only: it keeps three family members and forgets two of them. */
#include <routerdb.h>
#include <stdio.h>

static const char *const inserts[] = {
    "insert into famliymember (name, mac) values('Ada', '00:11:22:33:44:01');",
    "insert into famliymember (name, mac) values('Ben', '00:11:22:33:44:02');",
    "insert into famliymember (name, mac) values('Cleo', '00:11:22:33:44:03');",
};

static int count(void) {
    return GET_DB_SQL_INT("select * from famliymember;");
}

int main(void) {
    char ids[] = "1#3";
    char sql[128] = "delete from famliymember where ";
    for (size_t i = 0; i < sizeof inserts / sizeof inserts[0]; i++) {
        if (DB_EXEC_SQL_CHAR(inserts[i]) != 0) {
            return 1;
        }
    }
    printf("members: %d\n", count());
    generate_db_params(ids, sql, sizeof sql, ROUTERDB_COLUMN_ID);
    printf("%s\n", sql);
    if (DB_EXEC_SQL_CHAR(sql) != 0) {
        return 1;
    }
    printf("members: %d\n", count());
    printf("access lists: %u %u %u\n", (unsigned)acl_wifi_id[0], (unsigned)acl_wifi_id[1], (unsigned)acl_wifi_id[2]);
    return 0;
}
