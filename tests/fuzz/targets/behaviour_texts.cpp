// What a behaviour rule is about, in numbers, and its names.
#include <cstring>

#include "fuzz/fuzz.h"
#include "routerdb.h"
#include "rules/behavior_names.h"
#include "support/database.h"

const char fuzz::what[] = "behaviour texts: names that end with their field, and are the beginning of all names";

namespace {

/// As long as any input that libFuzzer is let make, with names as long as those below for each of its characters.
constexpr std::size_t room_for_all = 1 << 20;

std::string names_in(const std::string &info, std::size_t width) {
    fuzz::Argument text(info);
    fuzz::Room names(width);
    fuzz::Room names_en(width);
    *names.text() = *names_en.text() = '\0';
    routerdb::Catalogue catalogue;
    routerdb::append_behavior_names(catalogue, text.text(), {names.text(), width}, {names_en.text(), width});
    fuzz::require(strnlen(names.text(), width) < width && strnlen(names_en.text(), width) < width,
                  "names without a terminator");
    return names.text();
}

}  // namespace

void fuzz::prepare() {
    make_database({"App_Class", "App_Info"},
                  "insert into App_Class(Id,Name,Name_En) values(1,'Spiele','Games'),(2,'Film',''),(3,'','Music');"
                  "insert into App_Info(Id,Class_Id,Name,Name_En,Features) values(1,1,'Schach','Chess','f1'),"
                  "(2,1,'Dame','Draughts','2'),(3,3,'Harfe','Harp','f1');",
                  support::catalogue_database);
}

void fuzz::run(Input input) {
    const std::size_t width = 1 + input.take_number(64);
    std::string info = input.take_rest();
    info = info.substr(0, info.find('\0'));
    if (!build_profile.doubles_quotes) {
        info = info.substr(0, info.find('\''));  // Deliberate: in exact values are SQL.
    }
    fuzz::Argument text(info);
    fuzz::Room names(room_for_all);
    fuzz::Room names_en(room_for_all);
    *names.text() = *names_en.text() = '\0';
    GetBehaviorItemInfoTypeName(text.text(), names.text(), names_en.text());
    require(names_in(info, width) == std::string(names.text()).substr(0, width - 1), "other names in a small field");
    require(printed().empty(), "a lookup that fails: " + printed());
}
