#include "soak/calls/calls.h"

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "dhcp/leases.h"
#include "profiles/samples.h"
#include "support/database.h"

namespace soak {

namespace {

constexpr const char *databases[] = {support::main_database, support::catalogue_database};

std::string kept(const char *database) {
    return std::string(database) + ".kept";
}

/// Rows that samples::fill_databases() leaves out. No table grows without end, however often a row is added.
void add_rows() {
    const support::Database database;
    for (const std::string &table :
         database.rows("select name from sqlite_master where type = 'table' and name not like 'sqlite%';")) {
        if (database.value("select count(*) from " + table + ";") == "0") {
            database.execute("insert into " + table + " default values;");
        }
        database.execute("create trigger few_" + table + " after insert on " + table + " begin delete from " + table +
                         " where rowid < new.rowid - 9; end;");
    }
    database.execute("update WlanGroupInfo set WlanGroup_Id = 1;");
}

/// What stays open in thousands of calls takes descriptors.
void allow_many_descriptors() {
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_NOFILE, &limit);
}

}  // namespace

Calls joined(std::initializer_list<Calls (*)()> kinds) {
    Calls all;
    for (const auto of_kind : kinds) {
        const Calls some = of_kind();
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

Calls calls() {
    return joined({access_point_calls, core_calls, list_calls, rule_calls});
}

void make_router() {
    allow_many_descriptors();
    if (support::file_exists(kept(support::main_database))) {
        put_router_back();
        return;
    }
    samples::fill_databases();
    add_rows();
    backup_sqlite_db();
    for (const char *const database : databases) {
        support::write_file(kept(database), support::file_content(database));
    }
    support::write_file(leases::binary_file,
                        leases::header + leases::record(17, leases::some_ip, leases::some_mac, "tablet"));
    mkdir("/var/stations", 0755);
    support::write_file("/var/stations/10.0.0.1", "00:11:22:33:44:55+120+-67\n");
    signal(SIGUSR1, SIG_IGN);  // which the DHCP server is asked with
    support::write_file(leases::pid_file, std::to_string(getpid()) + "\n");
}

void put_router_back() {
    for (const char *const database : databases) {
        std::filesystem::remove_all(database);  // a directory, with what was copied into it
        support::write_file(database, support::file_content(kept(database)));
    }
}

void take_databases_away() {
    for (const char *const database : databases) {
        unlink(database);
        mkdir(database, 0755);
    }
}

}  // namespace soak
