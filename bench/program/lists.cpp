// Rules, the catalogue and groups with the sqlite3 program.
#include "harness/desk.h"
#include "harness/json_lists.h"
#include "harness/texts.h"
#include "harness/variants.h"
#include "program/rows.h"

namespace bench::program {

namespace {

void read_weekdays(const Row &row, std::size_t first, std::int32_t (&weekday)[7]) {
    for (std::size_t day = 0; day < 7; ++day) {
        weekday[day] = std::stoi(row[first + day]);
    }
}

/// A row of the rule and of its group behind it.
void read_url_filter(const Row &row, UrlFilterItem &rule) {
    rule.id = std::stoi(row[0]);
    copy_text(row[1].c_str(), rule.name);
    copy_text(row[2].c_str(), rule.url);
    rule.timecontrol = std::stoi(row[3]);
    rule.status = std::stoi(row[14]);
    copy_text(row[15].c_str(), rule.mark);
    const bool referenced = rule.timecontrol == ROUTERDB_TIME_GROUP;
    if (referenced) {
        rule.timegroup_id = std::stoi(row[4]);
        rule.timegroup.id = std::stoi(row[16]);
        copy_text(row[17].c_str(), rule.timegroup.name);
        read_weekdays(row, 18, rule.timegroup.weekday);
        copy_text(row[25].c_str(), rule.timegroup.start_time);
        copy_text(row[26].c_str(), rule.timegroup.end_time);
        copy_text(row[27].c_str(), rule.timegroup.mark);
        copy_text(row[17].c_str(), rule.timegroup_name);
    }
    read_weekdays(row, referenced ? 18 : 5, rule.weekday);
    copy_text(row[referenced ? 25 : 12].c_str(), rule.start_time);
    copy_text(row[referenced ? 26 : 13].c_str(), rule.end_time);
    rule.time_valid = 1;
}

}  // namespace

void list_url_filters() {
    desk.url_filters = {};
    const std::vector<Row> rows =
        query(paths::main_database,
              "select * from filter_url as rule left join user_timegroup as time on rule.timecontrol = 2 and "
              "time.id = rule.timegroup_id order by rule.Id");
    for (const Row &row : rows) {
        read_url_filter(row, desk.url_filters.items[desk.url_filters.count++]);
    }
}

void print_classes() {
    const std::vector<Row> classes =
        query(paths::catalogue_database,
              "select Id, Name, Name_En, Mark, "
              "(select group_concat(Name || '/', '') from App_Info where Class_Id = App_Class.Id), "
              "(select group_concat(Name_En || '/', '') from App_Info where Class_Id = App_Class.Id), "
              "(select group_concat(Features || '/', '') from App_Info where Class_Id = App_Class.Id) "
              "from App_Class order by Id");
    std::printf("{\"ItemList\":{\"data\":[");
    for (const Row &row : classes) {
        print_class({row[0].c_str(), row[1].c_str(), row[2].c_str(), row[3].c_str(), row[4].c_str(), row[5].c_str(),
                     row[6].c_str()});
    }
    print_classes_end(static_cast<int>(classes.size()));
}

void print_groups() {
    const std::vector<Row> groups = query(paths::main_database, groups_sql);
    std::printf("{\"WlanGroupList\":{\"data\":[");
    for (const Row &row : groups) {
        print_group([&row](int column) { return row[static_cast<std::size_t>(column)].c_str(); });
    }
    print_groups_end(static_cast<int>(groups.size()));
}

}  // namespace bench::program
