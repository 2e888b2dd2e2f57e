// Tables whose columns are found by their names: neither the order of the columns nor the case of their names counts.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "rules/golden/golden.h"
#include "support/database.h"
#include "support/record.h"
#include "support/streams.h"

namespace {

using golden::Pointer;
using support::Record;

/// A table, or a statement, that has its columns in an order of its own, and the record that the builder makes.
struct Order : support::Named {
    std::function<int(Pointer, const char *)> build;
    std::string rows;  // statements that leave the row
    std::string query;
    Record record;
};

constexpr char groups[] =
    "drop table user_ipgroup;"
    "create table user_ipgroup(ENDIP text, mark text, StartIp text, ID integer, Name text);"
    "insert into user_ipgroup values('192.168.1.150','','192.168.1.100',4,'guests');"
    "insert into user_timegroup values(3,'evenings',1,0,1,1,0,0,1,'18:00','23:59','after work');";

Record ip_group() {
    return Record(368)
        .number(0, 7)
        .text(4, "guests")
        .text(154, "192.168.1.100")
        .text(184, "192.168.1.150")
        .text(214, "second floor");
}

std::vector<Order> ip_groups() {
    const auto order = [](const char *name, const char *rows, const char *query, const Record &record) {
        return Order{std::string("user_ipgroup ") + name, GetIpGroupItemListInServer, rows, query, record};
    };
    const char *shuffled =
        "drop table user_ipgroup;"
        "create table user_ipgroup(Mark text, eNdIp text, NAME text, extra text, ID integer, StartIP text);"
        "insert into user_ipgroup values('second floor','192.168.1.150','guests','more',7,'192.168.1.100');";
    const char *short_of_columns =
        "drop table user_ipgroup; create table user_ipgroup(endip text, Id integer);"
        "insert into user_ipgroup values('192.168.1.150',7);";
    const char *plain = "insert into user_ipgroup values(7,'guests','192.168.1.100','192.168.1.150','second floor');";
    const char *all = "select * from user_ipgroup;";
    return {
        order("shuffled", shuffled, all, ip_group()),
        order("shuffled by the statement", plain, "select MARK,startip,ID,EndIp,name from user_ipgroup;", ip_group()),
        order("under other names", plain,
              "select name as mark, mark as Name, endip as startip, startip as ENDIP, id from user_ipgroup;",
              Record(368)
                  .number(0, 7)
                  .text(4, "second floor")
                  .text(154, "192.168.1.150")
                  .text(184, "192.168.1.100")
                  .text(214, "guests")),
        order("short of columns", short_of_columns, all, Record(368).number(0, 7).text(184, "192.168.1.150")),
        order("without an id", plain, "select startip from user_ipgroup;", Record(368).text(154, "192.168.1.100")),
        order("without any of its columns", plain, "select 'x' as other, 5 as number from user_ipgroup;", Record(368)),
    };
}

std::vector<Order> white_lists() {
    const auto order = [](const char *name, const char *rows, const char *query, const Record &record) {
        return Order{std::string("smartqos_whitelist ") + name, GetSmartQosItemListInServer, rows, query, record};
    };
    const Record whole = Record(328).number(0, 7).text(154, "00:11:22:AA:BB:CC").text(174, "living room");
    const char *shuffled =
        "drop table smartqos_whitelist; create table smartqos_whitelist(MARK text, Id integer, DevMac text);"
        "insert into smartqos_whitelist values('living room',7,'00:11:22:AA:BB:CC');";
    const char *plain = "insert into smartqos_whitelist values(7,'00:11:22:AA:BB:CC','living room');";
    return {
        order("shuffled", shuffled, "select * from smartqos_whitelist;", whole),
        order("shuffled by the statement", plain, "select mark,DEVMAC,'x' as x,iD from smartqos_whitelist;", whole),
        order("without its address", plain, "select mark,id from smartqos_whitelist;",
              Record(328).number(0, 7).text(174, "living room")),
        order("without its mark", plain, "select devmac,id from smartqos_whitelist;",
              Record(328).number(0, 7).text(154, "00:11:22:AA:BB:CC")),
    };
}

std::vector<Order> user_urls() {
    const auto order = [](const char *name, const char *rows, const char *query, const Record &record) {
        return Order{std::string("user_urlinfo ") + name, GetUserUrlItemListInServer, rows, query, record};
    };
    const Record whole = Record(820).number(0, 7).text(4, "news").text(154, "news.example.com").text(666, "every day");
    const char *shuffled =
        "drop table user_urlinfo; create table user_urlinfo(URL text, Mark text, nAME text, ID integer);"
        "insert into user_urlinfo values('news.example.com','every day','news',7);";
    const char *plain = "insert into user_urlinfo values(7,'news','news.example.com','every day');";
    return {
        order("shuffled", shuffled, "select * from user_urlinfo;", whole),
        order("shuffled by the statement", plain, "select mark,'x' as x,Url,ID,NAME from user_urlinfo;", whole),
        order("without its name", plain, "select url,mark,id from user_urlinfo;",
              Record(820).number(0, 7).text(154, "news.example.com").text(666, "every day")),
        order("without its address", plain, "select id,mark,name from user_urlinfo;",
              Record(820).number(0, 7).text(4, "news").text(666, "every day")),
    };
}

constexpr char shuffled_qos[] =
    "drop table qos_rule;"
    "create table qos_rule(MARK text, WeekDay7 integer, weekday1 integer, Weekday6 integer, weekday2 integer,"
    " weekday5 integer, weekday3 integer, WEEKDAY4 integer, ipgroup_ID integer, TimeGroup_Id integer, End_Time text,"
    " START_TIME text, bw_shared_MODE integer, Bw_Down integer, BW_up integer, Status integer, DevEndIp text,"
    " DEVSTARTIP text, DevMac text, Control_Type integer, timeControl integer, IPcontrol integer, extra text,"
    " NAME text, ID integer);";

constexpr char shuffled_behavior[] =
    "drop table behavior_rule;"
    "create table behavior_rule(MARK text, WeekDay7 integer, weekday1 integer, Weekday6 integer, weekday2 integer,"
    " weekday5 integer, weekday3 integer, WEEKDAY4 integer, ipgroup_ID integer, TimeGroup_Id integer, End_Time text,"
    " START_TIME text, Behavior_Info text, BEHAVIOR_TYPE integer, Status integer, DevEndIp text, DEVSTARTIP text,"
    " DevMac text, Control_Type integer, timeControl integer, IPcontrol integer, extra text, ID integer);";

/// The class and the application of the behaviour rules, and the host whose address they have.
void provide_names() {
    support::Database(support::catalogue_database)
        .execute(
            "insert into App_Class values(3,'游戏','Games',0,'');"
            "insert into App_Info values(1,3,'象棋','Chess','f1','');");
    support::write_file("/var/dhcp.leases", "1700000000 00:11:22:AA:BB:CC 192.168.1.9 laptop *\n");
}

Record qos_rule() {
    return Record(1676)
        .number(0, 7)
        .text(4, "video")
        .number(304, 5)
        .text(1376, "00:11:22:AA:BB:CC")
        .text(1396, "10.0.0.1")
        .text(1416, "10.0.0.9")
        .numbers(1436, {21, 22, 23})
        .number(1516, 1)
        .text(1524, "ground floor");
}

Record behavior_rule() {
    return Record(7680)
        .numbers(0, {7, 5})
        .text(8, "laptop")
        .text(1228, "00:11:22:AA:BB:CC")
        .text(1308, "3:f1")
        .text(3356, "游戏:象棋")
        .text(5404, "Games:Chess")
        .text(7520, "ground floor")
        .number(7672, 1);
}

/// The group's times, with the places of a time group's copy, its name, and the rule's own times.
Record with_time_group(Record rule, std::size_t copy, std::size_t name, std::size_t weekdays) {
    return rule.number(copy, 3)
        .text(copy + 4, "evenings")
        .numbers(copy + 156, {1, 0, 1, 1, 0, 0, 1})
        .text(copy + 184, "18:00")
        .text(copy + 204, "23:59")
        .text(copy + 224, "after work")
        .text(name, "evenings")
        .numbers(weekdays, {1, 0, 1, 1, 0, 0, 1})
        .text(weekdays + 28, "18:00")
        .text(weekdays + 48, "23:59");
}

Record with_own_time(Record rule, std::size_t weekdays) {
    return rule.numbers(weekdays, {11, 12, 13, 14, 15, 16, 17})
        .text(weekdays + 28, "08:00")
        .text(weekdays + 48, "18:30");
}

/// What the references of a QoS rule come to: IP group 4 and time group 3, whose own range stays.
Record referring_qos_rule() {
    return with_time_group(qos_rule(), 996, 844, 1448)
        .numbers(308, {2, 4})
        .text(316, "guests")
        .text(472, "guests")
        .text(622, "192.168.1.100")
        .text(652, "192.168.1.150")
        .numbers(836, {2, 3});
}

Record referring_behavior_rule() {
    return with_time_group(behavior_rule(), 848, 696, 7452)
        .numbers(160, {2, 4})
        .text(172, "guests")
        .text(322, "192.168.1.100")
        .text(352, "192.168.1.150")
        .text(536, "guests")
        .numbers(688, {2, 3})
        .text(1248, "192.168.1.100")
        .text(1278, "192.168.1.150");
}

std::vector<Order> qos_rules() {
    const auto order = [](const char *name, const std::string &rows, const char *query, const Record &record) {
        return Order{std::string("qos_rule ") + name, GetQosItemListInServer, groups + rows, query, record};
    };
    const std::string values =
        "insert into qos_rule values('ground floor',17,11,16,12,15,13,14,4,3,'18:30','08:00',23,"
        "22,21,1,'10.0.0.9','10.0.0.1','00:11:22:AA:BB:CC',5,";
    const std::string own = values + "1,1,'more','video',7);";
    const std::string referring = values + "2,2,'more','video',7);";
    const std::string plain =
        "insert into qos_rule values(7,'video',5,'00:11:22:AA:BB:CC',2,4,'10.0.0.1','10.0.0.9',2,3,"
        "11,12,13,14,15,16,17,'08:00','18:30',21,22,23,1,'ground floor');";
    const char *all = "select * from qos_rule;";
    return {
        order("with an own time, shuffled", shuffled_qos + own, all,
              with_own_time(qos_rule(), 1448).number(308, 1).number(836, 1)),
        order("with groups, shuffled", shuffled_qos + referring, all, referring_qos_rule()),
        order("with groups, shuffled by the statement", plain,
              "select timegroup_id,ipgroup_id,TIMEcontrol,ipCONTROL,mark,status,bw_shared_mode,bw_down,bw_up,end_time,"
              "start_time,weekday7,devendip,devstartip,DEVMAC,control_type,name,id from qos_rule;",
              referring_qos_rule()),
        order("without the columns that say where its times and addresses are from", plain,
              "select mark,status,timegroup_id,ipgroup_id,start_time,weekday2,bw_shared_mode,bw_down,bw_up,devendip,"
              "devstartip,devmac,control_type,name,id from qos_rule;",
              qos_rule()),
        order("short of weekdays", plain, "select 1 as timecontrol, weekday7, weekday3, end_time, id from qos_rule;",
              Record(1676).number(0, 7).number(836, 1).number(1456, 13).number(1472, 17).text(1496, "18:30")),
        order("without group numbers", plain, "select timecontrol,ipcontrol,name from qos_rule;",
              Record(1676).text(4, "video").number(308, 2).number(836, 2)),
    };
}

std::vector<Order> behavior_rules() {
    const auto order = [](const char *name, const std::string &rows, const char *query, const Record &record) {
        return Order{std::string("behavior_rule ") + name, GetBehaviorItemListInServer, groups + rows, query, record};
    };
    const std::string values =
        "insert into behavior_rule values('ground floor',17,11,16,12,15,13,14,4,3,'18:30',"
        "'08:00','3:f1',99,1,'10.0.0.9','10.0.0.1','00:11:22:AA:BB:CC',5,";
    const std::string own = values + "1,1,'more',7);";
    const std::string referring = values + "2,2,'more',7);";
    const std::string plain =
        "insert into behavior_rule values(7,5,2,4,2,3,'00:11:22:AA:BB:CC','10.0.0.1','10.0.0.9',0,'3:f1',"
        "11,12,13,14,15,16,17,'08:00','18:30',1,'ground floor');";
    const char *all = "select * from behavior_rule;";
    return {
        order("with a time and addresses of its own, shuffled", shuffled_behavior + own, all,
              with_own_time(behavior_rule(), 7452)
                  .number(160, 1)
                  .number(688, 1)
                  .text(1248, "10.0.0.1")
                  .text(1278, "10.0.0.9")),
        order("with groups, shuffled", shuffled_behavior + referring, all, referring_behavior_rule()),
        order("with groups, shuffled by the statement", plain,
              "select timegroup_id,ipgroup_id,TIMEcontrol,ipCONTROL,mark,status,behavior_info,end_time,weekday7,"
              "devendip,devstartip,DEVMAC,control_type,id from behavior_rule;",
              referring_behavior_rule()),
        order("without the columns that say where its times and addresses are from", plain,
              "select mark,status,timegroup_id,ipgroup_id,start_time,weekday2,behavior_info,devendip,devstartip,devmac,"
              "control_type,id from behavior_rule;",
              behavior_rule().text(1248, "10.0.0.1").text(1278, "10.0.0.9")),
        order("without its address and what it is about", plain, "select status,control_type,id from behavior_rule;",
              Record(7680).numbers(0, {7, 5}).number(7672, 1)),
        order("without group numbers", plain, "select timecontrol,ipcontrol,mark from behavior_rule;",
              Record(7680).number(160, 2).number(688, 2).text(7520, "ground floor")),
    };
}

std::vector<Order> orders() {
    std::vector<Order> orders;
    for (const auto &of_table : {ip_groups(), white_lists(), user_urls(), qos_rules(), behavior_rules()}) {
        orders.insert(orders.end(), of_table.begin(), of_table.end());
    }
    return orders;
}

class ColumnOrder : public testing::TestWithParam<Order> {};

TEST_P(ColumnOrder, makes_no_difference) {
    const std::string &record = GetParam().record.bytes();
    provide_names();
    support::execute(GetParam().rows);
    std::string list(4 + 128 * record.size(), '\x5a');
    const auto streams = support::streams_of([&] { GetParam().build(list.data(), GetParam().query.c_str()); });
    EXPECT_EQ(streams.output + streams.error, "");
    EXPECT_EQ(support::difference(support::list_of(record, 1, list.size()), list), "");
}

INSTANTIATE_TEST_SUITE_P(, ColumnOrder, testing::ValuesIn(orders()));

}  // namespace
