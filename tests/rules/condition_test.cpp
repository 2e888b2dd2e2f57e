// What counts as a plain condition.
#include "rules/condition.h"

#include <gtest/gtest.h>

#include <string>

#include "routerdb.h"
#include "support/fake_service.h"
#include "support/profile.h"
#include "support/recorder.h"

namespace {

using routerdb::is_plain_condition;
using support::build_profile;

TEST(Condition, that_compares_columns_with_values_is_plain) {
    for (const char *condition : {
             "id='3'",
             "id = 3",
             "  id=-3  ",
             "id==+3",
             "id='3' or id='7'",
             "id='3'or id='7'",
             "id<>3 AND (mark!='a' OR mark<'b') and ((status>=1))",
             "name='it''s'",
             "name=''",
             "name='1=1; drop table x --'",
             "id in (1)",
             "id IN ('1', 2,\n'3') and name>'m'",
             "(id=1 or (id=2)) and _col9<=7",
             "\tAZ_09\r=\f'x'",
             "z=1",
         }) {
        EXPECT_TRUE(is_plain_condition(condition)) << condition;
    }
}

TEST(Condition, that_does_more_is_not) {
    for (const char *condition : {
             "",
             " ",
             "1",
             "1=1",
             "'a'='a'",
             "id",
             "id=id",
             "id=id2",
             "true=1",
             "FALSE <> 1",
             "null<>1",
             "Current_Timestamp > 0",
             "current_date>'0'",
             "id=1 or 1",
             "id=1 or 1=1",
             "id=1 or",
             "id=1 id=2",
             "id=1;",
             "id=1; delete from user_urlinfo",
             "id=1 --",
             "id=1 /* */",
             "id=1 union select 1",
             "id='1",
             "id='it's'",
             "id=1.5",
             "id=1e5",
             "id=0x10",
             "id=x'31'",
             "id=--1",
             "id=+",
             "id=-",
             "id=",
             "id=1_",
             "id=1Z",
             "@id=1",
             "id[=1",
             "`id`=1",
             "id{=1",
             "id/=1",
             "id:=1",
             "id in",
             "id in (1 2)",
             "(",
             "id in ()",
             "id in (1,)",
             "id in (1",
             "id in (select 1)",
             "id in user_urlinfo",
             "(id=1",
             "id=1)",
             "()",
             "not id=1",
             "id like '%'",
             "id is not null",
             "id between 0 and 9",
             "\"id\"=1",
             "abs(id)=1",
             "id!1",
             "1id=1",
             "id=?1",
         }) {
        EXPECT_FALSE(is_plain_condition(condition)) << condition;
    }
    EXPECT_FALSE(is_plain_condition({"id=1\0", 5}));
}

TEST(Condition, of_any_depth_is_read) {
    const std::string open(100'000, '(');
    const std::string close(100'000, ')');
    EXPECT_TRUE(is_plain_condition(open + "id=1" + close));
    EXPECT_FALSE(is_plain_condition(open + "id=1"));
    EXPECT_FALSE(is_plain_condition(open));
}

TEST(Condition, that_is_not_plain_sends_nothing_where_conditions_are_checked) {
    support::FakeService service(support::reply_of(""));
    const support::Recorder recorder;
    errno = 0;
    DelUrlFilterItem("1");
    const int reason = errno;
    DelUrlFilterItemById("id=1 or 1=1", 1);
    errno = 0;
    DelUrlFilterItem("id='7'");
    EXPECT_EQ(errno, 0);
    const std::vector<std::string> log = recorder.calls({"syslog"});
    const std::string refusal =
        "syslog 3 delete from filter_url refused: its condition does more than compare columns with values\n";
    std::vector<std::string> requests;
    for (const std::string &request : service.requests()) {
        requests.push_back(support::readable(request));
    }
    const std::string plain = "2 2 36 delete from filter_url where id='7';";
    if (build_profile.checks_conditions) {
        EXPECT_EQ(reason, EINVAL);
        EXPECT_EQ(log, std::vector<std::string>(2, refusal));
        EXPECT_EQ(requests, std::vector<std::string>{plain});
    } else {
        EXPECT_EQ(log, std::vector<std::string>{});
        EXPECT_EQ(requests, (std::vector<std::string>{"2 2 31 delete from filter_url where 1;",
                                                      "2 2 41 delete from filter_url where id=1 or 1=1;", plain}));
    }
}

}  // namespace
