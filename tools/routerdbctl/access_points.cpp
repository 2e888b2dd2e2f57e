// Access points.
#include <cstdio>
#include <cstring>

#include "access_point_fields.h"
#include "change.h"
#include "commands.h"
#include "output.h"
#include "routerdb.h"
#include "session.h"
#include "sql.h"

namespace ctl {

namespace {

constexpr char listed[] =
    "SELECT Dev_Sn AS sn, Dev_Name AS name, Dev_Ipaddress AS ip, Dev_MAC AS mac,"
    " iif(CAST(Dev_Status AS INTEGER) <> 0, 'online', 'offline') AS status,"
    " coalesce((SELECT WlanGroup_Name FROM WlanGroupInfo WHERE WlanGroup_Id = CAST(Dev_Wlan_GroupId AS INTEGER)), '') "
    "AS"
    " \"group\","
    " Dev_Model_Name AS model, Dev_SwVer AS version,"
    " CAST(Dev_Wlan_Sta_Num AS INTEGER) + CAST(coalesce(Dev_Wlan_Sta_Num_sec, 0) AS INTEGER) AS stations"
    " FROM DevInfo ORDER BY Dev_IPSUM";

/// An access point that somebody has named.
struct AccessPoint {
    char sn[24];
    char mac[24];
    char ip[24];
};

Status find_access_point(const Session &session, const char *name, AccessPoint &found) {
    if (session.status() != Status::done) {
        return session.status();
    }
    Query query(
        session.database(),
        "SELECT Dev_Sn, Dev_MAC, Dev_Ipaddress FROM DevInfo WHERE CAST(Dev_Sn AS TEXT) = ?1 OR Dev_Ipaddress = ?1 "
        "OR Dev_MAC = ?1 COLLATE NOCASE OR Dev_Name = ?1 ORDER BY Dev_IPSUM");
    if (!query.bind(1, name).next()) {
        return query.status() != Status::done
                   ? query.status()
                   : fail(Status::not_found, "no access point has the serial number, address or name \"%s\"", name);
    }
    std::snprintf(found.sn, sizeof(found.sn), "%s", query.text(0).data());
    std::snprintf(found.mac, sizeof(found.mac), "%.*s", static_cast<int>(query.text(1).size()), query.text(1).data());
    std::snprintf(found.ip, sizeof(found.ip), "%.*s", static_cast<int>(query.text(2).size()), query.text(2).data());
    return !query.next() ? query.status()
                         : fail(Status::refused, "several access points are called \"%s\"; say which, such as %s", name,
                                found.sn);
}

/// Updates columns of one.
Status update(const Invocation &invocation, const Session &session, const AccessPoint &which, const Sql &assignments,
              const Sql &conditions) {
    Sql sql;
    sql.add("UPDATE DevInfo SET %s WHERE Dev_Sn = %s;", assignments.text(), which.sn);
    if (invocation.options.is_dry_run) {
        std::puts(sql.text());
        return Status::done;
    }
    Sql proof;
    proof.add("SELECT count(*) FROM DevInfo WHERE Dev_Sn = %s%s", which.sn, conditions.text());
    const Status status = change(invocation, session.database(), add_guard(sql, 1).text(), proof);
    return status == Status::refused ? fail(status, "another program has changed access point %s meanwhile", which.sn)
                                     : status;
}

/// Finds a WLAN group by "#3" or by its name; "#0" is none.
Status find_wlan_group(const Session &session, const char *name, std::int64_t &id) {
    const bool is_number = *name == '#';
    Query query(session.database(), is_number
                                        ? "SELECT WlanGroup_Id FROM WlanGroupInfo WHERE CAST(WlanGroup_Id AS TEXT) = ?1"
                                        : "SELECT WlanGroup_Id FROM WlanGroupInfo WHERE WlanGroup_Name = ?1");
    const char *const text = name + (is_number ? 1 : 0);
    const bool is_none = std::strcmp(name, "#0") == 0;
    const bool is_there = query.bind(1, text).next();
    id = is_there ? query.number(0) : 0;
    return is_there || is_none ? query.status() : fail(Status::refused, "there is no WLAN group %s", name);
}

struct NewStatus {
    const AccessPoint &which;
    const char *text;
};

int set_status(void *context) {
    const auto &status = *static_cast<const NewStatus *>(context);
    if (*status.which.mac != '\0') {
        SetDevStatus(status.which.mac, status.text);
    } else {
        SetDevStatusbyIP(status.which.ip, status.text);
    }
    return 0;
}

}  // namespace

Status list_access_points(Invocation &invocation) {
    Session session(invocation);
    if (session.status() != Status::done) {
        return session.status();
    }
    Sql sql;
    const Status status = add_narrowed(sql, session.database(), invocation.options, listed);
    if (status != Status::done) {
        return status;
    }
    Query query(session.database(), sql.text());
    for (int i = 0; i < invocation.options.conditions; ++i) {
        query.bind(i + 1, std::strchr(invocation.options.where[i], '=') + 1);
    }
    return print_rows(invocation, query);
}

Status show_access_point(Invocation &invocation) {
    Session session(invocation);
    AccessPoint which{};
    const Status status = find_access_point(session, invocation.arguments[0], which);
    if (status != Status::done) {
        return status;
    }
    Sql sql;
    if (invocation.options.format == Format::standard || invocation.options.format == Format::table) {
        add_fields_as_rows(sql, session.database(), which.sn);
    } else {
        sql.add("SELECT * FROM DevInfo WHERE Dev_Sn = %s", which.sn);
    }
    Query query(session.database(), sql.text());
    return print_rows(invocation, query);
}

Status set_access_point(Invocation &invocation) {
    Session session(invocation);
    AccessPoint which{};
    Status status = find_access_point(session, invocation.arguments[0], which);
    Sql assignments;
    Sql conditions;
    for (int i = 1; status == Status::done && i < invocation.count; ++i) {
        AccessPointField field{};
        status = read_access_point_field(session.database(), invocation.arguments[i],
                                         invocation.options.has(option_force), field);
        assignments.add("%s\"%w\" = %Q", i == 1 ? "" : ", ", field.column, field.value);
        conditions.add(" AND \"%w\" IS %Q", field.column, field.value);
    }
    return status != Status::done ? status : update(invocation, session, which, assignments, conditions);
}

Status set_access_point_status(Invocation &invocation) {
    const char *const word = invocation.arguments[1];
    const bool is_online = std::strcmp(word, "online") == 0;
    if (!is_online && std::strcmp(word, "offline") != 0) {
        return fail(Status::usage, "an access point is online or offline, not \"%s\"", word);
    }
    Session session(invocation);
    AccessPoint which{};
    Status status = find_access_point(session, invocation.arguments[0], which);
    if (status != Status::done) {
        return status;
    }
    const NewStatus wanted{which, is_online ? "1" : "0"};
    if (invocation.options.is_dry_run) {
        std::printf("access point %s: status %s\n", which.sn, word);
        return Status::done;
    }
    Sql message;
    const Outcome outcome =
        call_apart(set_status, const_cast<NewStatus *>(&wanted), invocation.seconds(), WhenOverdue::end, message);
    Sql proof;
    proof.add("SELECT count(*) FROM DevInfo WHERE Dev_Sn = %s AND Dev_Status = %Q", which.sn, wanted.text);
    if (outcome == Outcome::overdue) {
        return look(invocation, session.database(), proof);
    }
    return number_of(session.database(), proof.text()) != 0
               ? Status::done
               : fail(Status::unreachable, "the status was not set: %s",
                      *message.text() != '\0' ? message.text() : "the database cannot be written");
}

Status set_access_point_group(Invocation &invocation) {
    Session session(invocation);
    AccessPoint which{};
    Status status = find_access_point(session, invocation.arguments[0], which);
    std::int64_t id = 0;
    status = status != Status::done ? status : find_wlan_group(session, invocation.arguments[1], id);
    if (status != Status::done) {
        return status;
    }
    Sql assignment;
    Sql condition;
    assignment.add("Dev_Wlan_GroupId = '%lld'", id);
    condition.add(" AND Dev_Wlan_GroupId = '%lld'", id);
    return update(invocation, session, which, assignment, condition);
}

}  // namespace ctl
