#include "apinventory/assignments.h"

#include "apinventory/numbers.h"
#include "core/call_errno.h"
#include "core/enum_order.h"

namespace routerdb {

namespace {

using members::Kind;
using members::Member;
using members::row_of;
using members::Written;

/// What stands around an assignment.
struct Around {
    Written written;
    char before[2];
    char after[3];
};

constexpr Around around[] = {
    {members::apart, "", ""},     {members::usual, " ", ","}, {members::with_number, " ", ","},
    {members::as_ssid, " ", ","}, {members::tight, "", ","},  {members::spaced, " ", ", "},
    {members::last, " ", " "},
};
static_assert(follows_enum(around, &Around::written));

/// A column of the groups' tables that is not named after its member.
struct Renamed {
    std::uint8_t row;
    char name[23];
};

constexpr Renamed renamed[] = {
    {row_of("wlan_group_name"), "Name"},
    {row_of("radius_server_ip"), "Wlan_Radius_ServerIP"},
    {row_of("radius_server_port"), "Wlan_Radius_ServerPort"},
    {row_of("radius_shared_key"), "Wlan_Radius_Sharekey"},
    {row_of("Beacon_Inertval"), "Beacon_Interval"},
    {row_of("RxOption"), "RevOption"},
};

const char *name_in_groups(const Member &member) {
    for (const Renamed &column : renamed) {
        if (&member == &members::table[column.row]) {
            return column.name;
        }
    }
    return member.name;
}

}  // namespace

void Assignments::append_reported(const Part &part) const {
    for (const Member &member : members_of(part)) {
        if (member.written != members::apart) {
            append(part, member, member.written);
        }
    }
}

void Assignments::append_settings(const Part &part) const {
    for (const Member &member : members_of(part)) {
        if (member.written != members::apart && member.given != members::by_none) {
            append(part, member, member.written);
        }
    }
}

void Assignments::append(const Part &part, const Member &member, Written written) const {
    const std::string_view text = text_of(record_, part, member);
    sql_.append(around[written].before);
    append_column(part, member);
    sql_.append("=");
    if (written == members::as_ssid && converter_ != nullptr && !leads_its_radio(part)) {
        append_converted(text);
    } else {
        sql_.append_quoted(text, quotes_);
    }
    sql_.append(around[written].after);
    if (written == members::with_number) {
        sql_.append(" Dev_IPSUM=").append_quoted(address_in_host_order(text)).append(",");
    }
}

/// "Dev_Wlan3_Ssid", "WlanGroup_Wlan_Channel_sec"
void Assignments::append_column(const Part &part, const Member &member) const {
    const bool of_group = table_ != Table::devices;
    if (of_group) {
        sql_.append("WlanGroup_");
    }
    if (part.kind != Kind::device) {
        sql_.append(of_group ? "Wlan" : "Dev_Wlan");
    }
    if (part.kind == Kind::network) {
        sql_.append(part.number + 1UL);
    }
    if (part.kind != Kind::device) {
        sql_.append("_");
    }
    sql_.append(of_group ? name_in_groups(member) : member.name);
    if (part.kind == Kind::radio && part.number == 1) {
        sql_.append("_sec");
    }
}

void Assignments::append_converted(std::string_view ssid) const {
    char in[sizeof(DevWlanEntry::Ssid) + 1];
    copy_cut(ssid, in, sizeof(in));
    char out[ROUTERDB_CONVERSION_ROOM];
    const CallErrno untold;
    // Deliberate: an SSID that cannot be converted is written empty.
    const bool converted = convert(*converter_, in, ssid.size(), out, sizeof(out)) == 0;
    sql_.append_quoted(converted ? out : "", quotes_);
}

}  // namespace routerdb
