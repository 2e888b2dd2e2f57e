// Texts that grow.
#include "text/text.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <string>

#include "support/profile.h"
#include "support/wrapped_calls.h"

namespace {

using routerdb::Quotes;
using routerdb::StackText;
using support::WrappedCalls;

using SmallText = StackText<16>;

TEST(Text, starts_empty_and_complete) {
    const SmallText text;
    EXPECT_STREQ(text.c_str(), "");
    EXPECT_EQ(text.length(), 0U);
    EXPECT_TRUE(text.complete());
}

TEST(Text, puts_pieces_behind_each_other) {
    SmallText text;
    text.append("a").append("").append(-7L).append(std::string_view("b\0c", 3));
    EXPECT_EQ(std::string(text.c_str(), text.length()), std::string("a-7b\0c", 6));
}

TEST(Text, writes_every_number_whole) {
    SmallText text;
    text.append(LONG_MIN).append(" ").append(LONG_MAX).append(" ").append(ULONG_MAX).append(" ").append(0L);
    EXPECT_EQ(text.c_str(),
              std::to_string(LONG_MIN) + " " + std::to_string(LONG_MAX) + " " + std::to_string(ULONG_MAX) + " 0");
}

TEST(Text, puts_values_between_quotes_as_they_stand_unless_quotes_are_doubled) {
    SmallText text;
    text.append_quoted("it's").append_quoted("").append_quoted(-3L);
    EXPECT_STREQ(text.c_str(), support::build_profile.doubles_quotes ? "'it''s''''-3'" : "'it's''''-3'");
}

TEST(Text, doubles_quotes_inside_values_where_it_is_asked_to) {
    SmallText text;
    text.append_quoted("it's", Quotes::doubled).append(",").append_quoted("", Quotes::doubled).append(",");
    text.append_quoted("''", Quotes::doubled).append(",").append_quoted("plain", Quotes::doubled);
    EXPECT_STREQ(text.c_str(), "'it''s','','''''','plain'");
}

TEST(Text, has_the_room_that_was_reserved) {
    WrappedCalls calls;
    SmallText text;
    EXPECT_TRUE(text.reserve(16));
    EXPECT_TRUE(calls.blocks().empty());
    EXPECT_TRUE(text.reserve(101));
    calls.fail("realloc", 1, ENOMEM);
    text.append(std::string(100, 'x'));
    EXPECT_TRUE(text.complete());
    EXPECT_FALSE(text.reserve(1'000'000));
    EXPECT_FALSE(text.complete());
    EXPECT_EQ(text.c_str(), std::string(100, 'x'));
}

TEST(Text, needs_no_heap_for_one_byte_less_than_its_size) {
    const WrappedCalls calls;
    SmallText text;
    text.append("123456789012345");
    EXPECT_TRUE(calls.blocks().empty());
    text.append("6");
    EXPECT_EQ(calls.blocks().size(), 1U);
    EXPECT_STREQ(text.c_str(), "1234567890123456");
}

TEST(Text, is_never_cut) {
    const WrappedCalls calls;
    {
        SmallText text;
        std::string expected;
        for (long i = 0; i < 1000; ++i) {
            text.append("piece ").append(i);
            expected += "piece " + std::to_string(i);
            ASSERT_EQ(text.c_str(), expected);
        }
        EXPECT_TRUE(text.complete());
        EXPECT_EQ(calls.blocks().size(), 1U);
    }
    EXPECT_TRUE(calls.blocks().empty());
}

TEST(Text, remembers_that_memory_ran_out) {
    for (int n = 1; n <= 5; ++n) {
        WrappedCalls calls;
        calls.fail(n == 1 ? "malloc" : "realloc", n == 1 ? 1 : n - 1, ENOMEM);
        SmallText text;
        for (int i = 0; i < 50; ++i) {
            text.append("0123456789");
        }
        EXPECT_TRUE(calls.failed()) << n;
        EXPECT_FALSE(text.complete()) << n;
        EXPECT_EQ(text.length() % 10, 0U) << n;
        EXPECT_LT(text.length(), 500U) << n;
    }
}

TEST(Text, takes_nothing_more_once_memory_ran_out) {
    WrappedCalls calls;
    calls.fail("malloc", 1, ENOMEM);
    SmallText text;
    text.append("kept ").append("far too long for it").append("short");
    EXPECT_FALSE(text.complete());
    EXPECT_STREQ(text.c_str(), "kept ");
    EXPECT_EQ(text.length(), 5U);
    EXPECT_TRUE(calls.blocks().empty());
}

TEST(FieldText, ends_at_the_terminator_or_at_the_width) {
    EXPECT_EQ(routerdb::field_text("ab\0cd", 5), "ab");
    EXPECT_EQ(routerdb::field_text("abcde", 3), "abc");
    EXPECT_EQ(routerdb::field_text("", 5), "");
    EXPECT_EQ(routerdb::field_text("abc", 0), "");
}

TEST(FieldText, knows_the_width_of_an_array) {
    const char field[3] = {'a', 'b', 'c'};
    EXPECT_EQ(routerdb::field_text(field), "abc");
}

TEST(CopyCut, cuts_a_text_at_the_width_of_its_field) {
    char field[] = "~~~~~~";
    routerdb::copy_cut("abcdef", field, 4);
    EXPECT_EQ(std::string(field, 6), std::string("abc\0~~", 6));
}

TEST(CopyCut, leaves_what_stands_behind_the_terminator) {
    char field[] = "~~~~~~";
    routerdb::copy_cut("a", field, 4);
    EXPECT_EQ(std::string(field, 6), std::string("a\0~~~~", 6));
}

TEST(OrEmpty, reads_null_as_the_empty_text) {
    EXPECT_STREQ(routerdb::or_empty(nullptr), "");
    EXPECT_STREQ(routerdb::or_empty("a"), "a");
}

}  // namespace
