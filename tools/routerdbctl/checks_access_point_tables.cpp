// The tables of access points and of their groups: whether each column is where it is read.
#include <cstdio>
#include <cstring>

#include "apinventory/members.h"
#include "places.h"

namespace ctl {

namespace {

namespace members = routerdb::members;
using members::Kind;
using members::Member;

constexpr char sec[] = "_sec";
constexpr unsigned networks = 8;
constexpr unsigned radios = 2;

/// How one of the tables names and places what it has of a member.
struct Layout {
    char table[24];
    bool has_groups;         // rather than access points
    bool has_more;           // columns behind those of both group tables
    unsigned network_start;  // column of the first network,
    unsigned per_network;    // and how many each one has
    unsigned per_radio;
};

constexpr Layout layouts[] = {
    {"DevInfo", false, false, 16, 12, 20},
    {"WlanGroupInfo", true, false, 2, 11, 16},
    {"WlanZeroCfgGroupInfo", true, true, 2, 11, 16},
};

/// What the group tables call otherwise.
struct OtherName {
    char member[18];
    char column[18];
};

constexpr OtherName other_names[] = {
    {"Dev_Wlan_GroupId", "Id"},
    {"wlan_group_name", "Name"},
    {"Beacon_Inertval", "Beacon_Interval"},
    {"RxOption", "RevOption"},
};

const char *name_in(const Layout &layout, const Member &member) {
    for (const OtherName &other : other_names) {
        if (layout.has_groups && std::strcmp(other.member, member.name) == 0) {
            return other.column;
        }
    }
    return member.name;
}

unsigned parts_of(Kind kind) {
    return kind == Kind::network ? networks : kind == Kind::radio ? radios : 1;
}

/// The place of a member, of one of the networks or radios where it is one of theirs.
unsigned place_of(const Layout &layout, const Member &member, unsigned part) {
    const unsigned column = layout.has_groups ? member.in_groups : member.in_devices;
    if (layout.has_groups && column >= members::wlan_group_columns) {
        return column + part;
    }
    return member.kind == Kind::network ? layout.network_start + layout.per_network * part + column
           : member.kind == Kind::radio ? column + layout.per_radio * part
                                        : column;
}

void expect(Places &places, const Layout &layout, const Member &member, unsigned part) {
    const char *const start = layout.has_groups ? "WlanGroup_" : member.kind == Kind::device ? "" : "Dev_";
    const char *const name = name_in(layout, member);
    char column[64];
    if (member.kind == Kind::network) {
        std::snprintf(column, sizeof(column), "%sWlan%u_%s", start, part + 1, name);
    } else if (member.kind == Kind::radio) {
        std::snprintf(column, sizeof(column), "%sWlan_%s%s", start, name, part == 0 ? "" : sec);
    } else {
        std::snprintf(column, sizeof(column), "%s%s", start, name);
    }
    places.expect(place_of(layout, member, part), column);
}

bool has(const Layout &layout, const Member &member) {
    const unsigned column = layout.has_groups ? member.in_groups : member.in_devices;
    return column != members::no_column &&
           (!layout.has_groups || layout.has_more || column < members::wlan_group_columns);
}

void look_at_layout(Examination &examination, const Database &database, const Layout &layout) {
    Places places(examination, database, layout.table);
    if (!places.is_there()) {
        return;
    }
    places.expect(0, layout.has_groups ? "WlanGroup_Id" : "Dev_Sn");
    for (const Member &member : members::table) {
        for (unsigned part = 0; has(layout, member) && part < parts_of(member.kind); ++part) {
            expect(places, layout, member, part);
        }
    }
}

}  // namespace

void look_at_access_point_tables(Examination &examination) {
    Database database;
    if (!open_main_database(examination, database)) {
        return;
    }
    examination.report.ok("all are there, with each column in its place");
    for (const Layout &layout : layouts) {
        look_at_layout(examination, database, layout);
    }
    Places upgrades(examination, database, "DevUpgradeInfo");
    for (const char *const column : {"Dev_Description", "Dev_SwName", "Dev_ApList"}) {
        if (upgrades.is_there()) {
            upgrades.expect(column);
        }
    }
}

}  // namespace ctl
