// Times of day: change_time_to_int, check_time_one_day.
#include <gtest/gtest.h>

#include "routerdb.h"

namespace {

TEST(ChangeTimeToInt, reads_hours_and_minutes_as_one_number) {
    EXPECT_EQ(change_time_to_int("07:45"), 745);
    EXPECT_EQ(change_time_to_int("23:59"), 2359);
    EXPECT_EQ(change_time_to_int("00:00"), 0);
    EXPECT_EQ(change_time_to_int("00:08"), 8);
}

TEST(ChangeTimeToInt, ignores_the_separator_and_what_follows) {
    EXPECT_EQ(change_time_to_int("07.45"), 745);
    EXPECT_EQ(change_time_to_int("07x45:59"), 745);
    EXPECT_EQ(change_time_to_int("079459"), 745);
}

TEST(ChangeTimeToInt, stops_at_the_first_character_that_is_not_a_digit) {
    EXPECT_EQ(change_time_to_int("9:30x"), 9);
    EXPECT_EQ(change_time_to_int("12:x5"), 12);
    EXPECT_EQ(change_time_to_int("ab:cd"), 0);
}

TEST(ChangeTimeToInt, does_not_validate) {
    EXPECT_EQ(change_time_to_int("99:99"), 9999);
    EXPECT_EQ(change_time_to_int(" 7:45"), 745);
    EXPECT_EQ(change_time_to_int("-1:30"), -130);
}

TEST(ChangeTimeToInt, reads_no_further_than_a_short_text) {
    EXPECT_EQ(change_time_to_int(""), 0);
    EXPECT_EQ(change_time_to_int("9"), 9);
    EXPECT_EQ(change_time_to_int("12"), 12);
    EXPECT_EQ(change_time_to_int("12:"), 12);
    EXPECT_EQ(change_time_to_int("12:3"), 123);
}

TEST(CheckTimeOneDay, tells_whether_the_first_is_later) {
    EXPECT_EQ(check_time_one_day("22:00", "06:00"), 1);
    EXPECT_EQ(check_time_one_day("06:00", "22:00"), 0);
    EXPECT_EQ(check_time_one_day("06:01", "06:00"), 1);
    EXPECT_EQ(check_time_one_day("10:00", "09:59"), 1);
}

TEST(CheckTimeOneDay, equal_times_are_not_later) {
    EXPECT_EQ(check_time_one_day("06:00", "06:00"), 0);
    EXPECT_EQ(check_time_one_day("06:00", "06.00"), 0);
}

}  // namespace
