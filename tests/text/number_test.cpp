// Numbers at the start of texts that need not be terminated.
#include "text/number.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <string>
#include <utility>

#include "support/at_page_end.h"

namespace {

using routerdb::number_in;

TEST(NumberIn, a_text_is_what_atoi_reads_there) {
    for (const char *const text : {"",
                                   "0",
                                   "7",
                                   "-7",
                                   "+7",
                                   "42 rows",
                                   "12abc",
                                   "abc",
                                   "'1'",
                                   " 9",
                                   "\t\n\v\f\r 9",
                                   "- 5",
                                   "-+5",
                                   "+-5",
                                   "--5",
                                   "0 5",
                                   "00 5",
                                   "0x10",
                                   "00x10",
                                   "-0",
                                   "-007",
                                   "+007",
                                   "2147483647",
                                   "-2147483648",
                                   "2147483648",
                                   "-9999999999",
                                   "4294967297",
                                   "9223372036854775807",
                                   "9223372036854775808",
                                   "-9223372036854775809",
                                   "999999999999999999999999999999",
                                   "-100000000000000000000000000000",
                                   "1e3",
                                   "1.9",
                                   ".5",
                                   "\u00a05"}) {
        EXPECT_EQ(number_in(text), std::atoi(text)) << text;  // NOLINT(cert-err34-c)
    }
}

TEST(NumberIn, a_text_ends_where_it_ends) {
    const std::string text = " \t-000123456789";
    for (std::size_t size = 0; size <= text.size(); ++size) {
        const int expected = std::atoi(text.substr(0, size).c_str());  // NOLINT(cert-err34-c)
        EXPECT_EQ(number_in({text.data(), size}), expected) << size;
    }
}

TEST(NumberIn, a_text_ends_with_its_first_zero_byte) {
    for (const auto &[text, expected] : {std::pair(std::string("1\0002", 3), 1),
                                         {std::string("\0002", 2), 0},
                                         {std::string(" \0002", 3), 0},
                                         {std::string("-\0002", 3), 0},
                                         {std::string("0\0002", 3), 0}}) {
        EXPECT_EQ(number_in(text), expected);
    }
}

TEST(NumberIn, any_number_of_blanks_and_zeros_may_stand_before_it) {
    for (const std::size_t count : {21U, 22U, 23U, 24U, 25U, 1000U}) {
        const std::string blanks(count, ' ');
        const std::string zeros(count, '0');
        EXPECT_EQ(number_in(blanks + "17"), 17) << count;
        EXPECT_EQ(number_in(zeros + "17"), 17) << count;
        EXPECT_EQ(number_in(zeros + "9"), 9) << count;
        EXPECT_EQ(number_in("+" + zeros + "17"), 17) << count;
        EXPECT_EQ(number_in(blanks + "-" + zeros + "17"), -17) << count;
        EXPECT_EQ(number_in(zeros + blanks + "17"), 0) << count;
        EXPECT_EQ(number_in(blanks + "-" + blanks + "17"), 0) << count;
        EXPECT_EQ(number_in(zeros + "-17"), 0) << count;
        EXPECT_EQ(number_in(blanks), 0) << count;
        EXPECT_EQ(number_in(zeros), 0) << count;
    }
}

TEST(NumberIn, blanks_are_those_of_the_c_library) {
    for (const char blank : {' ', '\t', '\n', '\v', '\f', '\r'}) {
        EXPECT_EQ(number_in(std::string(100, blank) + "17"), 17) << static_cast<int>(blank);
    }
    EXPECT_EQ(number_in(std::string(100, '\b') + "17"), 0);
}

TEST(NumberIn, nothing_is_read_behind_a_text) {
    for (const auto &[text, expected] : {std::pair(std::array{' ', '0', '0'}, 0),
                                         {{' ', ' ', ' '}, 0},
                                         {{'-', '0', '9'}, -9},
                                         {{'1', '2', '3'}, 123}}) {
        support::AtPageEnd<std::array<char, 3>> page_end(text);
        EXPECT_EQ(number_in({page_end.get()->data(), text.size()}), expected);
    }
}

TEST(NumberIn, no_text_is_0) {
    EXPECT_EQ(number_in({}), 0);
}

}  // namespace
