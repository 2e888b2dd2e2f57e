#include "rules/golden/references.h"

namespace golden {

namespace {

using support::Record;

/// A rule with times of its own.
Record at_own_times(Record record, const TimePlaces &places) {
    return record.number(places.control, 1)
        .numbers(places.weekdays, {21, 22, 23, 24, 25, 26, 27})
        .text(places.start_time, "21:00")
        .text(places.end_time, "22:00");
}

/// A rule that references a time group, which gives nothing to it yet.
Record without_times(Record record, const TimePlaces &places, std::int32_t group) {
    return record.numbers(places.control, {2, group});
}

Record at_times_of(Record record, const TimePlaces &places, std::int32_t group, const std::string &name,
                   const std::string &mark) {
    return without_times(record, places, group)
        .text(places.group_name, name)
        .number(places.group, group)
        .text(places.group + 4, name)
        .numbers(places.group + 156, {1, 0, 1, 1, 0, 0, 1})
        .text(places.group + 184, "18:00")
        .text(places.group + 204, "23:59")
        .text(places.group + 224, mark)
        .numbers(places.weekdays, {1, 0, 1, 1, 0, 0, 1})
        .text(places.start_time, "18:00")
        .text(places.end_time, "23:59");
}

/// A rule with a range of its own.
Record in_own_range(Record record, const RangePlaces &places, std::int32_t control) {
    return record.number(places.control, control).text(places.start, "10.0.0.1").text(places.end, "10.0.0.9");
}

/// A rule that references an IP group, which gives nothing to it yet.
Record without_range(Record record, const RangePlaces &places, const Replacing &replacing, std::int32_t group) {
    record.numbers(places.control, {2, group});
    return replacing.replaces ? record : in_own_range(record, places, 2);
}

Record in_range_of(Record record, const RangePlaces &places, const Replacing &replacing, std::int32_t group,
                   const std::string &name, const std::string &start, const std::string &end) {
    record = without_range(record, places, replacing, group)
                 .text(places.group_name, name)
                 .text(places.group + 4, name)
                 .text(places.group + 154, start)
                 .text(places.group + 184, end);
    if (replacing.replaces) {
        record.text(places.start, start.substr(0, replacing.characters))
            .text(places.end, end.substr(0, replacing.characters));
    }
    return record;
}

}  // namespace

std::string time_group(const char *id, const std::string &name, const std::string &mark) {
    return std::string("insert into user_timegroup values(") + id + ",'" + name + "',1,0,1,1,0,0,1,'18:00','23:59','" +
           mark + "');";
}

std::string ip_group(const char *id, const std::string &name, const std::string &start, const std::string &end) {
    return std::string("insert into user_ipgroup values(") + id + ",'" + name + "','" + start + "','" + end +
           "','not carried');";
}

std::vector<Built> with_times(const InsertReferring &insert, const Record &record, const TimePlaces &places) {
    const std::string group = time_group("3", "evenings", "after work");
    const std::string full = time_group("3", of(151, 'g'), of(155, 'm'));
    const std::string wide = time_group("3", of(152, 'g'), of(500, 'm'));
    const auto at_no_times = [&](std::int32_t id) { return without_times(record, places, id).bytes(); };
    const auto at_times = [&](std::int32_t id, const std::string &name, const std::string &mark) {
        return at_times_of(record, places, id, name, mark).bytes();
    };
    const auto controlled_by = [&](std::int32_t control) { return Record(record).number(places.control, control); };
    return {
        {"own time, whatever group the column names", group + insert("1", "3"), at_own_times(record, places).bytes()},
        {"time group", group + insert("2", "3"), at_times(3, "evenings", "after work")},
        {"time group 0", time_group("0", "nought", "") + insert("2", "0"), at_times(0, "nought", "")},
        {"time group with a Chinese name", time_group("3", "晚上", "") + insert("2", "3"), at_times(3, "晚上", "")},
        {"time group at full width", full + insert("2", "3"), at_times(3, of(151, 'g'), of(155, 'm'))},
        {"time group beyond its widths", wide + insert("2", "3"), at_times(3, of(151, 'g'), of(155, 'm'))},
        {"time group of NULLs", "insert into user_timegroup(id) values(3);" + insert("2", "3"),
         without_times(record, places, 3).number(places.group, 3).bytes()},
        {"unknown time group", group + insert("2", "77"), at_no_times(77)},
        {"negative time group", time_group("-1", "below", "") + insert("2", "-1"), at_no_times(-1)},
        {"no time group", insert("2", "null"), at_no_times(0)},
        {"timecontrol 0", group + insert("0", "3"), controlled_by(0).bytes()},
        {"timecontrol 3", group + insert("3", "3"), controlled_by(3).bytes()},
        {"timecontrol that is no number", group + insert("'own'", "3"), controlled_by(0).bytes()},
        {"timecontrol NULL", group + insert("null", "3"), controlled_by(0).bytes()},
    };
}

std::vector<Built> with_ranges(const InsertReferring &insert, const Record &record, const RangePlaces &places,
                               const Replacing &replacing) {
    const std::string group = ip_group("3", "guests", "192.168.1.100", "192.168.1.199");
    const std::string full = ip_group("3", of(149, 'g'), of(29, 's'), of(29, 'e'));
    const std::string wide = ip_group("3", of(150, 'g'), of(30, 's'), of(500, 'e'));
    const auto of_group = [&](std::int32_t id, const std::string &name, const std::string &start,
                              const std::string &end) {
        return in_range_of(record, places, replacing, id, name, start, end).bytes();
    };
    const auto of_none = [&](std::int32_t id) { return without_range(record, places, replacing, id).bytes(); };
    const auto own = [&](std::int32_t control) { return in_own_range(record, places, control).bytes(); };
    const std::string guests = of_group(3, "guests", "192.168.1.100", "192.168.1.199");
    const std::string widest = of_group(3, of(149, 'g'), of(29, 's'), of(29, 'e'));
    return {
        {"own range, whatever group the column names", group + insert("1", "3"), own(1)},
        {"IP group", group + insert("2", "3"), guests},
        {"IP group 0", ip_group("0", "nought", "1", "2") + insert("2", "0"), of_group(0, "nought", "1", "2")},
        {"IP group with a Chinese name", ip_group("3", "访客", "1", "") + insert("2", "3"),
         of_group(3, "访客", "1", "")},
        {"IP group at full width", full + insert("2", "3"), widest},
        {"IP group beyond its widths", wide + insert("2", "3"), widest},
        {"IP group of NULLs", "insert into user_ipgroup(id) values(3);" + insert("2", "3"), of_group(3, "", "", "")},
        {"unknown IP group", group + insert("2", "77"), of_none(77)},
        {"negative IP group", ip_group("-1", "below", "1", "2") + insert("2", "-1"), of_none(-1)},
        {"no IP group", insert("2", "null"), of_none(0)},
        {"ipcontrol 0", group + insert("0", "3"), own(0)},
        {"ipcontrol 3", group + insert("3", "3"), own(3)},
        {"ipcontrol that is no number", group + insert("'own'", "3"), own(0)},
        {"ipcontrol NULL", group + insert("null", "3"), own(0)},
    };
}

std::vector<Built> joined(std::vector<Built> built, const std::vector<std::vector<Built>> &others) {
    for (const std::vector<Built> &other : others) {
        built.insert(built.end(), other.begin(), other.end());
    }
    return built;
}

}  // namespace golden
