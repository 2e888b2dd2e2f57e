// Lists of rules with SQLiteCpp.
#include "harness/desk.h"
#include "harness/leases.h"
#include "harness/variants.h"
#include "sqlitecpp/reading.h"

namespace bench::sqlitecpp {

namespace {

/// Reads a group into the members of the rule that it replaces.
void follow_time_group(SQLite::Statement &groups, UrlFilterItem &rule) {
    groups.reset();
    groups.bind(1, rule.timegroup_id);
    if (groups.executeStep()) {
        rule.timegroup.id = groups.getColumn(0).getInt();
        copy(groups.getColumn(1), rule.timegroup.name);
        read_weekdays(groups, 2, rule.timegroup.weekday);
        copy(groups.getColumn(9), rule.timegroup.start_time);
        copy(groups.getColumn(10), rule.timegroup.end_time);
        copy(groups.getColumn(11), rule.timegroup.mark);
    }
    copy_text(rule.timegroup.name, rule.timegroup_name);
    std::memcpy(rule.weekday, rule.timegroup.weekday, sizeof(rule.weekday));
    copy_text(rule.timegroup.start_time, rule.start_time);
    copy_text(rule.timegroup.end_time, rule.end_time);
}

void read_url_filter(SQLite::Statement &query, SQLite::Statement &groups, UrlFilterItem &rule) {
    rule.id = query.getColumn(0).getInt();
    copy(query.getColumn(1), rule.name);
    copy(query.getColumn(2), rule.url);
    rule.timecontrol = query.getColumn(3).getInt();
    rule.status = query.getColumn(14).getInt();
    copy(query.getColumn(15), rule.mark);
    if (rule.timecontrol == ROUTERDB_TIME_GROUP) {
        rule.timegroup_id = query.getColumn(4).getInt();
        follow_time_group(groups, rule);
    } else {
        read_weekdays(query, 5, rule.weekday);
        copy(query.getColumn(12), rule.start_time);
        copy(query.getColumn(13), rule.end_time);
    }
    rule.time_valid = 1;
}

/// Finds the two names of a class or of an application.
bool find(SQLite::Statement &query, Names &names) {
    const bool found = query.executeStep();
    if (found) {
        names = {query.getColumn(0).getString(), query.getColumn(1).getString()};
    }
    query.reset();
    return found;
}

void read_behavior_rule(SQLite::Statement &query, const Leases &leases, BehaviorItem &rule) {
    rule.id = query.getColumn("id").getInt();
    rule.control_type = query.getColumn("control_type").getInt();
    rule.ipcontrol = query.getColumn("ipcontrol").getInt();
    rule.timecontrol = query.getColumn("timecontrol").getInt();
    copy(query.getColumn("devmac"), rule.devmac);
    copy(query.getColumn("devstartip"), rule.devstartip);
    copy(query.getColumn("devendip"), rule.devendip);
    copy(query.getColumn("behavior_info"), rule.behavior_info);
    read_weekdays(query, query.getColumnIndex("weekday1"), rule.weekday);
    copy(query.getColumn("start_time"), rule.start_time);
    copy(query.getColumn("end_time"), rule.end_time);
    rule.status = query.getColumn("status").getInt();
    copy(query.getColumn("mark"), rule.mark);
    copy_text(leases.host_name(rule.devmac), rule.hostname);
}

}  // namespace

void list_url_filters() {
    const SQLite::Database db(paths::main_database);
    SQLite::Statement query(db, "select * from filter_url order by Id");
    SQLite::Statement groups(db, "select * from user_timegroup where id = ?");
    desk.url_filters = {};
    while (query.executeStep()) {
        read_url_filter(query, groups, desk.url_filters.items[desk.url_filters.count++]);
    }
}

void list_behavior_rules() {
    const Leases leases;
    const SQLite::Database db(paths::main_database);
    const SQLite::Database catalogue(paths::catalogue_database);
    SQLite::Statement query(db, "select * from behavior_rule order by id");
    SQLite::Statement classes(catalogue, "select Name, Name_En from App_Class where Id = ?");
    SQLite::Statement applications(catalogue, "select Name, Name_En from App_Info where Class_Id = ? and Features = ?");
    std::memset(&desk.behavior_rules, 0, sizeof(desk.behavior_rules));
    while (query.executeStep()) {
        BehaviorItem &rule = desk.behavior_rules.items[desk.behavior_rules.count++];
        read_behavior_rule(query, leases, rule);
        write_names(
            rule,
            [&](int class_id, Names &names) {
                classes.bind(1, class_id);
                return find(classes, names);
            },
            [&](int class_id, const std::string &feature, Names &names) {
                applications.bind(1, class_id);
                applications.bind(2, feature);
                return find(applications, names);
            });
    }
}

}  // namespace bench::sqlitecpp
