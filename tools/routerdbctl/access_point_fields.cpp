#include "access_point_fields.h"

#include <cstdio>
#include <cstring>

#include "apinventory/members.h"
#include "utf8.h"

namespace ctl {

namespace {

namespace members = routerdb::members;

/// Takes a start off a text that has it.
bool take_off(std::string_view &text, std::string_view start) {
    const bool has_it = text.size() >= start.size() && std::memcmp(text.data(), start.data(), start.size()) == 0;
    text.remove_prefix(has_it ? start.size() : 0);
    return has_it;
}

/// Whether a column is that of a member: of the access point, of one of its networks ("Dev_Wlan3_Ssid"), or of one of
/// its radios ("Dev_Wlan_Channel_sec").
bool is_column_of(const members::Member &member, const char *column) {
    std::string_view rest = column;
    if (member.kind == members::Kind::device) {
        return rest == member.name;
    }
    if (!take_off(rest, "Dev_Wlan")) {
        return false;
    }
    if (member.kind == members::Kind::network) {
        const bool has_number = !rest.empty() && rest[0] >= '1' && rest[0] <= '8';
        rest.remove_prefix(has_number ? 1 : 0);
        return has_number && take_off(rest, "_") && rest == member.name;
    }
    return take_off(rest, "_") && take_off(rest, member.name) && (rest.empty() || rest == "_sec");
}

/// The bytes of a column's member, its terminator included; 0 for a column that no member has.
unsigned width_of_column(const char *column) {
    for (const members::Member &member : members::table) {
        if (is_column_of(member, column)) {
            return member.width;
        }
    }
    return 0;
}

/// What changing would take an access point apart from its rows.
bool is_identity(const char *column) {
    constexpr const char *columns[] = {"Dev_Sn", "Dev_IPSUM", "Dev_Ipaddress", "Dev_MAC"};
    for (const char *const one : columns) {
        if (std::strcmp(one, column) == 0) {
            return true;
        }
    }
    return false;
}

Status find_column(const Database &database, const char *text, std::size_t length, AccessPointField &field) {
    Query query(database,
                "SELECT name FROM pragma_table_info('DevInfo') WHERE name IN (?1, 'Dev_' || ?1) COLLATE NOCASE");
    if (!query.bind(1, {text, length}).next()) {
        return query.status() != Status::done
                   ? query.status()
                   : fail(Status::usage,
                          "an access point has no field \"%.*s\"; \"routerdbctl -o json ap show\" lists them",
                          static_cast<int>(length), text);
    }
    std::snprintf(field.column, sizeof(field.column), "%s", query.text(0).data());
    return Status::done;
}

bool has_column(const Query &query, std::string_view name) {
    for (int i = 0; i < query.columns(); ++i) {
        if (name == query.name(i)) {
            return true;
        }
    }
    return false;
}

}  // namespace

Status read_access_point_field(const Database &database, const char *text, bool force, AccessPointField &field) {
    const char *const equals = std::strchr(text, '=');
    if (equals == nullptr) {
        return fail(Status::usage, "\"%s\" is not of the form FIELD=VALUE", text);
    }
    const Status status = find_column(database, text, static_cast<std::size_t>(equals - text), field);
    if (status != Status::done) {
        return status;
    }
    field.value = equals + 1;
    const unsigned width = width_of_column(field.column);
    const std::size_t size = std::strlen(field.value);
    if (!force && is_identity(field.column)) {
        return fail(Status::refused, "%s is what an access point is known by; --force changes it nevertheless",
                    field.column);
    }
    if (!force && width != 0 && size >= width) {
        return fail(Status::usage, "%s: \"%s\" has %d bytes, of which %u fit", field.column, field.value,
                    static_cast<int>(size), width - 1);
    }
    return force || is_utf8(field.value) ? Status::done
                                         : fail(Status::usage, "%s: the value is no UTF-8", field.column);
}

void add_fields_as_rows(Sql &sql, const Database &database, const char *sn) {
    Query column(database, "SELECT name FROM pragma_table_info('DevInfo')");
    const char *before = "SELECT * FROM (";
    while (column.next()) {
        const char *const name = column.text(0).data();
        sql.add("%sSELECT %Q AS field, \"%w\" AS value FROM DevInfo WHERE Dev_Sn = %s", before, name, name, sn);
        before = " UNION ALL ";
    }
    sql.add(") WHERE value <> ''");
}

Status add_narrowed(Sql &sql, const Database &database, const Options &options, const char *query) {
    const Query all(database, query);
    sql.add("SELECT * FROM (%s)", query);
    for (int i = 0; i < options.conditions; ++i) {
        const char *const condition = options.where[i];
        const char *const equals = std::strchr(condition, '=');
        const std::string_view name(condition, equals != nullptr ? static_cast<std::size_t>(equals - condition) : 0);
        if (!has_column(all, name)) {
            return fail(Status::usage, "--where takes FIELD=VALUE with a column of the list, not \"%s\"", condition);
        }
        sql.add("%s\"%.*s\" = ?", i == 0 ? " WHERE " : " AND ", static_cast<int>(name.size()), condition);
    }
    if (options.sort != nullptr) {
        const bool is_reverse = *options.sort == '-';
        const char *const name = options.sort + (is_reverse ? 1 : 0);
        if (!has_column(all, name)) {
            return fail(Status::usage, "--sort takes a column of the list, not \"%s\"", name);
        }
        sql.add(" ORDER BY \"%w\"%s", name, is_reverse ? " DESC" : "");
    }
    if (options.limit != 0) {
        sql.add(" LIMIT %u", options.limit);
    }
    return all.status();
}

}  // namespace ctl
