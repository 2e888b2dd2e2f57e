#include "rules/derived.h"

#include <cstring>

#include "rules/field.h"
#include "rules/record.h"
#include "text/text.h"

namespace routerdb {

namespace {

/// The id of the group that a rule references; negative if it references none.
std::int32_t referenced(const void *record, std::uint16_t control, std::uint16_t group_id) {
    return number_at(record, control) == control_referenced ? number_at(record, group_id) : -1;
}

void copy_times(const TimeSpan &span, const TimeGroupItem &group, void *record) {
    // The size is the record's: `filter_url` carries the group without its last four bytes, where its flag lies.
    std::memcpy(member(record, span.group), &group, span.group_size);
    std::memcpy(member(record, span.group_name), group.name, sizeof(group.name));
    std::memcpy(member(record, span.weekday), group.weekday, sizeof(group.weekday));
    std::memcpy(member(record, span.start_time), group.start_time, sizeof(group.start_time));
    std::memcpy(member(record, span.end_time), group.end_time, sizeof(group.end_time));
}

}  // namespace

void derive_time_span(const TimeSpan &span, References &references, void *record) {
    bool valid = number_at(record, span.control) == control_own;
    const std::int32_t id = referenced(record, span.control, span.group_id);
    if (id >= 0) {
        TimeGroupItem group;
        references.find_time_group(id, group);
        copy_times(span, group, record);
        valid = true;  // also for a group that does not exist: its times are then empty
    }
    if (span.valid != no_flag) {
        put_number(record, span.valid, valid ? 1 : 0);
    }
}

void derive_address_range(const AddressRange &range, References &references, void *record) {
    const std::int32_t id = referenced(record, range.control, range.group_id);
    if (id < 0) {
        return;
    }
    IpGroupItem group;
    references.find_ip_group(id, group);
    std::memcpy(member(record, range.group), &group, sizeof(group));
    std::memcpy(member(record, range.group_name), group.name, sizeof(group.name));
    if (range.width != own_range_stays) {
        copy_cut(group.startip, member(record, range.start), range.width);
        copy_cut(group.endip, member(record, range.end), range.width);
    }
}

}  // namespace routerdb
