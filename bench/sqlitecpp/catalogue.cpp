// The application catalogue and the groups with SQLiteCpp.
#include "harness/desk.h"
#include "harness/json_lists.h"
#include "harness/variants.h"
#include "sqlitecpp/reading.h"

namespace bench::sqlitecpp {

void print_classes() {
    const SQLite::Database db(paths::catalogue_database);
    SQLite::Statement classes(db, "select * from App_Class order by Id");
    SQLite::Statement applications(db, "select Name, Name_En, Features from App_Info where Class_Id = ?");
    std::printf("{\"ItemList\":{\"data\":[");
    int count = 0;
    while (classes.executeStep()) {
        std::string names;
        std::string names_en;
        std::string features;
        applications.bind(1, classes.getColumn(0).getInt());
        while (applications.executeStep()) {
            names += applications.getColumn(0).getString() + '/';
            names_en += applications.getColumn(1).getString() + '/';
            features += applications.getColumn(2).getString() + '/';
        }
        applications.reset();
        print_class({classes.getColumn(0).getText(), classes.getColumn(1).getText(), classes.getColumn(2).getText(),
                     classes.getColumn(4).getText(), names.c_str(), names_en.c_str(), features.c_str()});
        ++count;
    }
    print_classes_end(count);
}

void print_groups() {
    const SQLite::Database db(paths::main_database);
    SQLite::Statement groups(db, groups_sql);
    std::printf("{\"WlanGroupList\":{\"data\":[");
    int count = 0;
    while (groups.executeStep()) {
        print_group([&groups](int column) { return groups.getColumn(column).getText(); });
        ++count;
    }
    print_groups_end(count);
}

}  // namespace bench::sqlitecpp
