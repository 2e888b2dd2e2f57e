// The operations as each variant writes them. All work on `desk` or print to the standard output stream.
#pragma once

#define BENCH_OPERATIONS         \
    void get_device();           \
    void get_device_converted(); \
    void list_devices();         \
    void list_url_filters();     \
    void list_behavior_rules();  \
    void execute_update();       \
    void configure_device();     \
    void register_device();      \
    void print_device_page();    \
    void print_classes();        \
    void print_groups();         \
    void request_one();          \
    void request_all();          \
    void fetch_url_filters();    \
    void start_and_read();

namespace bench {

/// SQLite and sockets by hand, in the order of connections and statements that the router has always had.
namespace bare {
BENCH_OPERATIONS
}

/// The same results as users of SQLiteCpp would get them. Not every operation has one here and below.
namespace sqlitecpp {
BENCH_OPERATIONS
}

/// As users of SOCI would.
namespace soci_users {
BENCH_OPERATIONS
}

/// As scripts around the sqlite3 program would.
namespace program {
BENCH_OPERATIONS
}

}  // namespace bench

#undef BENCH_OPERATIONS
