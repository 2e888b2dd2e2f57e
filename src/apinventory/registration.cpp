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

// What is there shows in whether there are rows, not in their 160 columns.
constexpr const char *any_device =
    build_profile.names_needed_columns ? "select 1 from DevInfo" : "select *  from DevInfo";

void append_mac(Text &sql, const DevInfo &device) {
    sql.append_quoted(field_text(device.Dev_MAC), Quotes::doubled);
}

/// Only the text of five pairs of zeros counts as no address; six pairs do not.
bool has_mac(const DevInfo &device) {
    const std::string_view mac = field_text(device.Dev_MAC);
    return !mac.empty() && mac != "00:00:00:00:00";
}

/// Deletes the row that has the serial number of a new access point: its device had the IP address before.
void make_way(const DevInfo &device, unsigned long sn, const Road &road) {
    if (!has_mac(device) || field_text(device.Dev_Ipaddress).empty()) {
        return;
    }
    Sql lookup;
    lookup.append(any_device).append(" where Dev_Sn=").append_quoted(sn).append(";");
    const Road::Matches found = road.count(lookup);
    if (found.succeeded && found.count != 0) {
        Sql removal;
        removal.append("delete from DevInfo where Dev_Sn=").append_quoted(sn).append(";");
        [[maybe_unused]] const int result = road.run(removal);
    }
}

/// Inserts the row of a new access point, which the report then fills.
int insert_row(const DevInfo &device, unsigned long sn, const Road &road) {
    if (has_mac(device) && !road.alone()) {  // somebody else may have inserted it since
        Sql removal;
        removal.append("delete from DevInfo where Dev_MAC=");
        append_mac(removal, device);
        removal.append(";");
        [[maybe_unused]] const int result = road.run(removal);
    }
    Sql sql;
    sql.append("insert into DevInfo (Dev_Sn,Dev_Group,Dev_Name,Dev_MAC) values(").append_quoted(sn);
    sql.append(",").append_quoted(field_text(device.Dev_Group), Quotes::doubled);
    sql.append(",").append_quoted(field_text(device.Dev_Name), Quotes::doubled).append(",");
    append_mac(sql, device);
    sql.append(") ;");
    return road.run(sql);
}

/// Whether so many access points leave no place for another one, which is a failure.
bool is_full(unsigned count) {
    const bool full = count >= ROUTERDB_MAX_DEVICES;
    if (full) {
        leave_errno(EOVERFLOW);
    }
    return full;
}

/// Decides whether an access point is new or known, and writes what it reports.
/// @param sql  has the last statement then
/// @param sn   receives its serial number
bool write_report(const DevInfo &device, Text &sql, unsigned long &sn, const Road &road) {
    const int lookup = find_or_make_way(device, sn, road);
    sql.clear();
    sql.append(any_device).append(";");
    const unsigned count = road.count(sql).count;
    if (lookup == lookup_failed) {
        return false;
    }
    if (lookup == is_new && (is_full(count) || insert_row(device, sn, road) < 0)) {
        return false;
    }
    sql.clear();
    append_report(sql, lookup == is_new ? Report::of_new : Report::of_known, device);
    return road.run(sql) == 0;
}

/// Writes a report in one transaction.
/// @return false where that is not to be, or fails in a way that another one may not; nothing is written or said then
bool write_at_once(const DevInfo &device, Text &sql, unsigned long &sn, bool &written) {
    if (!build_profile.registers_at_once) {
        return false;
    }
    const int code = run_as_transaction(profiles::transaction, [&](Transaction &transaction) {
        written = write_report(device, sql, sn, Road(transaction));
    });
    if (is_busy(code)) {  // for so long that any other way would wait in vain, too
        written = false;
        leave_errno(errno_of(code));
        return true;
    }
    if (code == SQLITE_OK && !written) {
        leave_errno(EOVERFLOW);  // the table is full, which the transaction keeps to itself
    }
    return code == SQLITE_OK;
}

/// Takes the memory for a report.
bool take_memory(Text &sql) {
    const bool taken = sql.reserve(report_size);
    if (!taken) {
        syslog(LOG_ERR, "not have enough mem");
        leave_errno(ENOMEM);
    }
    return taken;
}

}  // namespace

Road::Matches Road::count(const Text &sql) const {
    Matches found{false, 0};
    unsigned long number = 0;
    found.succeeded = alone() ? transaction()->count(sql, found.count, number)
                              : routerdb::count(profiles::exec_char_int, sql, found.count, readings_) == 0;
    return found;
}

Road::Matches Road::find(const DevInfo &device, unsigned long &sn) const {
    Sql lookup;
    lookup.append("select Dev_Sn  from DevInfo where Dev_MAC=");
    append_mac(lookup, device);
    lookup.append(";");
    if (alone()) {
        Matches found{false, 0};
        found.succeeded = transaction()->count(lookup, found.count, sn);
        return found;
    }
    const Matches found = count(lookup);
    if (found.succeeded && found.count != 0) {
        read_sn(LookupKey::mac, field_text(device.Dev_MAC), Quotes::doubled, sn, readings_);
    }
    return found;
}

int Road::run(const Text &sql) const {
    if (alone()) {
        return transaction()->execute(sql) ? 0 : -1;
    }
    return execute(profiles::exec_char, sql);
}

int find_known(const DevInfo &device, unsigned long &sn) {
    SharedConnection connection;
    if (field_text(device.Dev_MAC).empty()) {
        leave_errno(EINVAL);
        return lookup_failed;
    }
    Road::Matches found{false, 0};
    for (int attempt = 0; attempt < attempts && found.count == 0; ++attempt) {
        found = Road(connection).find(device, sn);
        if (found.count == 0) {
            sleep_untold(between_attempts);
        }
    }
    return found.count != 0 && found.succeeded ? is_known : is_new;
}

int find_or_make_way(const DevInfo &device, unsigned long &sn, const Road &road) {
    const int last_attempt = road.alone() ? 1 : attempts;
    for (int attempt = 1;; ++attempt) {
        sn = address_in_network_order(field_text(device.Dev_Ipaddress));
        const Road::Matches found = road.find(device, sn);
        if (found.count != 0) {
            return found.succeeded ? is_known : lookup_failed;
        }
        if (attempt == last_attempt) {
            if (!found.succeeded) {
                return lookup_failed;
            }
            make_way(device, sn, road);
            return is_new;
        }
        sleep_untold(between_attempts);
    }
}

int register_device(const DevInfo &device) {
    StackText<1> sql;  // all of it comes from the heap, before anything is done
    if (!take_memory(sql)) {
        return -1;
    }
    unsigned long sn = 0;
    bool written = false;
    if (!write_at_once(device, sql, sn, written)) {
        SharedConnection connection;
        written = write_report(device, sql, sn, Road(connection));
    }
    if (!written) {
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
        [[maybe_unused]] const int result = execute(profiles::exec_char, sql);
    }
}

int update_device(const DevInfo &device) {
    StackText<16384> sql;
    append_configuration(sql, device);
    return execute(profiles::exec_char, sql);
}

}  // namespace routerdb
