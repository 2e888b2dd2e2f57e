// Times of day.
#include "fuzz/fuzz.h"
#include "routerdb.h"

const char fuzz::what[] = "times of day: nothing read behind a text, and one of two is later or none is";

void fuzz::prepare() {}

void fuzz::run(Input input) {
    Argument first(input.take_line());
    Argument second(input.take_line());
    const int one = change_time_to_int(first.text());
    const int other = change_time_to_int(second.text());
    require(one > -1000 && one < 10000, "four characters make no such number");
    require(check_time_one_day(first.text(), second.text()) == (one > other ? 1 : 0), "the later one is another");
    require(check_time_one_day(second.text(), first.text()) == (other > one ? 1 : 0), "the later one is another");
}
