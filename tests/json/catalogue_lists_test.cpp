// The lists of the application catalogue, byte for byte.
#include <gtest/gtest.h>

#include <cstdio>

#include "json/catalogue.h"
#include "json/printed.h"
#include "routerdb.h"
#include "support/profile.h"

namespace {

using catalogue::List;
using printed::by;
using printed::expect_complete;

constexpr char no_class[] = R"({"name":"","mark":"","priority":""})";

std::string application(const char *id) {
    return by([id] { GetAppInfoItem(id); });
}

std::string applications_of(const char *class_id) {
    return by([class_id] { GetAppInfoItemListByClassid(class_id); });
}

class EachCatalogueList : public testing::TestWithParam<List> {
protected:
    static std::string print() {
        return by([] { GetParam().print(); });
    }
};

TEST_P(EachCatalogueList, of_an_empty_table_is_nothing_but_a_count_of_zero) {
    expect_complete(print(), R"({"ItemList":{"count":"0"}})");
}

TEST_P(EachCatalogueList, is_printed_behind_what_the_caller_has_printed) {
    const std::string text = by([] {
        std::printf("Content-Type: application/json\n\n");
        GetParam().print();
        std::printf("\n");
    });
    EXPECT_EQ(text, "Content-Type: application/json\n\n" + std::string(catalogue::no_items) + "\n");
}

TEST_P(EachCatalogueList, reads_the_catalogue_and_not_the_main_database) {
    catalogue::fill();
    const printed::List list = printed::parse(print(), "ItemList");
    EXPECT_GE(list.elements.size(), 2U);
}

TEST_P(EachCatalogueList, closes_with_an_element_of_the_same_keys_without_values) {
    catalogue::fill();
    const printed::List list = printed::parse(print(), "ItemList");
    ASSERT_GE(list.elements.size(), 2U);
    printed::Texts empty = list.elements.front();
    for (auto &member : empty) {
        member.second.clear();
    }
    EXPECT_EQ(list.elements.back(), empty);
}

INSTANTIATE_TEST_SUITE_P(All, EachCatalogueList, testing::ValuesIn(catalogue::lists()),
                         [](const auto &test) { return test.param.name; });

TEST(GetAppClassItemList, prints_the_classes_in_order_of_their_numbers_with_their_applications) {
    catalogue::fill();
    expect_complete(
        by(GetAppClassItemList),
        R"({"ItemList":{"data":[)"
        R"({"id":"3","name":"聊天","name_en":"Chat","mark":"talk","priority":"0","bw":"0",)"
        R"("appnames":"A/B/","appnames_en":"A en/B en/","appfeature":"fa/fb/"},)"
        R"({"id":"7","name":"视频","name_en":"Video","mark":"films","priority":"0","bw":"0",)"
        R"("appnames":"优酷/","appnames_en":"Youku/","appfeature":"youku/"},)"
        R"({"id":"9","name":"空","name_en":"Empty","mark":"","priority":"0","bw":"0",)"
        R"("appnames":"","appnames_en":"","appfeature":""},)"
        R"({"id":"","name":"","name_en":"","mark":"","priority":"","bw":"","appnames":"","appnames_en":"","appfeature":""}],)"
        R"("count":"3"}})");
}

TEST(GetAppClassItemList, prints_joined_names_that_fill_their_buffer) {
    catalogue::execute("insert into App_Class values(3,'','',0,'');");
    std::string joined;
    for (int id = 1; id <= 21; ++id) {
        const std::string name(id <= 20 ? 199 : 94, static_cast<char>('a' + id));
        catalogue::execute("insert into App_Info values(" + std::to_string(id) + ",3,'" + name + "','','','');");
        joined.append(name).append("/");
    }
    ASSERT_EQ(joined.size(), 4095U);
    const printed::List list = printed::parse(by(GetAppClassItemList), "ItemList");
    EXPECT_EQ(list.elements.front().at("appnames"), joined);
}

TEST(GetAppClassItem, prints_one_class_and_the_count_of_all) {
    catalogue::fill();
    expect_complete(by([] { GetAppClassItem("7"); }),
                    R"({"ItemList":{"data":[{"name":"视频","mark":"films","priority":"0"},)" + std::string(no_class) +
                        R"(],"count":"3"}})");
}

TEST(GetAppClassItem, of_an_unknown_number_over_five_classes_counts_five) {
    catalogue::execute("insert into App_Class(Id) values(1),(2),(3),(4),(5);");
    expect_complete(by([] { GetAppClassItem("6"); }),
                    R"({"ItemList":{"data":[{"name":"","mark":"","priority":""}],"count":"5"}})");
}

TEST(GetAppClassItem, reads_a_null_number_as_the_empty_one) {
    catalogue::execute("insert into App_Class(Id) values(1);");
    expect_complete(by([] { GetAppClassItem(nullptr); }),
                    R"({"ItemList":{"data":[)" + std::string(no_class) + R"(],"count":"1"}})");
}

TEST(GetAppInfoItem, prints_the_number_of_the_class_under_the_key_of_its_name) {
    catalogue::fill();
    expect_complete(
        application("2"),
        R"({"ItemList":{"data":[{"classname":"7","appname":"优酷","appname_en":"Youku","features":"youku","mark":""},)"
        R"({"classname":"","appname":"","appname_en":"","features":"","mark":"" }],"count":"1"}})");
}

TEST(GetAppInfoItem, of_an_unknown_number_prints_the_closing_element_alone) {
    catalogue::fill();
    const char *expected = R"({"ItemList":{"data":[)"
                           R"({"classname":"","appname":"","appname_en":"","features":"","mark":"" }],"count":"0"}})";
    for (const char *id : {"3", "", "x", static_cast<const char *>(nullptr)}) {
        expect_complete(application(id), expected);
    }
}

TEST(GetAppInfoItemListByClassid, prints_the_callers_text_as_the_number_of_the_class) {
    catalogue::fill();
    expect_complete(applications_of("03"),
                    R"({"ItemList":{"data":[)"
                    R"({"id":"1","class_id":"03","appname":"A","appname_en":"A en","features":"fa","mark":"first"},)"
                    R"({"id":"4","class_id":"03","appname":"B","appname_en":"B en","features":"fb","mark":"second"},)"
                    R"({"id":"","class_id":"","appname":"","appname_en":"","features":"","mark":"" }],"count":"2"}})");
}

TEST(GetAppInfoItemListByClassid, of_a_class_without_applications_is_nothing_but_a_count_of_zero) {
    catalogue::fill();
    for (const char *class_id : {"9", "8", "", static_cast<const char *>(nullptr)}) {
        expect_complete(applications_of(class_id), R"({"ItemList":{"count":"0"}})");
    }
}

TEST(GetAppInfoItemListByClassid, puts_its_argument_into_the_statements_as_given) {
    catalogue::fill();
    const printed::List list = printed::parse(applications_of("3' or Id='2"), "ItemList");
    if (support::build_profile.doubles_quotes) {
        EXPECT_EQ(printed::values(list, "id"), std::vector<std::string>());
        return;
    }
    EXPECT_EQ(printed::values(list, "id"), (std::vector<std::string>{"1", "2", "4"}));
    EXPECT_EQ(printed::values(list, "class_id"), std::vector<std::string>(3, "3' or Id='2"));
}

TEST(GetAppInfoItemListByClassid, does_not_cut_a_long_argument) {
    catalogue::fill();
    const std::string class_id = std::string(5000, '0') + "3";
    const printed::List list = printed::parse(applications_of(class_id.c_str()), "ItemList");
    EXPECT_EQ(printed::values(list, "class_id"), (std::vector<std::string>{class_id, class_id}));
}

TEST(CatalogueValues, that_are_null_print_as_empty_texts_and_zero) {
    catalogue::execute("insert into App_Class(Id) values(3); insert into App_Info(Id) values(5);");
    expect_complete(by([] { GetAppClassItem("3"); }), R"({"ItemList":{"data":[{"name":"","mark":"","priority":"0"},)" +
                                                          std::string(no_class) + R"(],"count":"1"}})");
    expect_complete(application("5"),
                    R"({"ItemList":{"data":[{"classname":"0","appname":"","appname_en":"","features":"","mark":""},)"
                    R"({"classname":"","appname":"","appname_en":"","features":"","mark":"" }],"count":"1"}})");
}

TEST(CatalogueValues, are_cut_behind_199_bytes) {
    for (const std::size_t length : {198U, 199U, 200U, 1000U}) {
        catalogue::execute("delete from App_Info;");
        const auto text = [length](char c) { return std::string(length, c); };
        catalogue::execute("insert into App_Info values(1,3,'" + text('n') + "','" + text('e') + "','" + text('f') +
                           "','" + text('m') + "');");
        const printed::Texts element = printed::parse(application("1"), "ItemList").elements.front();
        const std::size_t shown = length < 199 ? length : 199;
        EXPECT_EQ(element, (printed::Texts{{"classname", "3"},
                                           {"appname", std::string(shown, 'n')},
                                           {"appname_en", std::string(shown, 'e')},
                                           {"features", std::string(shown, 'f')},
                                           {"mark", std::string(shown, 'm')}}));
    }
}

TEST(CatalogueValues, are_escaped_as_the_profile_says) {
    catalogue::execute("insert into App_Info values(1,3,'a\"b','back\\slash','tab\tline\nend','');");
    const std::string end =
        R"("mark":""},{"classname":"","appname":"","appname_en":"","features":"","mark":"" }],"count":"1"}})";
    if (support::build_profile.escapes_json) {
        printed::expect_complete(application("1"),
                                 R"({"ItemList":{"data":[{"classname":"3","appname":"a\"b","appname_en":"back\\slash",)"
                                 R"("features":"tab\tline\nend",)" +
                                     end);
    } else {
        printed::expect_unfinished(application("1"),
                                   R"({"ItemList":{"data":[{"classname":"3","appname":"a"b","appname_en":"back\slash",)"
                                   "\"features\":\"tab\tline\nend\"," +
                                       end);
    }
}

}  // namespace
