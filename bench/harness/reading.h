// How a row becomes a record, the same for every variant. What differs is how a `Row` comes by its values: it has
// `text(column)`, empty for NULL, and `number(column)`.
#pragma once

#include <cstdint>

#include "apinventory/places.h"
#include "harness/texts.h"
#include "routerdb.h"

namespace bench {

template <typename Row, std::size_t width>
void copy(const Row &row, int column, char (&field)[width]) {
    copy_text(row.text(column), field);
}

template <typename Row>
void read_weekdays(const Row &row, int first, std::int32_t (&weekday)[7]) {
    for (int day = 0; day < 7; ++day) {
        weekday[day] = row.number(first + day);
    }
}

/// A row of `DevInfo`.
template <typename Row>
void read_device(const Row &row, DevInfo &device) {
    device.Dev_Sn = static_cast<std::uint32_t>(row.number(0));
    for (const places::Place &place : places::all()) {
        if (place.device != places::none) {
            copy_text(row.text(place.device), reinterpret_cast<char *>(&device) + place.offset, place.width);
        }
    }
}

/// A row of `filter_url`.
template <typename Row>
void read_url_filter(const Row &row, UrlFilterItem &rule) {
    rule.id = row.number(0);
    copy(row, 1, rule.name);
    copy(row, 2, rule.url);
    rule.timecontrol = row.number(3);
    if (rule.timecontrol == ROUTERDB_TIME_GROUP) {
        rule.timegroup_id = row.number(4);
    } else {
        read_weekdays(row, 5, rule.weekday);
        copy(row, 12, rule.start_time);
        copy(row, 13, rule.end_time);
    }
    rule.status = row.number(14);
    copy(row, 15, rule.mark);
    rule.time_valid = 1;
}

/// A row of `user_timegroup`, whose columns start at `first`, into the rule that refers to it: its times become the
/// rule's own.
template <typename Row>
void read_time_group(const Row &row, int first, UrlFilterItem &rule) {
    auto &group = rule.timegroup;
    group.id = row.number(first);
    copy(row, first + 1, group.name);
    read_weekdays(row, first + 2, group.weekday);
    copy(row, first + 9, group.start_time);
    copy(row, first + 10, group.end_time);
    copy(row, first + 11, group.mark);
    copy_text(group.name, rule.timegroup_name);
    std::memcpy(rule.weekday, group.weekday, sizeof(rule.weekday));
    copy_text(group.start_time, rule.start_time);
    copy_text(group.end_time, rule.end_time);
}

/// A row of `behavior_rule`, but for the names that are found elsewhere.
template <typename Row>
void read_behavior_rule(const Row &row, BehaviorItem &rule) {
    rule.id = row.number(0);
    rule.control_type = row.number(1);
    rule.ipcontrol = row.number(2);
    rule.timecontrol = row.number(4);
    copy(row, 6, rule.devmac);
    copy(row, 7, rule.devstartip);
    copy(row, 8, rule.devendip);
    copy(row, 10, rule.behavior_info);
    read_weekdays(row, 11, rule.weekday);
    copy(row, 18, rule.start_time);
    copy(row, 19, rule.end_time);
    rule.status = row.number(20);
    copy(row, 21, rule.mark);
}

}  // namespace bench
