// The operation "process start" of the variants that are programs of their own.
#include "harness/places.h"
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
    spawn({"sqlite3", paths::main_database, "select Dev_Name from DevInfo where Dev_Sn = 218212544;"});
}

}  // namespace bench
