#include <routerdb.h>
#include <stdio.h>

int main(void) {
    char sql[] = "insert into user_urlinfo(name, url) values('News', 'news.example');";
    if (DbSqlExec(sql) != 0) {
        fprintf(stderr, "the row was not added\n");
        return 1;
    }
    printf("%d row\n", GET_DB_SQL_INT("select id from user_urlinfo;"));
    return 0;
}
