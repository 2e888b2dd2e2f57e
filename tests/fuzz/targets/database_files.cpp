// Whole database files, given to everything that reads them.
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "fuzz/fuzz.h"
#include "routerdb.h"
#include "rules/tables.h"
#include "support/database.h"

const char fuzz::what[] = "database files: no reader trips over one, tries it without end, or prints no JSON in modern";

void fuzz::prepare() {}

namespace {

using fuzz::build_profile;
using fuzz::require;
using fuzz::Room;

std::size_t file_size = 0;

/// A text that comes whole is no longer than the file, or what that becomes in UTF-8.
std::size_t room_for_text() {
    return 4 * file_size + 16;
}

/// A connection of the caller's.
sqlite3 *open_database(const char *path) {
    sqlite3 *db = nullptr;
    sqlite3_open_v2(path, &db, SQLITE_OPEN_READWRITE, nullptr);
    fuzz::limit_statements(db);
    return db;
}

std::size_t rows_of(const char *query) {
    std::size_t rows = 0;
    sqlite3 *const db = open_database(support::main_database);
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(db, query, -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        ++rows;
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return rows;
}

/// Records that a list needs room for. Deliberate: in exact it is as long as the table, which its callers count.
std::size_t capacity_for(const char *query) {
    constexpr std::size_t capacity = ROUTERDB_LIST_CAPACITY;
    return build_profile.caps_lists ? capacity : std::max(capacity, rows_of(query));
}

template <typename Record, typename List>
void build(int (*builder)(List *, const char *), const char *query) {
    const std::size_t capacity = capacity_for(query);
    Room room(sizeof(std::uint32_t) + capacity * sizeof(Record));
    builder(room.as<List>(), query);
    require(room.as<List>()->count <= capacity, "more records than fit");
}

void list_features() {
    const std::size_t capacity = capacity_for("select * from App_Info;");
    Room room(sizeof(std::uint32_t) + capacity * sizeof(AppFeatureList::features[0]));
    GetAppItemListByClassId(room.as<AppFeatureList>(), 1);
}

/// Modern alone tells a failure, behind which a list may be unfinished. Names that could not be joined are none: their
/// message stands within the list.
void print(const std::function<void()> &list) {
    const std::size_t before = fuzz::printed().size();
    errno = 0;
    list();
    const int reason = errno;
    const std::string text = fuzz::printed().substr(before);
    const bool failed = reason != 0 || text.find("Webserver Error: ") != std::string::npos;
    require(!build_profile.escapes_json || failed || fuzz::is_json(text), "no JSON: " + text);
}

void read_devices() {
    DevInfo device;
    for (unsigned long sn = 0; sn < 3; ++sn) {
        DB_getinfo(&device, sn, 1);
    }
    Room list(sizeof(ApDevList));
    list.as<ApDevList>()->count = 0;
    GetApDevList(list.as<ApDevList>(), 1);
    FreeApDevList(list.as<ApDevList>());
    get_devinfo_count();
    GetApDevList_count();
}

void read_status() {
    Room status(5);
    Room upgrade(25);
    Room mac(20);
    unsigned long sn = 0;
    GetDevStatus("00:00:00:00:00:01", status.text());
    GetDevUpgradeStatus("00:00:00:00:00:01", upgrade.text());
    GetDevMacBySN(1, mac.text());
    GetDevSNByMac("00:00:00:00:00:01", &sn);
    GetDevSNByIp("10.0.0.1", &sn);
    std::uint32_t collection[4] = {};
    DB_GetDevSNCollection(collection);
    DB_GetWlanGroupIDCollection(collection);
}

void read_groups() {
    DevInfo group{};
    DB_getwlangroupinfoByindex(&group, 1);
    DB_getwlanzerocfggroupinfo(&group);
    DB_getwlanzerocfggroupinfoByindex(&group, 1);
    GetWlanZeroCfgGroupInfo(&group, "1");
    GetWlanZeroCfgGroupInfo(&group, "0");
    get_wlangroupinfo_count();
}

void read_names() {
    Room name(room_for_text());
    Room name_en(room_for_text());
    GetClassNameByClassId(1, name.text(), name_en.text());
    GetAppNameByClassIdAppfeature(1, "f1", name.text(), name_en.text());
}

void join_names() {
    sqlite3 *const db = open_database(support::catalogue_database);
    Room names(ROUTERDB_JOINED_NAMES);
    GetAppinfosByClassId(1, names.text(), db);
    GetAppinfosEnByClassId(1, names.text(), db);
    GetAppFeaturesByClassId(1, names.text(), db);
    TimeGroupItem time_group;
    IpGroupItem ip_group;
    GetTimeControlById(db, 1, &time_group);
    GetIpGroup_IpRangeById(db, 1, &ip_group);
    sqlite3_close(db);
}

void run_helpers() {
    Room text(room_for_text());
    unsigned int count = 0;
    unsigned long number = 0;
    DB_EXEC_SQL_CHAR_CHAR("select name from user_timegroup;", text.text());
    DB_EXEC_SQL_CHAR_INT("select * from user_timegroup;", &count);
    DB_EXEC_SQL_CHAR_LONG("select * from user_timegroup;", &number);
    GET_DB_SQL_INT_COUNT("select * from user_timegroup;");
    GET_DB_SQL_INT("select * from user_timegroup;");
    GET_DB_SQL_INT_COUNT_ROUTE("select id from user_timegroup;");
    GET_DB_SQLITE_SQL_INT("select Id from App_Class;");
}

#define BUILDER(name, Item, builder, name_for_people) \
    []() { build<Item, Item##List>(builder, "select * from " #name ";"); },

constexpr void (*readers[])() = {
    ROUTERDB_RULE_TABLES(BUILDER)  //
    list_features,
    read_devices,
    read_status,
    read_groups,
    read_names,
    join_names,
    run_helpers,
    [] { print([] { GetAppClassItemList(); }); },
    [] { print([] { GetAppClassItem("1"); }); },
    [] { print([] { GetAppInfoItem("1"); }); },
    [] { print([] { GetAppInfoItemListByClassid("1"); }); },
    [] { print([] { GetWlanZeroCfgGroupList(); }); },
    [] { print([] { GetApDevList_cgi(1, 0, 0, 0, "", "", 2); }); },
    [] { print([] { GetApDevList_cgi(2, 3, 0, 0, "1", "0", 1); }); },
};

void put_databases(const std::string &file) {
    for (const char *const path : {support::main_database, support::catalogue_database}) {
        fuzz::put_file(path, file);
        for (const char *const beside : {"-journal", "-wal", "-shm"}) {
            unlink((std::string(path) + beside).c_str());
        }
    }
}

constexpr std::size_t reader_count = sizeof(readers) / sizeof(*readers);

/// The low byte of the file's application id says who reads it: 0 stands for all.
constexpr std::size_t place_of_id = 71;

}  // namespace

void fuzz::run(Input input) {
    const std::string file = input.take_rest();
    const std::size_t id = file.size() > place_of_id ? static_cast<unsigned char>(file[place_of_id]) : 0;
    file_size = file.size();
    put_databases(file);
    for (std::size_t i = 0; i < reader_count; ++i) {
        if (id == 0 || id % reader_count == i) {
            readers[i]();
        }
    }
}

// What is made up goes to one reader, or there would be few files in a minute.
extern "C" {
[[gnu::weak]] std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t room);
std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room, unsigned seed);

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room, unsigned seed) {
    const std::size_t changed = LLVMFuzzerMutate(data, size, room);
    if (changed > place_of_id) {
        data[place_of_id] = static_cast<std::uint8_t>(1 + seed % reader_count);
    }
    return changed;
}
}
