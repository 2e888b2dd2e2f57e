// Classes and applications that SQLite compares in ways of its own are found as by the statements that compare them.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "support/database.h"
#include "support/profile.h"
#include "support/streams.h"

namespace {

void catalogue(const std::string &sql) {
    support::Database(support::catalogue_database).execute(sql);
}

/// The joined names of class 3, the only one.
std::string joined_names() {
    const std::string text = support::streams_of(GetAppClassItemList).output;
    const std::string key = "\"appnames\":\"";
    const std::size_t start = text.find(key) + key.size();
    return text.substr(start, text.find('"', start) - start);
}

/// The names of a behaviour rule.
std::string names_of(const char *info) {
    char names[256] = "";
    char names_en[256] = "";
    GetBehaviorItemInfoTypeName(info, names, names_en);
    return names;
}

class OddCatalogue : public testing::Test {
protected:
    OddCatalogue() { catalogue("insert into App_Class values(3,'C','C',0,'');"); }

    /// Application table whose class and feature columns have other types.
    static void retype(const std::string &class_type, const std::string &feature_type) {
        catalogue("drop table App_Info; create table App_Info(Id integer primary key, Class_Id " + class_type +
                  ", Name text, Name_En text, Features " + feature_type + ", Mark text);");
    }

    static void add(const std::string &class_id, const std::string &name, const std::string &feature) {
        catalogue("insert into App_Info(Class_Id,Name,Name_En,Features) values(" + class_id + ",'" + name + "','" +
                  name + "'," + feature + ");");
    }
};

TEST_F(OddCatalogue, numbers_in_a_column_without_a_type_belong_to_no_class) {
    retype("", "text");
    add("3", "number", "'f1'");
    EXPECT_EQ(joined_names(), "");
    EXPECT_EQ(names_of("3:f1"), "C:");
    add("'3'", "text", "'f1'");
    EXPECT_EQ(joined_names(), "text/");
    EXPECT_EQ(names_of("3:f1"), "C:text");
}

TEST_F(OddCatalogue, of_applications_with_one_feature_the_first_one_counts) {
    for (const char *name : {"first", "second", "third"}) {
        add("3", name, "'f1'");
    }
    EXPECT_EQ(names_of("3:f1?f1"), "C:first?first");
    EXPECT_EQ(joined_names(), "first/second/third/");
}

TEST_F(OddCatalogue, applications_of_classes_in_turn_keep_their_order) {
    for (const char *name : {"c", "a", "b"}) {
        add("3", name, std::string("'f") + name + "'");
        add("4", std::string("not ") + name, "''");
        add("7", std::string("nor ") + name, "''");
    }
    EXPECT_EQ(joined_names(), "c/a/b/");
    EXPECT_EQ(names_of("3:fb?fc"), "C:b?c");
}

TEST_F(OddCatalogue, texts_in_a_column_of_texts_belong_to_the_class_with_these_digits) {
    retype("text", "text");
    for (const char *class_id : {"'3'", "'03'", "' 3'", "'3.0'", "3"}) {
        add(class_id, std::to_string(std::string(class_id).size()), "'f1'");
    }
    EXPECT_EQ(joined_names(), "3/1/");
}

TEST_F(OddCatalogue, numbers_beyond_the_range_belong_to_no_class) {
    add("4294967299", "beyond", "'f1'");
    EXPECT_EQ(joined_names(), "");
    add("3", "within", "'f1'");
    EXPECT_EQ(joined_names(), "within/");
    EXPECT_EQ(names_of("3:f1"), "C:within");
}

TEST_F(OddCatalogue, a_class_that_is_null_or_a_word_hides_no_other) {
    add("NULL", "null", "'f1'");
    add("'three'", "word", "'f1'");
    add("3", "number", "'f1'");
    EXPECT_EQ(joined_names(), "number/");
}

TEST_F(OddCatalogue, a_feature_with_a_zero_byte_is_not_the_text_before_it) {
    add("3", "zero", "'f1'||char(0)||'x'");
    EXPECT_EQ(names_of("3:f1"), "C:");
    add("3", "plain", "'f1'");
    EXPECT_EQ(names_of("3:f1"), "C:plain");
}

TEST_F(OddCatalogue, numbers_are_features_where_the_column_makes_texts_of_them) {
    add("3", "five", "5");
    EXPECT_EQ(names_of("3:5"), "C:five");
    retype("integer", "");
    add("3", "five", "5");
    EXPECT_EQ(names_of("3:5"), "C:");
    retype("integer", "integer");
    add("3", "five", "'5'");
    EXPECT_EQ(names_of("3:5"), "C:five");
    EXPECT_EQ(names_of("3:05"), "C:five");
}

TEST_F(OddCatalogue, bytes_are_no_feature) {
    add("3", "bytes", "x'6631'");
    EXPECT_EQ(names_of("3:f1"), "C:");
}

TEST_F(OddCatalogue, a_feature_with_quotes_is_part_of_the_statement) {
    add("3", "one quote", "'it''s'");
    add("3", "two quotes", "'it''''s'");
    EXPECT_EQ(names_of("3:it''s"), support::build_profile.doubles_quotes ? "C:two quotes" : "C:one quote");
}

TEST(FailedLookups, say_so_each_time) {
    catalogue("drop table App_Class;");
    support::execute(
        "insert into behavior_rule(behavior_info) values('3:AND3:'),('3:');"
        "insert into filter_url(timecontrol,timegroup_id) values(2,3),(2,3); drop table user_timegroup;");
    static BehaviorItemList behaviors;
    static UrlFilterItemList filters;
    EXPECT_EQ(
        support::streams_of([] { GetBehaviorItemListInServer(&behaviors, "select * from behavior_rule;"); }).output,
        "Error: no such table: App_ClassError: no such table: App_ClassError: no such table: App_Class");
    EXPECT_EQ(support::streams_of([] { GetUrlFilterItemListInServer(&filters, "select * from filter_url;"); }).output,
              "cannot prepare sql cmdline, Error: no such table: user_timegroup\n"
              "cannot prepare sql cmdline, Error: no such table: user_timegroup\n");
}

}  // namespace
