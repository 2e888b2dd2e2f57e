// A call of every exported function, on a router that has a little of everything.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "routerdb.h"
#include "support/named.h"

namespace soak {

/// Connections of the caller's, for the functions that ask for one.
struct Connections {
    sqlite3 *main;
    sqlite3 *catalogue;
};

/// What one call leaves behind where the library does not close its own.
struct Left {
    long streams = 0;      // one for each host name that is looked up in the leases
    long converters = 0;   // of a conversion that fails
    long connections = 0;  // that SQLite could not open
};

inline constexpr Left a_stream{1, 0, 0};
inline constexpr Left a_converter{0, 1, 0};
inline constexpr Left a_connection{0, 0, 1};

enum class Pace : std::uint8_t { quick, slow };

struct Call : support::Named {
    void (*make)(const Connections &callers);
    Pace pace = Pace::quick;
    Left left{};
    Left left_without_databases{};
};

inline Call slow(Call call) {
    call.pace = Pace::slow;
    return call;
}

inline Call leaves(const Left &left, Call call) {
    call.left = left;
    call.left_without_databases = left;
    return call;
}

inline Call leaves_with_databases(const Left &left, Call call) {
    call.left = left;
    return call;
}

inline Call leaves_without_databases(const Left &left, Call call) {
    call.left_without_databases = left;
    return call;
}

using Calls = std::vector<Call>;

/// Those of several kinds.
Calls joined(std::initializer_list<Calls (*)()> kinds);

// The calls of each file. One may be of several functions, and a function may have several, whose names go on.
Calls access_point_calls();
Calls core_calls();
Calls list_calls();
Calls rule_calls();

/// All of them.
Calls calls();

/// What is exported and is no function.
inline constexpr const char *exported_data[] = {"acl_wifi_id", "db_mutex"};

/// Fills databases and files. They are put back by put_router_back().
void make_router();
void put_router_back();

/// Takes the databases away, so that SQLite can open none. They come back with put_router_back().
void take_databases_away();

/// A name and what the braces do.
#define SOAK_CALL(name, ...)                                                    \
    soak::Call {                                                                \
        name, []([[maybe_unused]] const soak::Connections &callers) __VA_ARGS__ \
    }

}  // namespace soak
