#include <routerdb.h>
#include <stdio.h>

int main(void) {
    const UrlFilterItem rule = {.name = "Games", .url = "games.example"};
    AddUrlFilterItem(&rule);
    AddUrlFilterItem(&rule);
    DelUrlFilterItem("Id='1' or Id='2'");
    printf("%d rules\n", GET_DB_SQL_INT("select Id from filter_url;"));
    return 0;
}
