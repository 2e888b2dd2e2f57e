// Names of application classes and applications, and behaviour rules in words.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>

#include "core/holdings.h"
#include "routerdb.h"
#include "support/database.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::Recorder;
using Lines = std::vector<std::string>;

constexpr char open_call[] = "sqlite3_open /etc/config/systemconf/database/dpilib.db";

void execute_on_catalogue(const std::string &sql) {
    support::Database(support::catalogue_database).execute(sql);
}

/// The names, as "name|English name", in buffers that held "before" and "earlier".
std::string look_up(void (*call)(char *name, char *name_en)) {
    char name[1024] = "before";
    char name_en[1024] = "earlier";
    call(name, name_en);
    return std::string(name) + "|" + name_en;
}

std::string look_class_up() {
    return look_up([](char *name, char *name_en) { GetClassNameByClassId(3, name, name_en); });
}

std::string look_application_up() {
    return look_up([](char *name, char *name_en) { GetAppNameByClassIdAppfeature(3, "f1", name, name_en); });
}

struct Names : support::Named {
    std::string (*look_up)();
    std::string table;
    std::string query;
    std::string key;  // the columns by which it is found, and their values
    std::string values;
};

class CatalogueNames : public testing::TestWithParam<Names> {
protected:
    static void insert(const std::string &name, const std::string &name_en) {
        execute_on_catalogue("insert into " + GetParam().table + "(" + GetParam().key + ",Name,Name_En) values(" +
                             GetParam().values + "," + name + "," + name_en + ");");
    }
};

TEST_P(CatalogueNames, are_both_copied) {
    insert("'聊天'", "'Chat'");
    EXPECT_EQ(GetParam().look_up(), "聊天|Chat");
}

TEST_P(CatalogueNames, are_copied_whole) {
    insert("'" + std::string(1000, 'n') + "'", "'" + std::string(900, 'e') + "'");
    EXPECT_EQ(GetParam().look_up(), std::string(1000, 'n') + "|" + std::string(900, 'e'));
}

TEST_P(CatalogueNames, that_are_missing_leave_the_buffers_as_they_were) {
    const auto said = support::streams_of([] { EXPECT_EQ(GetParam().look_up(), "before|earlier"); });
    EXPECT_EQ(said.output + said.error, "");
}

TEST_P(CatalogueNames, that_are_null_are_copied_as_empty_texts) {
    insert("NULL", "'Chat'");
    EXPECT_EQ(GetParam().look_up(), "|Chat");
    execute_on_catalogue("update " + GetParam().table + " set Name='n',Name_En=NULL;");
    EXPECT_EQ(GetParam().look_up(), "n|");
}

TEST_P(CatalogueNames, are_one_statement_on_the_catalogue_without_lock) {
    insert("'n'", "'e'");
    const int descriptors = support::open_descriptors();
    Recorder recorder;
    Holdings holdings(recorder);
    GetParam().look_up();
    EXPECT_EQ(recorder.calls(), (Lines{"draw", open_call, "sqlite3_prepare_v2 " + GetParam().query, "sqlite3_step",
                                       "sqlite3_finalize", "sqlite3_close"}));
    EXPECT_EQ(holdings.changes(), Lines());
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST_P(CatalogueNames, wait_for_a_busy_catalogue) {
    insert("'n'", "'e'");
    Recorder recorder;
    recorder.answer("draw", {0});
    for (const char *function : {"sqlite3_open", "sqlite3_prepare_v2", "sqlite3_step"}) {
        recorder.answer(function, {SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR});
    }
    EXPECT_EQ(GetParam().look_up(), "n|e");
    EXPECT_EQ(recorder.sleeps(), (std::vector<unsigned>{56, 61, 66, 71, 76, 81, 86, 91, 96}));
}

TEST_P(CatalogueNames, stay_as_they_were_after_a_message_without_the_table) {
    execute_on_catalogue("drop table " + GetParam().table + ";");
    const auto said = support::streams_of([] { EXPECT_EQ(GetParam().look_up(), "before|earlier"); });
    EXPECT_EQ(said.output, "Error: no such table: " + GetParam().table);
    EXPECT_EQ(said.error, "");
}

TEST_P(CatalogueNames, stay_as_they_were_after_a_message_without_a_catalogue) {
    ASSERT_EQ(unlink(support::catalogue_database), 0);
    ASSERT_EQ(mkdir(support::catalogue_database, 0755), 0);
    const int descriptors = support::open_descriptors();
    const Recorder recorder;
    const auto said = support::streams_of([] { EXPECT_EQ(GetParam().look_up(), "before|earlier"); });
    EXPECT_EQ(said.output, "Error: unable to open database file");
    EXPECT_EQ(said.error, "");
    EXPECT_EQ(support::open_descriptors(), descriptors);
    EXPECT_EQ(recorder.calls({"sqlite3"}), (Lines{open_call, "sqlite3_close"}));
}

INSTANTIATE_TEST_SUITE_P(All, CatalogueNames,
                         testing::Values(Names{"OfClass", look_class_up, "App_Class",
                                               "select  Name,Name_En from App_Class where Id='3';", "Id", "3"},
                                         Names{
                                             "OfApplication", look_application_up, "App_Info",
                                             "select Name,Name_En from App_Info where Class_Id='3' and Features='f1';",
                                             "Class_Id,Features", "3,'f1'"}),
                         [](const auto &test) { return test.param.name; });

TEST(ApplicationName, is_that_of_the_first_row) {
    execute_on_catalogue(
        "insert into App_Info(Class_Id,Features,Name,Name_En) values(3,'f1','first','one'),(3,'f1','second','two');");
    EXPECT_EQ(look_application_up(), "first|one");
}

TEST(ApplicationName, of_a_null_feature_is_that_of_the_empty_one) {
    execute_on_catalogue("insert into App_Info(Class_Id,Features,Name,Name_En) values(-3,'','n','e');");
    EXPECT_EQ(look_up([](char *name, char *name_en) { GetAppNameByClassIdAppfeature(-3, nullptr, name, name_en); }),
              "n|e");
}

TEST(ApplicationName, is_looked_up_by_a_feature_of_any_length_as_given) {
    static const std::string feature = std::string(5000, 'f') + "' or '1'='1";
    execute_on_catalogue("insert into App_Info(Class_Id,Features,Name,Name_En) values(9,'other','n','e');");
    const Recorder recorder;
    EXPECT_EQ(
        look_up([](char *name, char *name_en) { GetAppNameByClassIdAppfeature(3, feature.c_str(), name, name_en); }),
        support::build_profile.doubles_quotes ? "before|earlier" : "n|e");
    EXPECT_EQ(recorder.calls({"sqlite3_prepare_v2"}),
              Lines{"sqlite3_prepare_v2 select Name,Name_En from App_Info where Class_Id='3' and Features='" +
                    support::as_value(feature) + "';"});
}

/// A behaviour rule, and what is appended to its two texts.
struct Behavior : support::Named {
    const char *info;
    const char *names;
    const char *names_en;
};

class BehaviorNames : public testing::TestWithParam<Behavior> {
protected:
    BehaviorNames() {
        execute_on_catalogue(
            "insert into App_Class values(3,'Class A','Klasse A',0,''),(7,'Class B','Klasse B',0,''),"
            "(8,'Nameless',NULL,0,''),(0,'Class Z','Klasse Z',0,'');"
            "insert into App_Info(Class_Id,Features,Name,Name_En) values(3,'f1','App 1','Anw 1'),"
            "(3,'f2','App 2','Anw 2'),(3,'half','App half',''),(3,'other half','','Anw half'),(3,'a:b','App ab',"
            "'Anw ab'),(7,'f9','App 9','Anw 9'),(8,'f8','App 8','Anw 8'),(9,'f7','App 7','Anw 7');");
    }
};

TEST_P(BehaviorNames, are_appended) {
    char names[256] = "";
    char names_en[256] = "";
    GetBehaviorItemInfoTypeName(GetParam().info, names, names_en);
    EXPECT_STREQ(names, GetParam().names);
    EXPECT_STREQ(names_en, GetParam().names_en);
}

TEST_P(BehaviorNames, are_appended_to_what_is_there) {
    char names[256] = "before:x?";
    char names_en[256] = "AND";
    GetBehaviorItemInfoTypeName(GetParam().info, names, names_en);
    EXPECT_EQ(std::string(names), "before:x?" + std::string(GetParam().names));
    EXPECT_EQ(std::string(names_en), "AND" + std::string(GetParam().names_en));
}

INSTANTIATE_TEST_SUITE_P(
    All, BehaviorNames,
    testing::Values(Behavior{"Null", nullptr, "", ""}, Behavior{"Empty", "", "", ""},
                    Behavior{"WithoutColon", "3", "", ""}, Behavior{"SeveralWithoutColon", "3AND7?f9", "", ""},
                    Behavior{"OneApplication", "3:f1", "Class A:App 1", "Klasse A:Anw 1"},
                    Behavior{"TwoApplications", "3:f1?f2", "Class A:App 1?App 2", "Klasse A:Anw 1?Anw 2"},
                    Behavior{"TwoGroups", "3:f1?f2AND7:f9", "Class A:App 1?App 2ANDClass B:App 9",
                             "Klasse A:Anw 1?Anw 2ANDKlasse B:Anw 9"},
                    Behavior{"TheSameGroupAgain", "7:f9AND7:f9", "Class B:App 9ANDClass B:App 9",
                             "Klasse B:Anw 9ANDKlasse B:Anw 9"},
                    Behavior{"ClassAlone", "3:", "Class A:", "Klasse A:"},
                    Behavior{"ClassesAlone", "3:AND7:", "Class A:ANDClass B:", "Klasse A:ANDKlasse B:"},
                    Behavior{"UnknownFeatures", "3:f3?f4", "Class A:", "Klasse A:"},
                    Behavior{"UnknownFeatureFirst", "3:f3?f1?f2", "Class A:App 1?App 2", "Klasse A:Anw 1?Anw 2"},
                    Behavior{"UnknownFeatureBetween", "3:f1?f3?f2", "Class A:App 1?App 2", "Klasse A:Anw 1?Anw 2"},
                    Behavior{"EmptyFeatures", "3:?f1??f2?", "Class A:App 1?App 2", "Klasse A:Anw 1?Anw 2"},
                    Behavior{"FeatureOfAnotherClass", "7:f1?f9", "Class B:App 9", "Klasse B:Anw 9"},
                    Behavior{"FeatureWithOneName", "3:half?other half?f1", "Class A:App 1", "Klasse A:Anw 1"},
                    Behavior{"FeatureWithColon", "3:a:b?f1", "Class A:App ab?App 1", "Klasse A:Anw ab?Anw 1"},
                    Behavior{"ClassWithOneName", "8:f8", "App 8", "Anw 8"},
                    Behavior{"UnknownClass", "9:f7", "App 7", "Anw 7"},
                    Behavior{"UnknownClassAndFeature", "10:f1", "", ""},
                    Behavior{"UnknownClassBehindAKnownOne", "3:f1AND9:f7", "Class A:App 1App 7", "Klasse A:Anw 1Anw 7"},
                    Behavior{"KnownClassBehindAnUnknownOne", "9:f7AND3:f1", "App 7ANDClass A:App 1",
                             "Anw 7ANDKlasse A:Anw 1"},
                    Behavior{"NothingWrittenBefore", "10:f1AND3:f1", "Class A:App 1", "Klasse A:Anw 1"},
                    Behavior{"UnknownGroupBetween", "3:f1AND10:f1AND7:f9", "Class A:App 1ANDClass B:App 9",
                             "Klasse A:Anw 1ANDKlasse B:Anw 9"},
                    Behavior{"GroupWithoutColonBetween", "3:f1AND5AND7:f9", "Class A:App 1ANDClass B:App 9",
                             "Klasse A:Anw 1ANDKlasse B:Anw 9"},
                    Behavior{"EmptyGroups", "ANDAND3:f1ANDAND7:f9AND", "Class A:App 1ANDClass B:App 9",
                             "Klasse A:Anw 1ANDKlasse B:Anw 9"},
                    Behavior{"ClassIdWithBlanksAndText", " 3x:f1", "Class A:App 1", "Klasse A:Anw 1"},
                    Behavior{"ClassIdThatIsNoNumber", "x:f1", "Class Z:", "Klasse Z:"},
                    Behavior{"NoClassId", ":f1", "Class Z:", "Klasse Z:"}),
    [](const auto &test) { return test.param.name; });

/// The texts of a rule, as "names|English names".
std::string names_of(const char *info) {
    char names[256] = "";
    char names_en[256] = "";
    GetBehaviorItemInfoTypeName(info, names, names_en);
    return std::string(names) + "|" + names_en;
}

TEST(BehaviorName, lookups_are_in_the_order_of_classes_and_features) {
    const Recorder recorder;
    EXPECT_EQ(names_of("3:f1?f2AND7:f9"), "|");
    const Lines at_once{
        open_call, "sqlite3_prepare_v2 select  Name,Name_En from App_Class where Id='3';",
        "sqlite3_prepare_v2 select Class_Id,Name,Name_En,Features from App_Info where Class_Id=''||Class_Id;",
        "sqlite3_prepare_v2 select  Name,Name_En from App_Class where Id='7';"};
    const Lines one_by_one{
        open_call, "sqlite3_prepare_v2 select  Name,Name_En from App_Class where Id='3';",
        open_call, "sqlite3_prepare_v2 select Name,Name_En from App_Info where Class_Id='3' and Features='f1';",
        open_call, "sqlite3_prepare_v2 select Name,Name_En from App_Info where Class_Id='3' and Features='f2';",
        open_call, "sqlite3_prepare_v2 select  Name,Name_En from App_Class where Id='7';",
        open_call, "sqlite3_prepare_v2 select Name,Name_En from App_Info where Class_Id='7' and Features='f9';"};
    EXPECT_EQ(recorder.calls({"sqlite3_open", "sqlite3_prepare_v2"}),
              support::build_profile.remembers_lookups ? at_once : one_by_one);
}

TEST(BehaviorName, needs_no_lookup_without_a_colon) {
    const Recorder recorder;
    EXPECT_EQ(names_of("3ANDf1?f2"), "|");
    EXPECT_EQ(recorder.calls(), Lines());
}

TEST(BehaviorName, lookups_that_fail_each_print_their_message_and_append_nothing) {
    execute_on_catalogue(
        "drop table App_Class; insert into App_Info(Class_Id,Features,Name,Name_En)"
        " values(3,'f1','App 1','Anw 1');");
    const auto said = support::streams_of([] { EXPECT_EQ(names_of("3:f1AND7:"), "App 1|Anw 1"); });
    EXPECT_EQ(said.output, "Error: no such table: App_ClassError: no such table: App_Class");
    EXPECT_EQ(said.error, "");
}

}  // namespace
