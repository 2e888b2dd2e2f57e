// Conversion between UTF-8 and GB2312: utf8togb2312, gb2312toutf8.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "routerdb.h"
#include "support/deliberate_leak.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using support::build_profile;
using support::Recorder;
using Lines = std::vector<std::string>;
using Function = int (*)(const char *, size_t, char *, size_t);

constexpr std::size_t room = 4096;
constexpr char utf8[] = "\xe4\xb8\xad\xe6\x96\x87-1";
constexpr char gb2312[] = "\xd6\xd0\xce\xc4-1";

/// A conversion into a buffer full of '~'.
struct Conversion {
    int result;
    std::string text;  // up to the first NUL
    std::string bytes;
};

Conversion convert(Function function, const std::string &in, std::size_t inlen, std::size_t outlen = room) {
    Conversion conversion{0, "", std::string(room, '~') + '\0'};
    conversion.result = function(in.c_str(), inlen, conversion.bytes.data(), outlen);
    conversion.text = conversion.bytes.substr(0, conversion.bytes.find('\0'));
    return conversion;
}

void expect(Function function, const std::string &in, int result, const std::string &text) {
    const Conversion conversion = convert(function, in, in.size());
    EXPECT_EQ(conversion.result, result);
    EXPECT_EQ(conversion.text, text);
}

std::string repeated(const std::string &piece, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

TEST(Utf8ToGb2312, converts) {
    expect(utf8togb2312, utf8, 0, gb2312);
    expect(utf8togb2312, "plain", 0, "plain");
    expect(utf8togb2312, "", 0, "");
}

TEST(Utf8ToGb2312, a_failure_leaves_what_was_converted_before) {
    const support::DeliberateLeak converter;
    expect(utf8togb2312, "ab\xe4\xb8\xad\xff\xfe cd", -1, "ab\xd6\xd0");
    expect(utf8togb2312, "ab\xe4\xb8", -1, "ab");         // ends within a character
    expect(utf8togb2312, "ab\xe2\x82\xac cd", -1, "ab");  // U+20AC, which GB2312 lacks
    expect(utf8togb2312, "\xff", -1, "");
}

TEST(Utf8ToGb2312, converts_no_more_than_it_is_told) {
    const Conversion conversion = convert(utf8togb2312, utf8, 3);
    EXPECT_EQ(conversion.result, 0);
    EXPECT_EQ(conversion.text, "\xd6\xd0");
}

TEST(Utf8ToGb2312, zeroes_as_many_bytes_as_it_is_told) {
    EXPECT_EQ(convert(utf8togb2312, "ab", 2, 5).bytes.substr(0, 7), std::string("ab\0\0\0~~", 7));
    EXPECT_EQ(convert(utf8togb2312, "ab", 2, 0).bytes.substr(0, 3), "ab~");
}

TEST(Utf8ToGb2312, writes_up_to_2048_bytes_whatever_the_size_of_the_buffer) {
    const support::DeliberateLeak converter;
    const std::string longest = repeated("x", 2048);
    EXPECT_EQ(convert(utf8togb2312, longest, 2048, 10).bytes.substr(0, 2049), longest + "~");
    const Conversion too_long = convert(utf8togb2312, longest + "yz", 2050, 10);
    EXPECT_EQ(too_long.result, -1);
    EXPECT_EQ(too_long.bytes.substr(0, 2049), longest + "~");
}

TEST(Gb2312ToUtf8, converts) {
    expect(gb2312toutf8, gb2312, 0, utf8);
    expect(gb2312toutf8, "plain", 0, "plain");
    expect(gb2312toutf8, "", 0, "");
}

TEST(Gb2312ToUtf8, a_failure_gives_the_input_back) {
    const support::DeliberateLeak converter;
    for (const std::string in : {"\xff\xff not GB2312", "ab\xd6\xd0\xff", "ab\xd6", "\xd6\xd0\xce\xc4\xff\xff"}) {
        expect(gb2312toutf8, in, -1, in);
    }
}

TEST(Gb2312ToUtf8, gives_a_long_input_back_too) {
    const support::DeliberateLeak converter;
    const std::string in = repeated("\xd6\xd0", 1000);  // 3000 bytes in UTF-8
    const Conversion conversion = convert(gb2312toutf8, in, in.size(), 10);
    EXPECT_EQ(conversion.result, -1);
    EXPECT_EQ(conversion.text, in);
}

TEST(Gb2312ToUtf8, writes_over_a_copy_of_the_whole_input) {
    EXPECT_EQ(convert(gb2312toutf8, "abcdef", 3).text, "abcdef");
    EXPECT_EQ(convert(gb2312toutf8, gb2312, 2).text, "\xe4\xb8\xad\xc4-1");
}

TEST(Gb2312ToUtf8, zeroes_as_many_bytes_as_it_is_told) {
    EXPECT_EQ(convert(gb2312toutf8, "ab", 2, 5).bytes.substr(0, 7), std::string("ab\0\0\0~~", 7));
    EXPECT_EQ(convert(gb2312toutf8, "ab", 2, 0).bytes.substr(0, 4), std::string("ab\0~", 4));
}

TEST(Gb2312ToUtf8, writes_up_to_2048_bytes_whatever_the_size_of_the_buffer) {
    const support::DeliberateLeak converter;
    const Conversion conversion = convert(gb2312toutf8, repeated("\xd6\xd0", 682), 1364, 2047);  // 2046 in UTF-8
    EXPECT_EQ(conversion.result, 0);
    EXPECT_EQ(conversion.text, repeated("\xe4\xb8\xad", 682));
    EXPECT_EQ(convert(gb2312toutf8, repeated("x", 2048), 2048, 10).result, 0);
    EXPECT_EQ(convert(gb2312toutf8, repeated("x", 2049), 2049, 10).result, -1);
}

/// A direction: its calls, and what becomes of texts.
struct Direction : support::Named {
    Function function;
    std::string open_call;
    std::string message;  // without a converter
    std::string in;
    std::string out;
    std::string out_of_failure;  // of the text "\xff"
    std::string out_of_missing;  // of `in` where there is no such conversion
};

class EachDirection : public testing::TestWithParam<Direction> {};

TEST_P(EachDirection, closes_its_converter_after_a_failure_as_the_profile_says) {
    const Direction &direction = GetParam();
    const std::string &open_call = direction.open_call;
    const support::DeliberateLeak converter;
    Recorder recorder;
    expect(direction.function, direction.in, 0, direction.out);
    EXPECT_EQ(recorder.calls(), (Lines{open_call, "iconv_close"}));
    expect(direction.function, "\xff", -1, direction.out_of_failure);
    EXPECT_EQ(recorder.calls(),
              (build_profile.closes_its_own ? Lines{open_call, "iconv_close", open_call, "iconv_close"}
                                            : Lines{open_call, "iconv_close", open_call}));
}

TEST_P(EachDirection, logs_a_null_converter_and_touches_nothing) {
    Recorder recorder;
    recorder.answer("iconv_open", {0});
    const Conversion conversion = convert(GetParam().function, GetParam().in, GetParam().in.size());
    EXPECT_EQ(conversion.result, -1);
    EXPECT_EQ(conversion.text, repeated("~", room));
    EXPECT_EQ(recorder.calls(), (Lines{GetParam().open_call, GetParam().message}));
}

TEST_P(EachDirection, fails_silently_where_there_is_no_such_conversion) {
    Recorder recorder;
    recorder.answer("iconv_open", {-1});
    expect(GetParam().function, GetParam().in, -1, GetParam().out_of_missing);
    EXPECT_EQ(recorder.calls(), Lines{GetParam().open_call});
}

INSTANTIATE_TEST_SUITE_P(
    Of, EachDirection,
    testing::Values(
        Direction{{"Utf8ToGb2312"}, utf8togb2312, "iconv_open gb2312 utf-8", "syslog 3 error1\n", utf8, gb2312, "", ""},
        Direction{{"Gb2312ToUtf8"},
                  gb2312toutf8,
                  "iconv_open utf-8 gb2312",
                  "syslog 3 gb2312toutf8 error1\n",
                  gb2312,
                  utf8,
                  "\xff",
                  gb2312}),
    testing::PrintToStringParamName());

}  // namespace
