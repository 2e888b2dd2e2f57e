// What the builders look up for single rules: in which order, what it leaves behind, and what it costs when it fails.
// And what an added behaviour rule leaves in the system log.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>

#include "routerdb.h"
#include "support/database.h"
#include "support/fake_service.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace {

using support::build_profile;
using support::Recorder;

using Lines = std::vector<std::string>;

constexpr char lease_file[] = "/var/dhcp.leases";
constexpr char pid_file[] = "/var/run/dnsmasq/dnsmasq.pid";
constexpr char lease[] = "1700000000 00:11:22:33:44:55 192.168.1.20 tablet\n";

constexpr char groups[] =
    "insert into user_ipgroup values(4,'guests','192.168.1.100','192.168.1.199','');"
    "insert into user_timegroup values(3,'evenings',0,0,0,0,0,0,1,'18:00','23:59','');";
constexpr char behavior_rule[] =
    "insert into behavior_rule(ipcontrol,ipgroup_id,timecontrol,timegroup_id,devmac,behavior_info) "
    "values(2,4,2,3,'00:11:22:33:44:55','3:f1');";
constexpr char ip_filter[] =
    "insert into filter_ipport(ipcontrol,ipgroup_id,timecontrol,timegroup_id,devstartip) values(2,4,2,3,'10.0.0.1');";
constexpr char qos_rule[] = "insert into qos_rule(ipcontrol,ipgroup_id,devstartip) values(2,4,'10.0.0.1');";
constexpr char mac_filters[] =
    "insert into filter_mac(devmac,mark) values('00:11:22:33:44:55','one'),('',''),('AA:BB:CC:DD:EE:FF','three');";
constexpr int lease_readings = build_profile.remembers_lookups ? 1 : 2;  // for the two that have an address
constexpr int streams_left = build_profile.closes_its_own ? 0 : lease_readings;

template <typename List>
std::unique_ptr<List> built(int (*build)(List *, const char *), const char *sql) {
    auto list = std::make_unique<List>();
    build(list.get(), sql);
    return list;
}

auto built_behavior_rules() {
    return built(GetBehaviorItemListInServer, "select * from behavior_rule;");
}

auto built_mac_filters() {
    return built(GetMacFilterItemListInServer, "select * from filter_mac;");
}

void expect_no_names_but_the_host(const BehaviorItemList &list) {
    ASSERT_EQ(list.count, 1U);
    EXPECT_STREQ(list.items[0].behavior_info, "3:f1");
    EXPECT_STREQ(list.items[0].hostname, "tablet");
    EXPECT_STREQ(list.items[0].behavior_names, "");
    EXPECT_STREQ(list.items[0].behavior_names_en, "");
}

void catalogue(const char *sql) {
    support::Database(support::catalogue_database).execute(sql);
}

/// The lookups of IP group 4 and of time group 3.
constexpr const char *ip_group_lookup =
    build_profile.binds_ids ? "sqlite3_prepare_v2 select name,startip,endip from user_ipgroup where Id=?1 ;"
                            : "sqlite3_prepare_v2 select name,startip,endip from user_ipgroup where Id='4' ;";
constexpr const char *time_group_lookup = build_profile.binds_ids
                                              ? "sqlite3_prepare_v2 select * from user_timegroup where id=?1;"
                                              : "sqlite3_prepare_v2 select * from user_timegroup where id='3';";

TEST(BehaviorBuilder, looks_up_groups_then_the_host_then_names) {
    support::execute(std::string(groups) + behavior_rule);
    support::write_file(lease_file, lease);
    catalogue("insert into App_Class(Id,Name,Name_En) values(3,'聊天','Chat');");
    const Recorder recorder;
    const auto list = built_behavior_rules();
    ASSERT_EQ(list->count, 1U);
    Lines expected{
        "open lock file",
        "lock",
        "sqlite3_open /etc/config/systemconf/database/myrouter.db",
        "sqlite3_prepare_v2 select * from behavior_rule;",
        ip_group_lookup,
        time_group_lookup,
        "usleep 1000",  // for the server to write its leases
        "sqlite3_open /etc/config/systemconf/database/dpilib.db",
        "sqlite3_prepare_v2 select  Name,Name_En from App_Class where Id='3';",
    };
    if (!build_profile.shares_connection) {
        expected.insert(expected.end(), {"sqlite3_close", "sqlite3_open /etc/config/systemconf/database/dpilib.db"});
    }
    expected.emplace_back(
        build_profile.remembers_lookups
            ? "sqlite3_prepare_v2 select Class_Id,Name,Name_En,Features from App_Info where Class_Id=''||Class_Id;"
            : "sqlite3_prepare_v2 select Name,Name_En from App_Info where Class_Id='3' and Features='f1';");
    expected.insert(expected.end(), {"sqlite3_close", "sqlite3_close", "unlock", "close lock file"});
    EXPECT_EQ(recorder.calls({"open lock", "close lock", "lock", "unlock", "sqlite3_open", "sqlite3_prepare",
                              "sqlite3_close", "usleep", "kill"}),
              expected);
    EXPECT_STREQ(list->items[0].ipgroup_name, "guests");
    EXPECT_STREQ(list->items[0].timegroup_name, "evenings");
    EXPECT_STREQ(list->items[0].hostname, "tablet");
    EXPECT_STREQ(list->items[0].behavior_names_en, "Chat:");
}

TEST(BehaviorBuilder, a_catalogue_that_cannot_be_opened_costs_the_names_only) {
    support::execute(behavior_rule);
    support::write_file(lease_file, lease);
    unlink(support::catalogue_database);
    mkdir(support::catalogue_database, 0755);
    const auto streams = support::streams_of([] { expect_no_names_but_the_host(*built_behavior_rules()); });
    EXPECT_EQ(streams.output, "Error: unable to open database fileError: unable to open database file");
    EXPECT_EQ(streams.error, "");
}

TEST(BehaviorBuilder, a_catalogue_without_its_tables_costs_the_names_only) {
    support::execute(behavior_rule);
    support::write_file(lease_file, lease);
    catalogue("drop table App_Class; drop table App_Info;");
    const auto streams = support::streams_of([] { expect_no_names_but_the_host(*built_behavior_rules()); });
    EXPECT_EQ(streams.output, "Error: no such table: App_ClassError: no such table: App_Info");
    EXPECT_EQ(streams.error, "");
}

TEST(BehaviorBuilder, a_feature_with_an_apostrophe_costs_its_own_name_only) {
    support::execute("insert into behavior_rule(behavior_info) values('3:f''1?f2');");
    catalogue(
        "insert into App_Class(Id,Name,Name_En) values(3,'聊天','Chat');"
        "insert into App_Info(Class_Id,Name,Name_En,Features) values(3,'应用二','App 2','f2');");
    const auto streams = support::streams_of([] {
        const auto list = built_behavior_rules();
        ASSERT_EQ(list->count, 1U);
        EXPECT_STREQ(list->items[0].behavior_names, "聊天:应用二");
        EXPECT_STREQ(list->items[0].behavior_names_en, "Chat:App 2");
    });
    EXPECT_EQ(streams.output, support::build_profile.doubles_quotes ? "" : "Error: near \"1\": syntax error");
}

TEST(IpFilterBuilder, looks_up_the_ip_group_before_the_time_group) {
    support::execute(std::string(groups) + ip_filter);
    const Recorder recorder;
    built(GetIpFilterItemListInServer, "select * from filter_ipport;");
    EXPECT_EQ(recorder.calls({"sqlite3_prepare"}),
              (Lines{"sqlite3_prepare_v2 select * from filter_ipport;", ip_group_lookup, time_group_lookup}));
}

TEST(IpFilterBuilder, without_the_table_of_ip_groups_says_so_and_has_no_range) {
    support::execute(std::string(groups) + ip_filter + "drop table user_ipgroup;");
    const auto streams = support::streams_of([] {
        const auto list = built(GetIpFilterItemListInServer, "select * from filter_ipport;");
        ASSERT_EQ(list->count, 1U);
        EXPECT_STREQ(list->items[0].devstartip, "");
        EXPECT_STREQ(list->items[0].timegroup_name, "evenings");
    });
    EXPECT_EQ(streams.output, "Error: no such table: user_ipgroup");
}

TEST(QosBuilder, without_the_table_of_ip_groups_says_so_and_keeps_its_range) {
    support::execute(std::string(qos_rule) + "drop table user_ipgroup;");
    const auto streams = support::streams_of([] {
        const auto list = built(GetQosItemListInServer, "select * from qos_rule;");
        ASSERT_EQ(list->count, 1U);
        EXPECT_STREQ(list->items[0].devstartip, "10.0.0.1");
    });
    EXPECT_EQ(streams.output, "Error: no such table: user_ipgroup");
}

TEST(MacFilterBuilder, leaves_a_stream_open_for_each_reading_of_the_leases_where_the_profile_does) {
    support::execute(mac_filters);
    support::write_file(lease_file, lease);
    const int descriptors = support::open_descriptors();
    const auto list = built_mac_filters();
    EXPECT_STREQ(list->items[0].hostname, "tablet");
    EXPECT_STREQ(list->items[2].hostname, "");
    EXPECT_EQ(support::open_descriptors(), descriptors + streams_left);
}

TEST(MacFilterBuilder, without_leases_says_so_for_each_rule_and_lists_them_all) {
    support::execute(mac_filters);
    const int descriptors = support::open_descriptors();
    const auto streams = support::streams_of([] {
        const auto list = built_mac_filters();
        ASSERT_EQ(list->count, 3U);
        EXPECT_STREQ(list->items[0].hostname, "");
        EXPECT_STREQ(list->items[0].mark, "one");
        EXPECT_STREQ(list->items[2].mark, "three");
    });
    EXPECT_EQ(streams.output, "");
    EXPECT_EQ(streams.error,
              "could not open input file: No such file or directory\n"
              "could not open input file: No such file or directory\n");
    EXPECT_EQ(support::open_descriptors(), descriptors);
}

TEST(MacFilterBuilder, asks_the_server_for_its_leases_before_each_reading) {
    support::execute(mac_filters);
    support::write_file(lease_file, lease);
    support::Process server([] { return pause() == 0; });
    const std::string id = std::to_string(server.id());
    support::write_file(pid_file, id + "\n");
    const Recorder recorder;
    built_mac_filters();
    const Lines once{"kill " + id + " 10", "usleep 1000"};
    Lines expected = once;
    for (int n = 1; n < lease_readings; ++n) {
        expected.insert(expected.end(), once.begin(), once.end());
    }
    EXPECT_EQ(recorder.calls({"kill", "usleep"}), expected);
    EXPECT_EQ(server.wait(), 128 + 10);
}

/// The calls of an operation on a rule with this text, up to the first one for its request.
Lines calls_before_request(void (*operation)(const BehaviorItem *), const std::string &info) {
    const support::FakeService service(support::reply_of(""));
    const support::Record rule = support::Record(7680).unterminated(1308, info);
    const Recorder recorder;
    operation(reinterpret_cast<const BehaviorItem *>(rule.data()));
    Lines calls = recorder.calls();
    for (std::size_t i = 0; i < calls.size(); ++i) {
        if (calls[i].compare(0, 7, "socket ") == 0) {
            calls.resize(i);
        }
    }
    return calls;
}

TEST(AddBehaviortem, logs_what_it_is_about_before_it_sends) {
    for (const std::string &info :
         {std::string("3:f1?f2AND7:f9"), std::string(), std::string("%s%d%n 办公室"), std::string(2048, 'b')}) {
        const std::string message = "syslog 6 pinfo->behavior_info:" + info;
        EXPECT_EQ(calls_before_request(AddBehaviortem, info),
                  build_profile.leaves_program_state ? Lines{message}
                                                     : (Lines{"openlog AddBehaviortem 0 0", message, "closelog"}));
    }
}

TEST(ModifyBehaviorItem, logs_nothing) {
    EXPECT_EQ(calls_before_request(ModifyBehaviorItem, "3:f1"), Lines{});
}

}  // namespace
