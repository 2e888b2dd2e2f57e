// Lists of rules with SOCI.
#include "harness/leases.h"
#include "harness/variants.h"
#include "soci/reading.h"

namespace bench::soci_users {

namespace {

using Rows = soci::rowset<soci::row>;

/// Reads time groups by number.
class TimeGroups {
public:
    explicit TimeGroups(soci::session &sql)
        : statement_((sql.prepare << "select * from user_timegroup where id = :id", soci::use(id_), soci::into(row_))) {
    }

    void read(int id, TimeGroupItemCut &group) {
        id_ = id;
        if (statement_.execute(true)) {
            group.id = row_.get<int>(0);
            copy(row_, 1, group.name);
            read_weekdays(row_, 2, group.weekday);
            copy(row_, 9, group.start_time);
            copy(row_, 10, group.end_time);
            copy(row_, 11, group.mark);
        }
    }

private:
    int id_ = 0;
    soci::row row_;
    soci::statement statement_;
};

void read_url_filter(const soci::row &row, TimeGroups &groups, UrlFilterItem &rule) {
    rule.id = row.get<int>(0);
    copy(row, 1, rule.name);
    copy(row, 2, rule.url);
    rule.timecontrol = row.get<int>(3);
    rule.status = row.get<int>(14);
    copy(row, 15, rule.mark);
    if (rule.timecontrol == ROUTERDB_TIME_GROUP) {
        rule.timegroup_id = row.get<int>(4);
        groups.read(rule.timegroup_id, rule.timegroup);
        copy_text(rule.timegroup.name, rule.timegroup_name);
        std::memcpy(rule.weekday, rule.timegroup.weekday, sizeof(rule.weekday));
        copy_text(rule.timegroup.start_time, rule.start_time);
        copy_text(rule.timegroup.end_time, rule.end_time);
    } else {
        read_weekdays(row, 5, rule.weekday);
        copy(row, 12, rule.start_time);
        copy(row, 13, rule.end_time);
    }
    rule.time_valid = 1;
}

void read_behavior_rule(const soci::row &row, const Leases &leases, BehaviorItem &rule) {
    rule.id = row.get<int>("id");
    rule.control_type = row.get<int>("control_type");
    rule.ipcontrol = row.get<int>("ipcontrol");
    rule.timecontrol = row.get<int>("timecontrol");
    copy_text(row.get<std::string>("devmac").c_str(), rule.devmac);
    copy_text(row.get<std::string>("devstartip").c_str(), rule.devstartip);
    copy_text(row.get<std::string>("devendip").c_str(), rule.devendip);
    copy_text(row.get<std::string>("behavior_info").c_str(), rule.behavior_info);
    read_weekdays(row, 11, rule.weekday);
    copy_text(row.get<std::string>("start_time").c_str(), rule.start_time);
    copy_text(row.get<std::string>("end_time").c_str(), rule.end_time);
    rule.status = row.get<int>("status");
    copy_text(row.get<std::string>("mark").c_str(), rule.mark);
    copy_text(leases.host_name(rule.devmac), rule.hostname);
}

}  // namespace

void list_url_filters() {
    soci::session sql(soci::sqlite3, main_database());
    const Rows rows = (sql.prepare << "select * from filter_url order by Id");
    TimeGroups groups(sql);
    desk.url_filters = {};
    for (const soci::row &row : rows) {
        read_url_filter(row, groups, desk.url_filters.items[desk.url_filters.count++]);
    }
}

void list_behavior_rules() {
    const Leases leases;
    soci::session sql(soci::sqlite3, main_database());
    soci::session catalogue(soci::sqlite3, catalogue_database());
    int id = 0;
    std::string feature;
    Names found;
    soci::statement classes = (catalogue.prepare << "select Name, Name_En from App_Class where Id = :id", soci::use(id),
                               soci::into(found.name), soci::into(found.name_en));
    soci::statement applications =
        (catalogue.prepare << "select Name, Name_En from App_Info where Class_Id = :id and Features = :feature",
         soci::use(id), soci::use(feature), soci::into(found.name), soci::into(found.name_en));
    const auto find = [&](soci::statement &statement, int class_id, Names &names) {
        id = class_id;
        const bool any = statement.execute(true);
        names = found;
        return any;
    };
    const Rows rows = (sql.prepare << "select * from behavior_rule order by id");
    std::memset(&desk.behavior_rules, 0, sizeof(desk.behavior_rules));
    for (const soci::row &row : rows) {
        BehaviorItem &rule = desk.behavior_rules.items[desk.behavior_rules.count++];
        read_behavior_rule(row, leases, rule);
        write_names(
            rule, [&](int class_id, Names &names) { return find(classes, class_id, names); },
            [&](int class_id, const std::string &wanted, Names &names) {
                feature = wanted;
                return find(applications, class_id, names);
            });
    }
}

}  // namespace bench::soci_users
