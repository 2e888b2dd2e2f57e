// The operation "process start" of the variants that are programs of their own.
#include <cstdio>

#include "harness/desk.h"
#include "harness/spawn.h"
#include "harness/variants.h"

namespace bench {

void bare::start_and_read() {
    spawn({beside("start-bare")});
}

void sqlitecpp::start_and_read() {
    spawn({beside("start-sqlitecpp")});
}

void soci_users::start_and_read() {
    spawn({beside("start-soci")});
}

void program::start_and_read() {
    const std::string row = output_of({"sqlite3", "-batch", "-ascii", paths::main_database, known_device_sql});
    const std::size_t name = row.find('\x1f', row.find('\x1f') + 1) + 1;
    std::puts(row.substr(name, row.find('\x1f', name) - name).c_str());
}

}  // namespace bench
