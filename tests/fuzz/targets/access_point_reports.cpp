// What access points report about themselves, and what they are configured with. In both profiles: it is never SQL.
#include <arpa/inet.h>

#include <algorithm>
#include <cstring>

#include "apinventory/parts.h"
#include "fuzz/fuzz.h"
#include "routerdb.h"
#include "support/database.h"

const char fuzz::what[] = "reports of access points: their own row holds them, and no other row is reached";

namespace {

using fuzz::Input;
using fuzz::require;
using routerdb::Part;
using routerdb::members::Kind;

constexpr char guard[] = "select * from DevInfo where Dev_Sn = 7;";

std::string untouched;
std::vector<std::string> guarded;

/// The member that seeds call "Dev_Name", "3_Ssid" (of the third network) or "2_Channel" (of the second radio).
bool is_called(const Part &part, const char *member, const std::string &name) {
    return name == (part.kind == Kind::device ? member : std::to_string(part.number + 1) + "_" + member);
}

/// Puts a value into a record, up to its field's end: access points need not terminate what they report.
void put(DevInfo &device, const std::string &name, const std::string &value) {
    for (const Part &part : routerdb::parts) {
        for (const auto &member : routerdb::members_of(part)) {
            if (is_called(part, member.name, name)) {
                std::memcpy(routerdb::field_of(device, part, member), value.data(),
                            std::min<std::size_t>(value.size(), member.width));
            }
        }
    }
}

/// "Dev_Name=kitchen" in each line.
void fill(DevInfo &device, Input &input) {
    while (!input.empty()) {
        const std::string line = input.take_line();
        const std::size_t equals = line.find('=');
        if (equals != std::string::npos) {
            put(device, line.substr(0, equals), line.substr(equals + 1, line.find('\0') - equals - 1));
        }
    }
}

std::string text(const char *field, std::size_t width) {
    return std::string(field, strnlen(field, width));
}

bool means_the_guard(const DevInfo &device) {
    return text(device.Dev_MAC, sizeof(device.Dev_MAC)) == "guard" || device.Dev_Sn == 7 ||
           inet_addr(text(device.Dev_Ipaddress, sizeof(device.Dev_Ipaddress)).c_str()) == 7;
}

/// What is in a row that was written, and what was reported.
void expect_row(const std::string &row, const DevInfo &device) {
    std::string expected = text(device.Dev_Name, sizeof(device.Dev_Name));
    expected += "|" + text(device.Dev_SwVer, sizeof(device.Dev_SwVer));
    expected += "|" + text(device.Dev_Sys_TrapIP, sizeof(device.Dev_Sys_TrapIP));
    expected += "|" + text(device.Dev_Wlan_MaxStaNum_sec, sizeof(device.Dev_Wlan_MaxStaNum_sec));
    require(row == expected, "another row than was reported: " + row);
}

void expect_report(const DevInfo &device) {
    const std::string mac = text(device.Dev_MAC, sizeof(device.Dev_MAC));
    std::string quoted;
    for (const char letter : mac) {
        quoted += std::string(letter == '\'' ? 2 : 1, letter);
    }
    const support::Database database;
    for (const std::string &row :
         database.rows("select Dev_Name,Dev_SwVer,Dev_Sys_TrapIP,Dev_Wlan_MaxStaNum_sec from DevInfo where Dev_MAC='" +
                       quoted + "';")) {
        expect_row(row, device);
    }
}

void add(DevInfo &device) {
    const bool added = DB_addinfo(device) != -1;
    if (added) {
        expect_report(device);
        require(support::value("select count(*) from DevInfo;") <= "3", "more rows than one are added");
    }
}

void save(DevInfo &device) {
    DB_saveinfo(&device);
    expect_report(device);
}

void update(DevInfo &device) {
    require(DB_UpdateInfo(device) == 0, "a configuration that cannot be written");
}

void look_up(DevInfo &device) {
    unsigned long sn = 0;
    DB_findinfo2(device, &sn);
    require(sn != 7, "another row is found");
    DB_findinfo(device, &sn);
}

void compare(DevInfo &device) {
    DevInfo group = device;
    require(CompareDevInfoWithGroupInfo(device, group) == 0 && CompareDevInfoWithZeroGroupInfo(device, group) == 0,
            "what is the same differs");
    SetDevInfoFromWlanGroupInfo(&group, &device);
    SetDevInfoFromWlanZeroCfgGroupInfo(&group, &device);
}

constexpr void (*calls[])(DevInfo &) = {add, save, update, look_up, compare};

}  // namespace

void fuzz::prepare() {
    make_database({"DevInfo"},
                  "insert into DevInfo(Dev_Sn,Dev_Name,Dev_MAC,Dev_Ipaddress) values(7,'guarded','guard','7.0.0.0');"
                  "insert into DevInfo(Dev_Sn,Dev_Name,Dev_MAC) values(8,'known','00:00:00:00:00:08');");
    untouched = support::file_content(support::main_database);
    guarded = support::Database().rows(guard);
    require(guarded.size() == 1, "no guard");
}

void fuzz::run(Input input) {
    const auto call = calls[input.take_number(sizeof(calls) / sizeof(*calls))];
    input.take_line();
    Room room(sizeof(DevInfo));
    DevInfo &device = *room.as<DevInfo>();
    device = DevInfo();
    device.Dev_Sn = 8;
    fill(device, input);
    if (means_the_guard(device)) {
        return;
    }
    put_file(support::main_database, untouched);
    call(device);
    require(support::Database().rows(guard) == guarded, "another row is written");
    require(printed().find("cannot exec") == std::string::npos, "a statement that fails: " + printed());
}
