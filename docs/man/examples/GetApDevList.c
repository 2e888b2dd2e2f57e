#include <routerdb.h>
#include <stdio.h>

int main(void) {
    static ApDevList list;
    DB_EXEC_SQL_CHAR("insert into DevInfo(Dev_Sn, Dev_Name, Dev_IPSUM) values(1, 'Attic', 1);");
    if (GetApDevList(&list, 0) != 1) {
        printf("no access point\n");
        return 1;
    }
    for (uint32_t i = 0; i < list.count; i++) {
        printf("%s\n", list.devices[i]->Dev_Name);
    }
    FreeApDevList(&list);
    return 0;
}
