#include <routerdb.h>
#include <stdio.h>

int main(void) {
    const TimeGroupItem nights = {
        .name = "School nights", .weekday = {1, 1, 1, 1, 1, 0, 0}, .start_time = "20:30", .end_time = "23:59"};
    AddTimeGroupItem(&nights); /* tells nothing: look whether it is there */
    const int id = GET_DB_SQL_INT_COUNT_ROUTE("select id from user_timegroup where name = 'School nights';");
    printf(id > 0 ? "time group %d\n" : "the service has not added it\n", id);
    return id > 0 ? 0 : 1;
}
