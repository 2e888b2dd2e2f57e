// The columns that the library's readers count on: their names, where they expect them, and what they have room for.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>

#include "apinventory/members.h"
#include "tables.h"
#include "upgrade_way.h"

namespace ctl {

struct ReaderColumn {
    const char *table;
    const char *name;
    int position;    // anywhere if it is negative: it is found by its name
    unsigned width;  // of a text, its terminator included; 0 for what is none
};

/// The name of a member's column in a group table, whose names do not all follow from the members'.
const char *group_name_of(const char *member);

namespace reader_columns {

/// The tables that records of access points are read from.
struct RecordTable {
    const char *name;
    const char *start;  // of the names of its networks' and radios' columns
    bool is_of_devices;
    std::uint8_t per_network, per_radio;  // columns from one to the next
    std::uint8_t first_network;
    std::uint8_t columns;
};

inline constexpr RecordTable record_tables[] = {
    {"DevInfo", "Dev_", true, 12, 20, 16, 160},
    {"WlanGroupInfo", "WlanGroup_", false, 11, 16, 2, routerdb::members::wlan_group_columns},
    {"WlanZeroCfgGroupInfo", "WlanGroup_", false, 11, 16, 2, 126},
};

// Before the other columns of DevInfo.
inline constexpr ReaderColumn others_of_main[] = {
    {"DevUpgradeInfo", "Dev_SwName", -1, 0}, {"App_Info", "Class_Id", -1, 0},
    {"App_Info", "Features", -1, 0},         {"DevInfo", "Dev_Sn", 0, 0},
    {"DevInfo", "Dev_IPSUM", -1, 0},
};

inline constexpr ReaderColumn of_catalogue[] = {
    {"App_Class", "Id", 0, 0},   {"App_Class", "Name", 1, 0},   {"App_Class", "Name_En", 2, 0},
    {"App_Class", "Mark", 4, 0}, {"App_Info", "Id", 0, 0},      {"App_Info", "Class_Id", 1, 0},
    {"App_Info", "Name", 2, 0},  {"App_Info", "Name_En", 3, 0}, {"App_Info", "Features", 4, 0},
    {"App_Info", "Mark", 5, 0},
};

template <typename Visit>
void each_of_rules(Visit visit) {
    for (const Table &table : tables) {
        const bool has_places = table.rules->fields[0].position != routerdb::by_name;
        visit(ReaderColumn{table.in_sql(), "id", has_places ? 0 : -1, 0});
        for (const Column &column : Columns(table)) {
            const Field &field = *column.field;
            const int day = field.kind == Kind::weekdays ? column.name[std::strlen(column.name) - 1] - '1' : 0;
            visit(ReaderColumn{table.in_sql(), column.name,
                               field.position == routerdb::by_name ? -1 : field.position + day,
                               field.kind == Kind::text ? field.width : 0U});
        }
    }
}

template <typename Visit>
void visit_member(const RecordTable &table, const routerdb::members::Member &member, unsigned number, Visit visit) {
    using routerdb::members::Kind;
    const unsigned column = table.is_of_devices ? member.in_devices : member.in_groups;
    if (column == routerdb::members::no_column) {
        return;
    }
    // Behind the columns of both group tables the radios stand side by side.
    const bool is_behind = !table.is_of_devices && column >= routerdb::members::wlan_group_columns;
    const unsigned step = member.kind == Kind::network ? table.per_network : is_behind ? 1 : table.per_radio;
    const unsigned first = member.kind == Kind::network ? table.first_network : 0;
    const unsigned position = first + column + step * number;
    if (position >= table.columns) {
        return;
    }
    const char *const own = table.is_of_devices ? member.name : group_name_of(member.name);
    char name[48];
    if (member.kind == Kind::device) {
        std::snprintf(name, sizeof(name), "%s", own);
    } else if (member.kind == Kind::network) {
        std::snprintf(name, sizeof(name), "%sWlan%u_%s", table.start, number + 1, own);
    } else {
        std::snprintf(name, sizeof(name), "%sWlan_%s%s", table.start, own, number == 1 ? "_sec" : "");
    }
    visit(ReaderColumn{table.name, name, static_cast<int>(position), member.width});
}

template <typename Visit>
void each_of_records(Visit visit) {
    using routerdb::members::Kind;
    for (const RecordTable &table : record_tables) {
        for (const routerdb::members::Member &member : routerdb::members::table) {
            const unsigned count = member.kind == Kind::network ? ROUTERDB_WLANS : member.kind == Kind::radio ? 2 : 1;
            for (unsigned number = 0; number < count; ++number) {
                visit_member(table, member, number, visit);
            }
        }
    }
}

}  // namespace reader_columns

/// Calls visit(column) for each of them, table by table.
template <typename Visit>
void each_reader_column(RouterDatabase which, Visit visit) {
    if (which == RouterDatabase::catalogue) {
        for (const ReaderColumn &column : reader_columns::of_catalogue) {
            visit(column);
        }
        return;
    }
    reader_columns::each_of_rules(visit);
    for (const ReaderColumn &column : reader_columns::others_of_main) {
        visit(column);
    }
    reader_columns::each_of_records(visit);
}

}  // namespace ctl
