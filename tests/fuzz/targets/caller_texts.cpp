// Texts that callers hand over and that get into statements.
#include "fuzz/fuzz.h"
#include "routerdb.h"
#include "support/database.h"

// Modern alone: in exact these texts are put into the statement as given.
const char fuzz::what[] = "texts of callers: no statement fails because of them, and no other row is reached";

namespace {

using fuzz::require;

constexpr char guard[] =
    "select group_concat(Dev_MAC || Dev_Name || Dev_Status || Dev_Upgrade_Status) from DevInfo "
    "where Dev_Sn = 7;";

std::string untouched;
std::string guarded;

void set_status(const char *key, const char *value) {
    SetDevStatus(key, value);
    SetDevStatusbyIP(key, value);
}

void set_upgrade_status(const char *key, const char *value) {
    SetDevUpgradeStatus(key, value);
}

void read_status(const char *key, const char * /*value*/) {
    fuzz::Room status(5);
    fuzz::Room upgrade(25);
    GetDevStatus(key, status.text());
    GetDevUpgradeStatus(key, upgrade.text());
    require(std::string(status.text()) == "0" && std::string(upgrade.text()) == "0", "the status of another row");
}

void find(const char *key, const char *value) {
    unsigned long sn = 1234;
    GetDevSNByMac(key, &sn);
    GetDevSNByIp(value, &sn);
    require(sn == 1234, "the number of another row");
}

void count(const char *key, const char * /*value*/) {
    const std::string table = key;
    const int rows = GetTableCount(key);
    require(rows == 0 || table.find_first_of(" ;'\"") == std::string::npos, "rows of what is no table's name");
}

void delete_upgrade(const char *key, const char * /*value*/) {
    ApDevUpgradeInfo info{};
    std::string(key).copy(info.Dev_SwName, sizeof(info.Dev_SwName));
    DeleteApDevUpgradeInfo(&info);
    require(support::value("select count(*) from DevUpgradeInfo;") == "1" || std::string(key).empty(),
            "another row is deleted");
}

void print_catalogue(const char *key, const char *value) {
    GetAppClassItem(key);
    const std::string first = fuzz::printed();
    require(fuzz::is_json(first), "no JSON: " + first);
    GetAppInfoItem(key);
    GetAppInfoItemListByClassid(value);
    require(fuzz::printed().find("rror") == std::string::npos, "a statement that fails: " + fuzz::printed());
}

constexpr void (*calls[])(const char *, const char *) = {set_status, set_upgrade_status, read_status,    find,
                                                         count,      delete_upgrade,     print_catalogue};

}  // namespace

void fuzz::prepare() {
    make_database({"DevInfo", "DevUpgradeInfo"},
                  "insert into DevInfo(Dev_Sn,Dev_Name,Dev_MAC,Dev_Ipaddress,Dev_Status,Dev_Upgrade_Status) "
                  "values(7,'guard','the guard''s address','the guard''s IP address','up','none');"
                  "insert into DevUpgradeInfo(Dev_SwName) values('the guard''s firmware');");
    make_database({"App_Class", "App_Info"},
                  "insert into App_Class(Id,Name,Name_En) values(1,'Spiele','Games');"
                  "insert into App_Info(Id,Class_Id,Name,Name_En,Features) values(1,1,'Schach','Chess','f1');",
                  support::catalogue_database);
    untouched = support::file_content(support::main_database);
    guarded = support::value(guard);
    require(!guarded.empty(), "no guard");
}

void fuzz::run(Input input) {
    const auto call = calls[input.take_number(sizeof(calls) / sizeof(*calls))];
    input.take_line();
    const std::string key = input.take_line();
    Argument value(input.take_line());
    if (key.find("the guard's") != std::string::npos) {
        return;  // who names the guard means it
    }
    put_file(support::main_database, untouched);
    call(Argument(key).text(), value.text());
    require(support::value(guard) == guarded, "another row is written");
    require(printed().find("cannot exec") == std::string::npos, "a statement that fails: " + printed());
}
