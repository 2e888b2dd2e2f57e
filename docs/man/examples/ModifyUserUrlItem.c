#include <routerdb.h>
#include <stdio.h>
#include <string.h>

int main(void) {
    UserUrlItem item = {.name = "News", .url = "news.example"};
    AddUserUrlItem(&item);
    GetUserUrlItem(1, &item); /* cleared when there is no such row */
    if (item.id != 1) {
        return 1;
    }
    strcpy(item.url, "papers.example");
    ModifyUserUrlItem(&item); /* writes all of the row */
    GetUserUrlItem(1, &item);
    printf("%s: %s\n", item.name, item.url);
    return 0;
}
