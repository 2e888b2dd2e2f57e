// The assignments of an update statement, such as " Dev_Wlan1_Ssid='...',".
#pragma once

#include "apinventory/parts.h"
#include "text/encoding.h"
#include "text/text.h"

namespace routerdb {

/// A member as a statement with an order of its own writes it.
struct Assigned {
    constexpr Assigned(std::string_view name, members::Written how = members::usual)
        : row(members::row_of(name)), written(how) {}

    std::uint8_t row;  // of the table of members
    members::Written written;
};

/// Appends the members of a record to the statement that writes it.
class Assignments {
public:
    /// @param table      gives the columns their names; the groups' tables have the same
    /// @param converter  for the SSIDs that an access point reports; null writes them as they stand
    Assignments(Text &sql, const DevInfo &record, Table table, Quotes quotes, Gb2312ToUtf8 *converter)
        : sql_(sql), record_(record), table_(table), quotes_(quotes), converter_(converter) {}

    void append(const Part &part, Assigned assigned) const {
        append(part, members::table[assigned.row], assigned.written);
    }

    template <std::size_t count>
    void append_each(const Part &part, const Assigned (&list)[count]) const {
        for (const Assigned &assigned : list) {
            append(part, assigned);
        }
    }

    /// All members of a part but those that are written apart.
    void append_reported(const Part &part) const;

    /// Those of them that a group gives.
    void append_settings(const Part &part) const;

private:
    void append(const Part &part, const members::Member &member, members::Written written) const;
    void append_column(const Part &part, const members::Member &member) const;
    void append_converted(std::string_view ssid) const;

    Text &sql_;
    const DevInfo &record_;
    Table table_;
    Quotes quotes_;
    Gb2312ToUtf8 *converter_;
};

}  // namespace routerdb
