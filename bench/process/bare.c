/* Starts, reads the name of one access point by hand, and ends. Reads all of it, as the others do. */
#include <sqlite3.h>
#include <stdio.h>
#include <string.h>

enum { columns = 160, widest = 200 };

int main(void) {
    static char device[columns][widest];
    sqlite3 *db = NULL;
    sqlite3_stmt *statement = NULL;
    sqlite3_open("/etc/config/systemconf/database/myrouter.db", &db);
    sqlite3_prepare_v2(db, "select * from DevInfo where Dev_Sn='218212544';", -1, &statement, NULL);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < columns; ++column) {
            const char *text = (const char *)sqlite3_column_text(statement, column);
            strncpy(device[column], text != NULL ? text : "", widest - 1);
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
    puts(device[2]);
    return 0;
}
