// Texts of strangers in every list: what is printed of them, and whether a strict parser takes it.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <random>

#include "json/ap_list.h"
#include "json/catalogue.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using support::build_profile;

/// The bytes of a text as a text in SQL.
std::string in_sql(const std::string &text) {
    constexpr char digits[] = "0123456789abcdef";
    std::string hex;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        hex += {digits[byte / 16], digits[byte % 16]};
    }
    return "cast(x'" + hex + "' as text)";
}

/// A list with one element that shows a text.
struct List : support::Named {
    std::string (*print)(const std::string &text);
    std::string behind;  // what stands behind the text in the same value
};

std::string print_access_point(const std::string &text) {
    support::execute("delete from DevInfo;");
    ap_list::add(1, "Dev_Ipaddress='10.0.0.1',Dev_Name=" + in_sql(text));
    return ap_list::page({});
}

std::string print_zero_config_group(const std::string &text) {
    support::execute(
        "delete from WlanZeroCfgGroupInfo; insert into WlanZeroCfgGroupInfo(WlanGroup_Id,WlanGroup_Name) "
        "values(1," +
        in_sql(text) + ");");
    return printed::by([] { GetWlanZeroCfgGroupList(); });
}

void fill_catalogue(const std::string &text) {
    catalogue::execute("delete from App_Class; delete from App_Info;");
    catalogue::execute("insert into App_Class values(3," + in_sql(text) + ",'',1,'');");
    catalogue::execute("insert into App_Info values(1,3," + in_sql(text) + ",'','','');");
}

std::string print_classes(const std::string &text) {
    fill_catalogue(text);
    return printed::by([] { GetAppClassItemList(); });
}

std::string print_class(const std::string &text) {
    fill_catalogue(text);
    return printed::by([] { GetAppClassItem("3"); });
}

std::string print_application(const std::string &text) {
    fill_catalogue(text);
    return printed::by([] { GetAppInfoItem("1"); });
}

std::string print_applications(const std::string &text) {
    fill_catalogue(text);
    return printed::by([] { GetAppInfoItemListByClassid("3"); });
}

std::string print_station(const std::string &text) {
    mkdir("/var/stations", 0755);
    support::write_file("/var/stations/10.0.0.1", text + "+" + text + "+-1\n");
    support::Recorder recorder;
    recorder.answer("usleep", {0});  // what a list of stations waits for
    return printed::by([] { GetApDevStaList("10.0.0.1"); });
}

/// The list that shows the text that it was asked for.
std::string print_applications_by_text(const std::string &text) {
    catalogue::execute("delete from App_Info; insert into App_Info values(1," + in_sql(text) + ",'','','','');");
    return printed::by([&text] { GetAppInfoItemListByClassid(text.c_str()); });
}

class HostileTexts : public testing::TestWithParam<List> {};

struct Escaped {
    const char *text;
    const char *in_json;
};

constexpr Escaped escaped[] = {
    {"a\"b", R"(a\"b)"},
    {"\"},{\"m_sn\":\"1", R"(\"},{\"m_sn\":\"1)"},
    {"back\\slash\\", R"(back\\slash\\)"},
    {"\b\f\n\r\t", R"(\b\f\n\r\t)"},
    {"\x01\x0b\x1f\x7f", "\\u0001\\u000b\\u001f\x7f"},
    {"</script>&'", "</script>&'"},
    {"\xc2\x80 \xdf\xbf \xe0\xa0\x80 \xed\x9f\xbf \xee\x80\x80 \xef\xbf\xbf \xf0\x90\x80\x80 \xf4\x8f\xbf\xbf",
     "\xc2\x80 \xdf\xbf \xe0\xa0\x80 \xed\x9f\xbf \xee\x80\x80 \xef\xbf\xbf \xf0\x90\x80\x80 \xf4\x8f\xbf\xbf"},
    {"\x80 \xbf", "\xef\xbf\xbd \xef\xbf\xbd"},
    {"\xc0\xaf", "\xef\xbf\xbd\xef\xbf\xbd"},  // overlong
    {"\xc1\x81", "\xef\xbf\xbd\xef\xbf\xbd"},
    {"\xe0\x9f\xbf", "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"},
    {"\xf0\x8f\xbf\xbf", "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"},
    {"\xed\xa0\x80", "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"},  // surrogates
    {"\xed\xbf\xbf", "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"},
    {"\xf4\x90\x80\x80", "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"},  // behind the last character
    {"\xf5 \xfe \xff", "\xef\xbf\xbd \xef\xbf\xbd \xef\xbf\xbd"},
    {"a\xe4\xb8", "a\xef\xbf\xbd"},  // ends within a character
    {"a\xe4", "a\xef\xbf\xbd"},
    {"a\xf0\x9f\x98", "a\xef\xbf\xbd"},
    {"\xe4\xb8x\xf0\x9f\"", "\xef\xbf\xbdx\xef\xbf\xbd\\\""},
    {"\xe4\xb8\xe4\xb8\xad", "\xef\xbf\xbd\xe4\xb8\xad"},
    {"\xc3\xa9\xa9 \xe4\xb8\xad\xad", "\xc3\xa9\xef\xbf\xbd \xe4\xb8\xad\xef\xbf\xbd"},  // a byte too many
    {"\xd6\xd0\xce\xc4", "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"},            // GB2312
};

/// Texts that a list of stations is not asked to show: one ends its lines, one its fields.
bool can_show(const List &list, const std::string &text) {
    return list.name != "Stations" || text.find_first_of("\n+") == std::string::npos;
}

/// Texts that would end the value inside a statement.
bool can_ask_for(const List &list, const std::string &text) {
    return list.name != "ApplicationsByText" || text.find('\'') == std::string::npos;
}

TEST_P(HostileTexts, are_escaped_or_printed_as_they_stand) {
    for (const auto &[text, in_json] : escaped) {
        if (!can_show(GetParam(), text) || !can_ask_for(GetParam(), text)) {
            continue;
        }
        const std::string output = GetParam().print(text);
        const std::string shown = build_profile.escapes_json ? in_json : text;
        EXPECT_NE(output.find(":\"" + shown + GetParam().behind + "\""), std::string::npos) << output;
        EXPECT_TRUE(!build_profile.escapes_json || printed::is_json(output)) << output;
    }
}

TEST_P(HostileTexts, of_any_bytes_and_any_length_leave_the_list_a_list) {
    std::mt19937 random(7);  // NOLINT(cert-msc32-c, cert-msc51-cpp): the same bytes in each run
    for (int round = 0; round < 60; ++round) {
        std::string text(random() % 300, '\0');
        for (char &byte : text) {
            byte = static_cast<char>(1 + random() % 255);
            byte = byte == '\'' || byte == '\n' || byte == '+' ? '"' : byte;
        }
        const std::string output = GetParam().print(text);
        EXPECT_TRUE(!build_profile.escapes_json || printed::is_json(output)) << output;
    }
}

TEST_P(HostileTexts, that_are_cut_inside_a_character_leave_the_list_a_list) {
    for (const std::string start : {"", "x", "xx"}) {
        std::string text = start;
        for (int i = 0; i < 100; ++i) {
            text += "\xe4\xb8\xad";
        }
        const std::string output = GetParam().print(text);
        EXPECT_TRUE(!build_profile.escapes_json || printed::is_json(output)) << output;
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, HostileTexts,
    testing::Values(List{"AccessPoints", print_access_point, ""}, List{"ZeroConfigGroups", print_zero_config_group, ""},
                    List{"Classes", print_classes, ""}, List{"JoinedNames", print_classes, "/"},
                    List{"OneClass", print_class, ""}, List{"OneApplication", print_application, ""},
                    List{"Applications", print_applications, ""},
                    List{"ApplicationsByText", print_applications_by_text, ""}, List{"Stations", print_station, ""}),
    [](const auto &test) { return test.param.name; });

TEST(HostileElements, that_grow_sixfold_are_printed_whole) {
    std::string values = "1";
    for (int column = 1; column < 126; ++column) {
        values += "," + in_sql(std::string(99, '\x01'));
    }
    support::execute("insert into WlanZeroCfgGroupInfo values(" + values + ");");
    const std::string output = printed::by([] { GetWlanZeroCfgGroupList(); });
    EXPECT_EQ(printed::is_json(output), build_profile.escapes_json);
    if (build_profile.escapes_json) {
        const printed::List list = printed::parse(output, "WlanGroupList");
        EXPECT_EQ(list.elements.front().at("RebootTime"), std::string(99, '\x01'));
    }
}

}  // namespace
