// What the doctor says of rows.
#include <gtest/gtest.h>

#include "doctor.h"
#include "support/database.h"
#include "support/profile.h"

namespace {

using support::doctor_line;
using support::execute;

void add_bindings(int count) {
    execute("with recursive n(i) as (values(1) union all select i+1 from n where i<" + std::to_string(count) +
            ") insert into dhcpserverstaticbind(devtype, mac, ip, mark)"
            " select 0, 'mac ' || i, 'ip ' || i, '' from n;");
}

TEST(DoctorCapacities, are_said_to_be_reached_or_passed) {
    add_bindings(127);
    EXPECT_EQ(doctor_line("capacities"), "ok    capacities     the fullest table has 127 of 128 rows");
    execute("insert into dhcpserverstaticbind(mac) values('last');");
    EXPECT_EQ(doctor_line("capacities"),
              "warn  capacities     static-binding is full -> \"routerdbctl rule rm\" makes room");
    execute("insert into dhcpserverstaticbind(mac) values('one more');");
    EXPECT_EQ(doctor_line("capacities"),
              "FAIL  capacities     static-binding has 129 rows, but lists take 128 -> \"routerdbctl rule rm\" makes "
              "room");
}

TEST(DoctorAccessPoints, are_twenty_at_most) {
    execute(
        "with recursive n(i) as (values(1) union all select i+1 from n where i<20) insert into DevInfo(Dev_Sn) select "
        "i from n;");
    EXPECT_EQ(doctor_line("access-points"), "ok    access-points  20 of 20");
    execute("insert into DevInfo(Dev_Sn) values(21);");
    EXPECT_EQ(
        doctor_line("access-points"),
        "warn  access-points  21 access points, but 20 may register -> \"routerdbctl db exec\" removes those that "
        "are gone");
}

TEST(DoctorGroups, that_are_not_there_are_missed) {
    execute(
        "insert into user_timegroup(id, name) values(1, 'evening');"
        "insert into filter_url(id, timecontrol, timegroup_id) values(1, 2, 1), (2, 2, 7), (3, 1, 7), (4, 2, 8);"
        "insert into filter_ipport(id, ipcontrol, ipgroup_id, timecontrol) values(9, 2, 1, 1), (10, 0, 1, 1);"
        "insert into WlanGroupInfo(WlanGroup_Id) values(3);"
        "insert into DevInfo(Dev_Sn, Dev_Wlan_GroupId) values(100, '3'), (101, '0'), (102, ''), (103, '4');");
    EXPECT_EQ(doctor_line("groups"),
              "warn  groups         url-filter 2, 4: the time-group is not there; ip-filter 9: the ip-group is not "
              "there; access point 103: the WLAN group is not there -> give them another group, such as by "
              "\"routerdbctl rule set TABLE ID group=NAME\" or \"routerdbctl ap group\"");
}

TEST(DoctorBindings, of_one_device_or_address_are_told) {
    execute(
        "insert into dhcpserverstaticbind(id, mac, ip) values"
        "(1, '02:00:5e:10:00:0a', '10.0.0.1'), (2, '02:00:5E:10:00:0A', '10.0.0.2'), (3, 'x', '10.0.0.2'),"
        "(4, '', ''), (5, '', '');");
    EXPECT_EQ(
        doctor_line("bindings"),
        "warn  bindings       static-binding 1, 2 all have mac 02:00:5e:10:00:0a; static-binding 2, 3 all have ip "
        "10.0.0.2 -> \"routerdbctl rule rm static-binding ID\" removes one");
}

/// What harms in one profile is only told in the other.
std::string harm(const std::string &in_exact, const std::string &check, int count) {
    std::string line = "ok    " + check;
    line.resize(21, ' ');
    return support::build_profile.doubles_quotes
               ? line + std::to_string(count) + " that would harm in the exact profile"
               : in_exact;
}

TEST(DoctorApostrophes, end_statements_in_exact) {
    execute(
        "insert into user_urlinfo(id, name, mark) values(4, 'kids'' pages', 'plain');"
        "insert into DevInfo(Dev_Sn, Dev_Name) values(100, 'Jo''s');");
    EXPECT_EQ(
        doctor_line("apostrophes"),
        harm("warn  apostrophes    user-url 4: name ends the statement that it is written back with; DevInfo 100: "
             "Dev_Name ends the statement that it is written back with -> change the value, or the profile of "
             "the library",
             "apostrophes", 2));
}

TEST(DoctorJson, of_access_points_is_broken_in_exact) {
    execute(
        "insert into user_urlinfo(id, name) values(4, 'a \"b\"');"
        "insert into DevInfo(Dev_Sn, Dev_Name, Dev_Group, Dev_SwVer) values"
        "(100, 'the \"attic\"', 'a' || char(9) || 'b', 'plain, {and} [such]');"
        "insert into WlanGroupInfo(WlanGroup_Id, WlanGroup_Name) values(2, 'back\\slash');");
    EXPECT_EQ(doctor_line("json"),
              harm("warn  json           DevInfo 100: Dev_Group breaks the lists of access points and groups; DevInfo "
                   "100: Dev_Name breaks the lists of access points and groups; WlanGroupInfo 2: WlanGroup_Name breaks "
                   "the lists of access points and groups -> take quotation marks, backslashes and control characters "
                   "out of it",
                   "json", 3));
}

TEST(DoctorUtf8, is_what_texts_are_expected_to_be) {
    execute(
        "insert into user_ipgroup(id, name) values(1, 'b\xc3\xbcro'), (2, 'b' || cast(x'fc' as text) || 'ro');"
        "insert into DevInfo(Dev_Sn, Dev_Wlan1_Ssid) values(100, cast(x'c3' as text));");
    EXPECT_EQ(doctor_line("utf-8"), harm("warn  utf-8          ip-group 2: name is no UTF-8; DevInfo 100: "
                                         "Dev_Wlan1_Ssid is no UTF-8 -> write it anew",
                                         "utf-8", 2));
}

TEST(DoctorRows, that_cannot_be_read_are_told) {
    execute("alter table dhcpserverstaticbind rename column mac to other;");
    EXPECT_EQ(
        doctor_line("bindings"),
        "warn  bindings       rows cannot be read: no such column: rule.mac -> look at what is said of tables and "
        "content");
}

}  // namespace
