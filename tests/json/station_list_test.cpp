// The stations of an access point: what is printed of each kind of line.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::build_profile;
using support::Recorder;

constexpr char opening[] = "{\"DevStalist\":\n{\"sta\":[";
constexpr char closing[] = R"({"mac":"","time":"","signal":""}],"count":")";

/// Lets the access point answer, and prints its stations.
std::string print(const std::string &answer) {
    mkdir("/var/stations", 0755);
    support::write_file("/var/stations/10.0.0.1", answer);
    return printed::by([] { GetApDevStaList("10.0.0.1"); });
}

constexpr bool escapes = build_profile.escapes_json;

struct Answer : support::Named {
    std::string answer;
    std::string elements;
    const char *count;
};

std::string x(std::size_t length) {
    std::string text(length, 'x');
    return text;
}

const Answer answers[] = {
    {"OneStation", "00:11:22:33:44:55+120+-67\n", R"({"mac":"00:11:22:33:44:55","time":"120","signal":"-67"},)", "1"},
    {"NoLineBreakAtTheEnd", "00:11:22:33:44:55+120+-67", R"({"mac":"00:11:22:33:44:55","time":"120","signal":"-67"},)",
     "1"},
    {"ThreeStations", "a+1+-1\nb+2+-2\nc+3+-3\n",
     R"({"mac":"a","time":"1","signal":"-1"},{"mac":"b","time":"2","signal":"-2"},{"mac":"c","time":"3","signal":"-3"},)",
     "3"},
    {"EmptyFile", "", "", "0"},
    {"EmptyLines", "\n\n\n", "", "0"},
    {"OneField", "aa:bb\n", "", "0"},
    {"TwoFields", "aa:bb+10\n", "", "0"},
    {"TwoFieldsBetweenOthers", "a+1+-1\naa:bb+10\nc+3+-3\n",
     R"({"mac":"a","time":"1","signal":"-1"},{"mac":"c","time":"3","signal":"-3"},)", "2"},
    {"SignalThatIsNoNumber", "aa:bb+10+x\n", R"({"mac":"aa:bb","time":"10","signal":"0"},)", "1"},
    {"SignalBehindBlanks", "aa:bb+10+ \t-7dBm\n", R"({"mac":"aa:bb","time":"10","signal":"-7"},)", "1"},
    {"FourFields", "m+t+-50+extra\n", R"({"mac":"m","time":"t","signal":"-50"},)", "1"},
    {"FiveFields", "m+t+-50+extra+-60\n", R"({"mac":"m","time":"t","signal":"-50"},)", "1"},
    {"SeparatorsThatRepeat", "++m+++t++-50++\n", R"({"mac":"m","time":"t","signal":"-50"},)", "1"},
    {"NothingButSeparators", "++++", "", "0"},
    {"SeparatorBeforeTheLineBreak", "m+t+\n", R"({"mac":"m","time":"t","signal":"0"},)", "1"},
    {"SeparatorAtTheEnd", "m+t+", "", "0"},
    {"Quotes", "a\"b+c\\d+-1\n",
     escapes ? R"({"mac":"a\"b","time":"c\\d","signal":"-1"},)" : R"({"mac":"a"b","time":"c\d","signal":"-1"},)", "1"},
    {"WideFields", x(49) + "+" + x(49) + "+-1\n",
     R"({"mac":")" + x(49) + R"(","time":")" + x(49) + R"(","signal":"-1"},)", "1"},
    {"FieldsBeyondTheirWidth", x(60) + "+" + x(55) + "+-1\n",
     R"({"mac":")" + x(49) + R"(","time":")" + x(49) + R"(","signal":"-1"},)", "1"},
    {"SignalBeyondItsWidth", "m+t+" + std::string(48, ' ') + "-12\n", R"({"mac":"m","time":"t","signal":"0"},)", "1"},
    {"LineOf127Characters", "m+t+-5+" + x(120) + "\nn+u+-6\n",
     R"({"mac":"m","time":"t","signal":"-5"},{"mac":"n","time":"u","signal":"-6"},)", "2"},
    {"LongerLineCountsAsTwo", "m+t+-5+" + x(120) + "n+u+-6\n",
     R"({"mac":"m","time":"t","signal":"-5"},{"mac":"n","time":"u","signal":"-6"},)", "2"},
};

class StationList : public testing::TestWithParam<Answer> {};

TEST_P(StationList, is_printed) {
    const std::string text = print(GetParam().answer);
    EXPECT_EQ(text, opening + GetParam().elements + closing + GetParam().count + "\"}}\n");
    EXPECT_EQ(printed::is_json(text), escapes || GetParam().name != "Quotes") << text;
}

INSTANTIATE_TEST_SUITE_P(All, StationList, testing::ValuesIn(answers),
                         [](const auto &test) { return test.param.name; });

/// What is printed when the program is not run: a profile that makes its file itself has one.
const std::string without_program = build_profile.keeps_addresses_from_shell
                                        ? std::string(opening) + closing + "0\"}}\n"
                                        : "{\"DevStalist\":\n{\"count\":\"0\"}}";

TEST(StationLists, are_short_and_end_without_a_line_break_when_there_is_no_file) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    printed::expect_complete(printed::by([] { GetApDevStaList("10.0.0.1"); }), without_program);
}

TEST(StationLists, are_empty_for_an_access_point_that_does_not_answer) {
    printed::expect_complete(
        printed::by([] { GetApDevStaList("10.0.0.1"); }),
        "{\"DevStalist\":\n{\"sta\":[{\"mac\":\"\",\"time\":\"\",\"signal\":\"\"}],\"count\":\"0\"}}\n");
}

TEST(StationLists, are_empty_when_the_program_is_missing) {
    ASSERT_EQ(unlink("/bin/capwapmanage"), 0);
    const auto said = support::streams_of([] { GetApDevStaList("10.0.0.1"); });  // the shell complains on one
    printed::expect_complete(
        said.output, "{\"DevStalist\":\n{\"sta\":[{\"mac\":\"\",\"time\":\"\",\"signal\":\"\"}],\"count\":\"0\"}}\n");
}

TEST(StationLists, are_printed_behind_what_the_caller_has_printed) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    const std::string text = printed::by([] {
        std::printf("Content-Type: application/json\n\n");
        GetApDevStaList("10.0.0.1");
        std::printf("\n");
    });
    EXPECT_EQ(text, "Content-Type: application/json\n\n" + without_program + "\n");
}

TEST(StationLists, leave_no_descriptor_open) {
    const int descriptors = support::open_descriptors();
    print("m+t+-5\n");
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

}  // namespace
