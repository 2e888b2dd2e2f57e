// What the tests know of each rule table, in literal statements and literal offsets. One file per table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "support/named.h"
#include "support/streams.h"

namespace golden {

inline constexpr std::int32_t lowest = -2147483648;
inline constexpr std::int32_t highest = 2147483647;

inline std::string of(std::size_t count, char letter) {
    return std::string(count, letter);
}

/// So many characters, a number at their end.
inline std::string numbered(std::size_t count, char letter, int n) {
    const std::string number = std::to_string(n);
    return of(count - number.size(), letter) + number;
}

/// A record or a list, whatever its structure.
class Pointer {
public:
    Pointer(const void *place) : place_(place) {}

    template <typename Structure>
    operator Structure *() const {
        return static_cast<Structure *>(const_cast<void *>(place_));
    }

private:
    const void *place_;
};

struct Table : support::Named {
    std::uint32_t id;
    std::size_t record_size;
    std::size_t list_size;

    std::function<void(Pointer)> list{};
    std::function<void(int, Pointer)> get{};
    std::function<void(Pointer)> add{};
    std::function<void(Pointer)> modify{};
    int add_requests = 1;
    int modify_requests = 1;
    bool long_statements = false;                // those of row 1 outgrow the room that a statement has at first
    std::function<void(const char *)> remove{};  // by a condition; some tables have none
    std::function<void(int)> remove_row{};       // those that have none: by an id
    std::function<int(Pointer, const char *)> build{};

    /// Row number n: the statement that inserts it, and its record in a list. Every row is another one.
    std::string (*row)(int n) = nullptr;
    std::string (*record)(int n) = nullptr;

    /// Rows 1 to n in one transaction, and their records.
    std::string inserts(int n) const;
    std::string records(int n) const;

    /// Removes row 1.
    void remove_first() const;

    std::string list_query{};
    std::string get_query{};     // of row 7
    std::string lowest_query{};  // of row -2147483648
    std::string remove_until_condition{};
    std::uint32_t remove_id = id;  // table id that removals go under

    /// What the builder says: without the lock file, without the database, with a query of the table "nowhere".
    support::Streams::Text without_lock_file{"cannot open /var/databaselock!\n", ""};
    support::Streams::Text without_database{"Error: unable to open database file", ""};
    support::Streams::Text without_table{"Error: no such table: nowhere", ""};
};

/// A caller's record and the statements that add and modify make of it.
struct Sample : support::Named {
    std::string record;
    std::string insert;
    std::string update;
    std::vector<std::string> before_insert{};  // requests that an add sends first
    std::vector<std::string> before_update{};
};

/// A client operation and the requests that it sends.
struct Operation : support::Named {
    std::function<void()> run;
    std::vector<std::string> requests;
};

/// One request, as support::readable() shows it.
std::string query(std::uint32_t table_id, const std::string &text);
std::string execute(std::uint32_t table_id, const std::string &text);

/// Statements that leave one row in a table, and the record that the builder makes of it.
struct Built : support::Named {
    std::string rows;
    std::string record;
    std::string leases{};     // content of the lease file, which is not made without
    std::string catalogue{};  // statements for the catalogue database

    void prepare() const;
};

struct Golden {
    Table table;
    std::vector<Sample> samples;
    std::vector<Operation> others;  // operations that not every table has
    std::vector<Built> built;
};

/// A row and its table.
struct Row : support::Named {
    Table table;
    Built built;
};

Golden filter_url();
Golden user_timegroup();
Golden acl(int number);
Golden domain_ip();
Golden famliymember();
Golden forword_ipport();
Golden smartqos_whitelist();
Golden user_ipgroup();
Golden user_urlinfo();
Golden dhcpserverstaticbind();
Golden filter_mac();
Golden filter_ipport();
Golden qos_rule();
Golden behavior_rule();

/// All of them.
std::vector<Golden> all();
std::vector<Table> tables();
std::vector<Row> rows();

}  // namespace golden
