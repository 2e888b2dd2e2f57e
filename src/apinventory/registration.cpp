#include "apinventory/registration.h"

#include <syslog.h>
#include <unistd.h>

#include <cstring>

#include "apinventory/notify.h"
#include "apinventory/numbers.h"
#include "apinventory/status.h"
#include "apinventory/update.h"
#include "core/execute.h"
#include "core/profiles.h"
#include "core/query.h"

namespace routerdb {

namespace {

constexpr int attempts = 16;
constexpr useconds_t between_attempts = 100;

using Sql = StackText<512>;

struct Matches {
    bool succeeded;
    unsigned int count;
};

Matches count_matches(const Text &sql, SharedConnection &connection) {
    Matches found{false, 0};
    found.succeeded = count(profiles::exec_char_int, sql, found.count, &connection) == 0;
    return found;
}

int run(const Text &sql) {
    return execute(profiles::exec_char, sql);
}

void append_mac(Text &sql, const DevInfo &device) {
    sql.append_quoted(field_text(device.Dev_MAC), Quotes::doubled);
}

void append_mac_lookup(Text &sql, const DevInfo &device) {
    sql.append("select Dev_Sn  from DevInfo where Dev_MAC=");
    append_mac(sql, device);
    sql.append(";");
}

void read_sn_by_mac(const DevInfo &device, unsigned long &sn, SharedConnection &connection) {
    read_sn(LookupKey::mac, field_text(device.Dev_MAC), Quotes::doubled, sn, &connection);
}

/// Only the text of five pairs of zeros counts as no address; six pairs do not.
bool has_mac(const DevInfo &device) {
    const std::string_view mac = field_text(device.Dev_MAC);
    return !mac.empty() && mac != "00:00:00:00:00";
}

/// Deletes the row that has the serial number of a new access point: its device had the IP address before.
void make_way(const DevInfo &device, unsigned long sn, SharedConnection &connection) {
    if (!has_mac(device) || field_text(device.Dev_Ipaddress).empty()) {
        return;
    }
    Sql lookup;
    lookup.append("select *  from DevInfo where Dev_Sn=").append_quoted(sn).append(";");
    const Matches found = count_matches(lookup, connection);
    if (found.succeeded && found.count != 0) {
        Sql removal;
        removal.append("delete from DevInfo where Dev_Sn=").append_quoted(sn).append(";");
        [[maybe_unused]] const int result = run(removal);
    }
}

/// Inserts the row of a new access point, which the report then fills.
int insert_row(const DevInfo &device, unsigned long sn) {
    if (has_mac(device)) {
        Sql removal;
        removal.append("delete from DevInfo where Dev_MAC=");
        append_mac(removal, device);
        removal.append(";");
        [[maybe_unused]] const int result = run(removal);
    }
    Sql sql;
    sql.append("insert into DevInfo (Dev_Sn,Dev_Group,Dev_Name,Dev_MAC) values(").append_quoted(sn);
    sql.append(",").append_quoted(field_text(device.Dev_Group), Quotes::doubled);
    sql.append(",").append_quoted(field_text(device.Dev_Name), Quotes::doubled).append(",");
    append_mac(sql, device);
    sql.append(") ;");
    return run(sql);
}

/// Takes the memory for a report.
bool take_memory(Text &sql) {
    const bool taken = sql.reserve(report_size);
    if (!taken) {
        syslog(LOG_ERR, "not have enough mem");
    }
    return taken;
}

}  // namespace

int find_known(const DevInfo &device, unsigned long &sn) {
    SharedConnection connection;
    if (field_text(device.Dev_MAC).empty()) {
        return lookup_failed;
    }
    Sql lookup;
    append_mac_lookup(lookup, device);
    Matches found{false, 0};
    for (int attempt = 0; attempt < attempts && found.count == 0; ++attempt) {
        found = count_matches(lookup, connection);
        if (found.count == 0) {
            usleep(between_attempts);
        }
    }
    if (found.count == 0 || !found.succeeded) {
        return is_new;
    }
    read_sn_by_mac(device, sn, connection);
    return is_known;
}

int find_or_make_way(const DevInfo &device, unsigned long &sn, SharedConnection &connection) {
    Sql lookup;
    append_mac_lookup(lookup, device);
    for (int attempt = 1;; ++attempt) {
        sn = address_in_network_order(field_text(device.Dev_Ipaddress));
        const Matches found = count_matches(lookup, connection);
        if (found.count != 0) {
            if (!found.succeeded) {
                return lookup_failed;
            }
            read_sn_by_mac(device, sn, connection);
            return is_known;
        }
        if (attempt == attempts) {
            if (!found.succeeded) {
                return lookup_failed;
            }
            make_way(device, sn, connection);
            return is_new;
        }
        usleep(between_attempts);
    }
}

int register_device(const DevInfo &device) {
    StackText<1> sql;  // all of it comes from the heap, before anything is done
    if (!take_memory(sql)) {
        return -1;
    }
    unsigned long sn = 0;
    SharedConnection connection;
    const int lookup = find_or_make_way(device, sn, connection);
    const int count = rows_in_table("DevInfo", &connection);
    if (lookup == lookup_failed || count < 0) {
        return -1;
    }
    if (lookup == is_new && (count >= ROUTERDB_MAX_DEVICES || insert_row(device, sn) < 0)) {
        return -1;
    }
    append_report(sql, lookup == is_new ? Report::of_new : Report::of_known, device);
    if (run(sql) < 0) {
        return -1;
    }
    notify(Event::added, sn);
    // Deliberate: it is the statement's text that is searched, and its values may contain the word.
    if (std::strstr(sql.c_str(), "insert") != nullptr) {
        copy_database_onto_itself();
    }
    return static_cast<int>(sn);
}

void save_device(const DevInfo &device) {
    StackText<1> sql;
    if (take_memory(sql)) {
        append_report(sql, Report::saved, device);
        [[maybe_unused]] const int result = run(sql);
    }
}

int update_device(const DevInfo &device) {
    StackText<16384> sql;
    append_configuration(sql, device);
    return run(sql);
}

}  // namespace routerdb
