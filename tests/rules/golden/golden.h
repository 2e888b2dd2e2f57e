// What the tests know of each rule table: its places in table and record, by number, and its statements, in words. One
// file per table. Rows, records and statements of all kinds come from it, and nothing from the library's own tables.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "rules/golden/operations.h"
#include "rules/golden/place.h"
#include "support/database.h"
#include "support/named.h"
#include "support/streams.h"

namespace golden {

/// Where a record holds what it takes from its time group: the group's name, a copy of the group, of which it may carry
/// the beginning only, and a flag that its times are known, if it has one.
struct TimeGroupPlaces {
    std::size_t name;
    std::size_t group;
    std::size_t size = 380;
    std::optional<std::size_t> known{};
};

/// Where a record holds what it takes from its IP group. The group's range takes the place of the rule's own where that
/// is carried without a group only.
struct IpGroupPlaces {
    std::size_t name;
    std::size_t group;
};

/// Where a record holds the names of its applications in both languages, 2048 bytes each.
struct NamePlaces {
    std::size_t names;
    std::size_t names_en;
};

/// What a builder says: without the lock file, without the database, with a query of the table "nowhere".
struct Messages {
    support::Streams::Text without_lock_file;
    support::Streams::Text without_database;
    support::Streams::Text without_table;
};

inline const Messages common_messages{{support::cannot_open_lock_file, ""},
                                      {"Error: unable to open database file", ""},
                                      {"Error: no such table: nowhere", ""}};
inline const Messages detailed_messages{
    {"", support::cannot_open_lock_file},
    {"", "cannot open /etc/config/systemconf/database/myrouter.db, ErrorCode: 14!\n"},
    {"cannot prepare sql cmdline, Error: no such table: nowhere\n", ""}};

struct Table : support::Named {
    std::uint32_t id;
    std::size_t record_size;
    std::size_t list_size;
    Places places{};  // in the order of the columns

    Read list{};
    ReadOne get{};
    Write add{};
    Write modify{};
    Build build{};

    // A removal that a table does not have is empty.
    RemoveWhere remove{};
    RemoveOfKind remove_of_kind{};
    RemoveRow remove_row{};  // of tables that do not remove by a condition
    RemoveAll remove_all{};

    // "{name}" stands for the value of that column, "{condition}" for the one that is given.
    std::string list_query{};
    std::string get_query{};
    std::string insert{};
    std::string update{};
    std::string removal{};
    std::string removal_of_all{};
    std::uint32_t remove_id = id;                    // table id that removals go under
    std::vector<std::string> asked_before_insert{};  // scalar queries
    std::vector<std::string> asked_before_update{};

    std::optional<TimeGroupPlaces> time_group{};
    std::optional<IpGroupPlaces> ip_group{};
    std::optional<std::size_t> host_name{};  // of the address in the column "devmac"
    std::optional<NamePlaces> names{};       // of the applications in the column "behavior_info"

    Messages messages = common_messages;

    /// Row number n. Every row is another one, and has times and addresses of its own.
    Values row(int n) const;

    /// The record of such a row, and of rows 1 to n.
    std::string record(int n) const;
    std::string records(int n) const;

    /// Inserts rows 1 to n in one transaction.
    std::string inserts(int n) const;

    /// An add, or a modify, and what it asks first.
    int add_requests() const { return 1 + static_cast<int>(asked_before_insert.size()); }
    int modify_requests() const { return 1 + static_cast<int>(asked_before_update.size()); }

    /// Removes row 1.
    void remove_first() const;
};

// The tables of each file.
#define TABLE(name) std::vector<Table> name();
#include "golden_tables.inc"
#undef TABLE

/// All of them.
const std::vector<Table> &tables();

/// The one with a name.
const Table &table(const std::string &name);

}  // namespace golden
