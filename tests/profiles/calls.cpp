#include "profiles/calls.h"

#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <functional>

#include "profiles/random_databases.h"
#include "routerdb.h"
#include "support/recorder.h"
#include "support/streams.h"

namespace profiles {

namespace {

using support::Recorder;
using Words = std::initializer_list<std::string_view>;

// What one profile closes, or leaves to the program, is not among them.
const Words everything_seen = {"open lock", "lock", "unlock", "close lock", "syslog", "system", "sqlite3_exec"};

/// Of calls whose writes are one transaction in one profile: they lock and write in other steps.
const Words all_but_writes = {"syslog", "system"};

/// How often a journal is synced is the profiles' own.
bool is_own_setting(const std::string &line) {
    return line.rfind("sqlite3_exec PRAGMA synchronous", 0) == 0;
}

/// Makes calls and collects their outcomes.
class Caller {
public:
    Caller(const Library &library, std::mt19937 &random) : library_(library), random_(random) {}

    void read_access_points();
    void register_access_points();
    void read_groups();
    void print_lists();
    void build_lists();
    void look_names_up();

    std::vector<Outcome> outcomes;

private:
    /// Makes one call.
    /// @param action  returns the call's result and its records as bytes
    void call(const std::string &name, const std::function<std::string()> &action, Words noted = everything_seen);

    void list_access_points(int convert);

    template <typename List>
    void build(int (*builder)(List *list, const char *sql), const char *table);

    int number() { return static_cast<int>(random_() % 5) - 1; }
    DevInfo device();

    const Library &library_;
    std::mt19937 &random_;
};

/// What both profiles print alike: one of them escapes the values in lists.
std::string without_escapes(std::string text) {
    const auto differs = [](char byte) { return byte == '\\' || static_cast<unsigned char>(byte) >= 0x80; };
    text.erase(std::remove_if(text.begin(), text.end(), differs), text.end());
    return text;
}

void Caller::call(const std::string &name, const std::function<std::string()> &action, Words noted) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    support::Streams streams;
    std::string seen = action();
    const auto said = streams.take();
    seen += "\n-- output --\n" + without_escapes(said.output) + "\n-- errors --\n" + said.error + "\n-- calls --\n";
    for (const std::string &line : recorder.calls(noted)) {
        seen += is_own_setting(line) ? "" : line + "\n";
    }
    outcomes.push_back({name, seen});
}

template <typename Record>
std::string bytes_of(const Record &record) {
    return {reinterpret_cast<const char *>(&record), sizeof(record)};
}

/// Odd texts in all members, and an address that other rows may have.
DevInfo Caller::device() {
    constexpr char letters[] = "aZ09.: \xe4\xb8\xad\xd6\xd0";
    DevInfo device{};
    auto *const bytes = reinterpret_cast<char *>(&device);
    for (std::size_t i = 0; i < sizeof(device); ++i) {
        bytes[i] = random_() % 5 == 0 ? '\0' : letters[random_() % (sizeof(letters) - 1)];
    }
    device.Dev_Sn = random_() % 4;
    std::strcpy(device.Dev_MAC, one_of(macs, random_).c_str());
    std::strcpy(device.Dev_Ipaddress, one_of(addresses, random_).c_str());
    std::strcpy(device.Dev_Wlan_Radio_Num, std::to_string(random_() % 10).c_str());
    return device;
}

void Caller::list_access_points(int convert) {
    call("GetApDevList", [&] {
        static ApDevList list;
        std::string seen = std::to_string(LIBRARY_FUNCTION(library_, GetApDevList)(&list, convert));
        for (unsigned i = 0; i < list.count; ++i) {
            seen += bytes_of(*list.devices[i]);
        }
        LIBRARY_FUNCTION(library_, FreeApDevList)(&list);
        return seen;
    });
}

void Caller::read_access_points() {
    for (const int convert : {0, 1}) {
        call("DB_getinfo", [&] {
            DevInfo record{};
            const int found = LIBRARY_FUNCTION(library_, DB_getinfo)(&record, random_() % 4, convert);
            return std::to_string(found) + bytes_of(record);
        });
        list_access_points(convert);
    }
    call("get_devinfo_count", [&] { return std::to_string(LIBRARY_FUNCTION(library_, get_devinfo_count)()); });
    call("GetApDevList_count", [&] { return std::to_string(LIBRARY_FUNCTION(library_, GetApDevList_count)()); });
}

void Caller::register_access_points() {
    for (int n = 0; n < 4; ++n) {
        const DevInfo sought = device();
        unsigned long sn = 9;
        call("DB_findinfo2", [&] {
            const int result = LIBRARY_FUNCTION(library_, DB_findinfo2)(sought, &sn);
            return std::to_string(result) + " " + std::to_string(sn);
        });
        call("DB_findinfo", [&] {
            const int result = LIBRARY_FUNCTION(library_, DB_findinfo)(sought, &sn);
            return std::to_string(result) + " " + std::to_string(sn);
        });
        call(
            "DB_addinfo", [&] { return std::to_string(LIBRARY_FUNCTION(library_, DB_addinfo)(device())); },
            all_but_writes);
        list_access_points(0);
        call("DB_UpdateInfo", [&] { return std::to_string(LIBRARY_FUNCTION(library_, DB_UpdateInfo)(device())); });
        call("DB_saveinfo", [&] {
            LIBRARY_FUNCTION(library_, DB_saveinfo)(&sought);
            return std::string();
        });
    }
}

void Caller::read_groups() {
    for (int n = 0; n < 3; ++n) {
        DevInfo group{};
        const auto both = [&group](int result) { return std::to_string(result) + bytes_of(group); };
        call("DB_getwlangroupinfoByindex",
             [&] { return both(LIBRARY_FUNCTION(library_, DB_getwlangroupinfoByindex)(&group, number())); });
        call("DB_getwlanzerocfggroupinfo",
             [&] { return both(LIBRARY_FUNCTION(library_, DB_getwlanzerocfggroupinfo)(&group)); });
        call("DB_getwlanzerocfggroupinfoByindex",
             [&] { return both(LIBRARY_FUNCTION(library_, DB_getwlanzerocfggroupinfoByindex)(&group, number())); });
        call("GetWlanZeroCfgGroupInfo", [&] {
            return both(LIBRARY_FUNCTION(library_, GetWlanZeroCfgGroupInfo)(&group, std::to_string(number()).c_str()));
        });
        call("DB_savezerocfgwlangroupinfo",
             [&] { return both(LIBRARY_FUNCTION(library_, DB_savezerocfgwlangroupinfo)(device(), number())); });
    }
}

void Caller::print_lists() {
    for (int n = 0; n < 6; ++n) {
        call("GetApDevList_cgi", [&] {
            const int result = LIBRARY_FUNCTION(library_, GetApDevList_cgi)(number(), number(), number(), number(), "1",
                                                                            "A", static_cast<int>(random_() % 6));
            return std::to_string(result);
        });
    }
    const std::string id = std::to_string(number());
    call("GetWlanZeroCfgGroupList",
         [&] { return std::to_string(LIBRARY_FUNCTION(library_, GetWlanZeroCfgGroupList)()); });
    call("GetAppClassItemList", [&] { return std::to_string(LIBRARY_FUNCTION(library_, GetAppClassItemList)()); });
    call("GetAppClassItem", [&] { return std::to_string(LIBRARY_FUNCTION(library_, GetAppClassItem)(id.c_str())); });
    call("GetAppInfoItem", [&] { return std::to_string(LIBRARY_FUNCTION(library_, GetAppInfoItem)(id.c_str())); });
    call("GetAppInfoItemListByClassid",
         [&] { return std::to_string(LIBRARY_FUNCTION(library_, GetAppInfoItemListByClassid)(id.c_str())); });
}

template <typename List>
void Caller::build(int (*builder)(List *list, const char *sql), const char *table) {
    call(std::string("list of ") + table, [&] {
        static List list;
        const int result = builder(&list, (std::string("select * from ") + table + ";").c_str());
        return std::to_string(result) + bytes_of(list);
    });
}

void Caller::build_lists() {
    build(LIBRARY_FUNCTION(library_, GetBehaviorItemListInServer), "behavior_rule");
    build(LIBRARY_FUNCTION(library_, GetUrlFilterItemListInServer), "filter_url");
    build(LIBRARY_FUNCTION(library_, GetMacFilterItemListInServer), "filter_mac");
    build(LIBRARY_FUNCTION(library_, GetIpFilterItemListInServer), "filter_ipport");
    build(LIBRARY_FUNCTION(library_, GetQosItemListInServer), "qos_rule");
    build(LIBRARY_FUNCTION(library_, GetTimeGroupItemListInServer), "user_timegroup");
    build(LIBRARY_FUNCTION(library_, GetDhcpStaticItemListInServer), "dhcpserverstaticbind");
}

void Caller::look_names_up() {
    for (const std::string &behavior : behaviors) {
        call("GetBehaviorItemInfoTypeName " + behavior, [&] {
            char names[16384] = "";
            char names_en[16384] = "";
            LIBRARY_FUNCTION(library_, GetBehaviorItemInfoTypeName)(behavior.c_str(), names, names_en);
            return std::string(names) + "|" + names_en;
        });
    }
}

}  // namespace

std::vector<Outcome> make_calls(const Library &library, std::mt19937 &random) {
    Caller caller(library, random);
    caller.build_lists();
    caller.look_names_up();
    caller.print_lists();
    caller.read_access_points();
    caller.read_groups();
    caller.register_access_points();
    caller.read_access_points();
    caller.outcomes.push_back({"rows afterwards", dump()});
    return caller.outcomes;
}

}  // namespace profiles
