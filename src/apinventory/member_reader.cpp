#include "apinventory/member_reader.h"

#include <cstring>

#include "text/encoding.h"

namespace routerdb {

namespace {

/// Replaces the text by its conversion; one that cannot be converted stays.
void convert_ssid(Utf8ToGb2312 &converter, char (&ssid)[sizeof(DevWlanEntry::Ssid)]) {
    char converted[ROUTERDB_CONVERSION_ROOM];
    // The terminator is converted too, so that nothing has to be cleared first.
    if (convert(converter, ssid, std::strlen(ssid) + 1, converted, 0) == 0) {
        copy_cut(converted, ssid, sizeof(ssid));
    }
}

void read_part(const Row &row, Table table, const Part &part, DevInfo &record) {
    for (const members::Member &member : members_of(part)) {
        const std::uint8_t column = column_of(table, part, member);
        if (column != members::no_column) {
            row.copy(column, field_of(record, part, member), member.width);
        }
    }
}

}  // namespace

void read_members(const Row &row, Table table, Ssids ssids, DevInfo &record) {
    if (table == Table::devices) {
        record.Dev_Sn = static_cast<std::uint32_t>(row.unsigned_number(0));
    }
    Utf8ToGb2312 converter;
    for (const Part &part : parts) {
        read_part(row, table, part, record);
        if (part.kind == members::Kind::network && ssids == Ssids::in_gb2312 && !leads_its_radio(part)) {
            convert_ssid(converter, record.wlan[part.number].Ssid);
        }
    }
}

}  // namespace routerdb
