/* A consumer of the service road: three family members are added through the SQL service and come back as records. */
#include <routerdb.h>
#include <stdio.h>

static void add(const char *name) {
    FamliyMemberItem member = {0};
    snprintf(member.name, sizeof member.name, "%s", name);
    AddFamliyMemberItem(&member);
}

int main(void) {
    static FamliyMemberItemList list;
    add("Ada");
    add("Ben");
    add("Cleo");
    GetFamliyMemberItemList(&list);
    for (uint32_t i = 0; i < list.count; i++) {
        printf("member %d: %s\n", (int)list.items[i].id, list.items[i].name);
    }
    return 0;
}
