#include "rules/golden/references.h"

#include <cstdlib>

namespace golden {

namespace {

using support::Record;

/// What a rule's row says of its group, as SQL, and the group that it is to find; none if it has no values.
struct Reference {
    const char *name;
    const char *control;
    const char *group_id;
    Values stored;  // the group that is there
    bool found;
    bool of_nulls = false;  // the group has NULL where it has empty values here
};

Values stored_sql(const Table &groups, const Reference &reference) {
    if (!reference.of_nulls) {
        return as_sql(groups.places, reference.stored);
    }
    Values nulls(groups.places.size(), "null");
    nulls[0] = reference.stored[0];
    return nulls;
}

/// As a builder reads what is no number too.
std::string read(const char *sql) {
    return std::to_string(std::atoi(sql));  // NOLINT(cert-err34-c)
}

/// Row 8 with a reference: the statements that leave it and its group, and its record but for what the group gives.
struct Referring {
    Built built;
    Record record;
};

Referring referring(const Table &table, const Reference &reference, const Table &groups, const char *control,
                    const char *group_id) {
    const Values values = plain_values(table);
    const Values sql = changed(table.places, as_sql(table.places, values),
                               {{control, reference.control}, {group_id, reference.group_id}});
    const Values as_read =
        changed(table.places, values, {{control, read(reference.control)}, {group_id, read(reference.group_id)}});
    Record record = built_record(table, as_read);
    Built built = built_of(table, reference.name, sql, record);
    if (!reference.stored.empty()) {
        built.rows = insertion(groups.name, stored_sql(groups, reference)) + built.rows;
    }
    return {built, record};
}

/// The bytes of some columns of a group's record, the last one included.
std::string bytes_of(const Table &groups, const std::string &record, const char *first, const char *last) {
    const Place &from = groups.places[index_of(groups.places, first)];
    const Place &to = groups.places[index_of(groups.places, last)];
    return record.substr(from.offset, to.offset + to.width - from.offset);
}

/// On weekdays 1, 3, 4 and 7 from 18:00 to 23:59.
Values time_group(const char *id, const std::string &name, const std::string &mark) {
    return {id, name, "1", "0", "1", "1", "0", "0", "1", "18:00", "23:59", mark};
}

Values ip_group(const char *id, const std::string &name, const std::string &start, const std::string &end) {
    return {id, name, start, end, "not carried"};
}

Built timed(const Table &table, const Reference &reference) {
    const Table &groups = golden::table("user_timegroup");
    const TimeGroupPlaces &places = *table.time_group;
    Referring rule = referring(table, reference, groups, "timecontrol", "timegroup_id");
    if (reference.found) {
        const std::string group = built_record(groups, reference.stored).bytes();
        const auto offset = [&](const char *column) { return table.places[index_of(table.places, column)].offset; };
        rule.record.unterminated(places.name, bytes_of(groups, group, "name", "name"))
            .unterminated(places.group, group.substr(0, places.size))
            .unterminated(offset("weekday1"), bytes_of(groups, group, "weekday1", "weekday7"))
            .unterminated(offset("start_time"), bytes_of(groups, group, "start_time", "start_time"))
            .unterminated(offset("end_time"), bytes_of(groups, group, "end_time", "end_time"));
    }
    const bool looks_up = std::string(reference.control) == "2" && std::atoi(reference.group_id) >= 0;  // NOLINT
    if (looks_up && places.known) {
        rule.record.number(*places.known, 1);
    }
    rule.built.record = rule.record.bytes();
    return rule.built;
}

Built ranged(const Table &table, const Reference &reference) {
    const Table &groups = golden::table("user_ipgroup");
    Referring rule = referring(table, reference, groups, "ipcontrol", "ipgroup_id");
    if (reference.found) {
        // The copy has neither the id nor the mark.
        const Values carried = changed(groups.places, reference.stored, {{"id", "0"}, {"mark", ""}});
        const Record group = built_record(groups, carried);
        rule.record.unterminated(table.ip_group->name, bytes_of(groups, group.bytes(), "name", "name"))
            .unterminated(table.ip_group->group, group.bytes());
        for (const auto &[own, of_group] : {std::pair("devstartip", "startip"), std::pair("devendip", "endip")}) {
            const Place &place = table.places[index_of(table.places, own)];
            if (place.carried == Carried::without_ip_group) {
                put(rule.record, place, reference.stored[index_of(groups.places, of_group)].substr(0, place.width - 1));
            }
        }
    }
    rule.built.record = rule.record.bytes();
    return rule.built;
}

}  // namespace

std::vector<Built> with_times(const Table &table) {
    if (!table.time_group) {
        return {};
    }
    const Values evenings = time_group("3", "evenings", "after work");
    const Values nothing{"3", "", "0", "0", "0", "0", "0", "0", "0", "", "", ""};
    std::vector<Built> built;
    for (const Reference &reference : std::vector<Reference>{
             {"own time, whatever group the column names", "1", "3", evenings, false},
             {"time group", "2", "3", evenings, true},
             {"time group 0", "2", "0", time_group("0", "nought", ""), true},
             {"time group with a Chinese name", "2", "3", time_group("3", "晚上", ""), true},
             {"time group at full width", "2", "3", time_group("3", of(151, 'g'), of(155, 'm')), true},
             {"time group beyond its widths", "2", "3", time_group("3", of(152, 'g'), of(500, 'm')), true},
             {"time group of NULLs", "2", "3", nothing, true, true},
             {"unknown time group", "2", "77", evenings, false},
             {"negative time group", "2", "-1", time_group("-1", "below", ""), false},
             {"no time group", "2", "null", {}, false},
             {"timecontrol 0", "0", "3", evenings, false},
             {"timecontrol 3", "3", "3", evenings, false},
             {"timecontrol that is no number", "'own'", "3", evenings, false},
             {"timecontrol NULL", "null", "3", evenings, false},
         }) {
        built.push_back(timed(table, reference));
    }
    return built;
}

std::vector<Built> with_ranges(const Table &table) {
    if (!table.ip_group) {
        return {};
    }
    const Values guests = ip_group("3", "guests", "192.168.1.100", "192.168.1.199");
    std::vector<Built> built;
    for (const Reference &reference : std::vector<Reference>{
             {"own range, whatever group the column names", "1", "3", guests, false},
             {"IP group", "2", "3", guests, true},
             {"IP group 0", "2", "0", ip_group("0", "nought", "1", "2"), true},
             {"IP group with a Chinese name", "2", "3", ip_group("3", "访客", "1", ""), true},
             {"IP group at full width", "2", "3", ip_group("3", of(149, 'g'), of(29, 's'), of(29, 'e')), true},
             {"IP group beyond its widths", "2", "3", ip_group("3", of(150, 'g'), of(30, 's'), of(500, 'e')), true},
             {"IP group of NULLs", "2", "3", ip_group("3", "", "", ""), true, true},
             {"unknown IP group", "2", "77", guests, false},
             {"negative IP group", "2", "-1", ip_group("-1", "below", "1", "2"), false},
             {"no IP group", "2", "null", {}, false},
             {"ipcontrol 0", "0", "3", guests, false},
             {"ipcontrol 3", "3", "3", guests, false},
             {"ipcontrol that is no number", "'own'", "3", guests, false},
             {"ipcontrol NULL", "null", "3", guests, false},
         }) {
        built.push_back(ranged(table, reference));
    }
    return built;
}

}  // namespace golden
