#include "assignments.h"

#include <cstdio>
#include <cstring>

#include "meaning.h"
#include "weekdays.h"

namespace ctl {

namespace {

/// The table of groups that a table's rows refer to by the name of the field, such as "time-group"; null for none.
const Table *groups_of(const Table &table, std::string_view field) {
    const Table *found = nullptr;
    for (unsigned i = 0; i < table.rules->field_count; ++i) {
        const Table *const groups = referenced_by(table.rules->fields[i]);
        if (groups == nullptr) {
            continue;
        }
        if (field == groups->name) {
            return groups;
        }
        if (field == "group") {
            found = found == nullptr ? groups : nullptr;  // of two kinds neither
        }
    }
    return found;
}

const Field *reference_to(const Table &table, const Table &groups) {
    for (unsigned i = 0; i < table.rules->field_count; ++i) {
        if (referenced_by(table.rules->fields[i]) == &groups) {
            return &table.rules->fields[i];
        }
    }
    return nullptr;
}

/// Finds a group by "#3" or by its name.
Status find_group(const Database &database, const Table &groups, const char *value, bool force, std::int32_t &id) {
    const bool is_number = *value == '#';
    if (is_number && !read_number(value + 1, id)) {
        return fail(Status::usage, "\"%s\" is no id, such as #3", value);
    }
    Sql sql;
    sql.add("SELECT \"id\" FROM \"%w\" WHERE \"%w\" = %Q", groups.in_sql(), is_number ? "id" : "name",
            value + (is_number ? 1 : 0));
    Query query(database, sql.text());
    if (!query.next()) {
        return query.status() != Status::done ? query.status()
               : is_number && force           ? Status::done
                                              : fail(Status::refused, "there is no %s %s", groups.name, value);
    }
    id = static_cast<std::int32_t>(query.number(0));
    return !query.next() ? query.status()
                         : fail(Status::refused, "there are several %ss \"%s\"; say which one, such as #%d",
                                groups.name, value, id);
}

}  // namespace

void Assignments::put(std::string_view column, const char *text, std::int32_t number) {
    const Column *const found = columns_.find(column);
    if (found != nullptr) {
        values_[found - columns_.begin()] = {text, number, true};
    }
}

void Assignments::put_default(const char *column, const char *text, std::int32_t number) {
    if (find(column) == nullptr) {
        put(column, text, number);
    }
}

const Assignments::Value *Assignments::find(std::string_view column) const {
    const Column *const found = columns_.find(column);
    const Value *const value = found != nullptr ? &values_[found - columns_.begin()] : nullptr;
    return value != nullptr && value->is_given ? value : nullptr;
}

bool Assignments::is_empty() const {
    bool is_empty = true;
    each([&](const char *, const Value &) { is_empty = false; });
    return is_empty;
}

Status Assignments::take_group(const Table &groups, const char *value, const Database &database, bool force) {
    const Field &field = *reference_to(table_, groups);
    std::int32_t id = 0;
    const Status status = find_group(database, groups, value, force, id);
    put(field.column, nullptr, id);
    put(control_of(table_, field).column, nullptr, routerdb::control_referenced);
    return status;
}

Status Assignments::take_days(const char *value) {
    int days[days_of_a_week]{};
    if (!read_days(value, days)) {
        return fail(Status::usage, "\"%s\" are no days, such as mon-fri, sat,sun, daily or none", value);
    }
    for (unsigned day = 0; day < days_of_a_week; ++day) {
        char column[16];
        std::snprintf(column, sizeof(column), "weekday%u", day + 1);
        put(column, nullptr, days[day]);
    }
    put("timecontrol", nullptr, routerdb::control_own);
    return Status::done;
}

Status Assignments::take_hours(char *value) {
    char *const end = std::strchr(value, '-');
    if (end == nullptr || !is_time(std::string_view(value, static_cast<std::size_t>(end - value))) ||
        !is_time(end + 1)) {
        return fail(Status::usage, "\"%s\" are no hours, such as 20:30-23:59", value);
    }
    *end = '\0';
    put("start_time", value, 0);
    put("end_time", end + 1, 0);
    put("timecontrol", nullptr, routerdb::control_own);
    return Status::done;
}

Status Assignments::take_column(const Column &column, const char *value, bool force) {
    Sql words;
    const char *const fault = fault_of(*column.field, value, words);
    std::int32_t number = 0;
    const bool is_number = column.field->kind != Kind::text;
    if (fault != nullptr && (!force || (is_number && !read_number(value, number)))) {
        return fail(Status::usage, "%s: \"%s\" %s", column.name, value, fault);
    }
    if (is_number) {
        read_number(value, number);
    }
    put(column.name, is_number ? nullptr : value, number);
    return Status::done;
}

Status Assignments::fail_unknown(const char *field) const {
    Sql known;
    for (const Column &column : columns_) {
        const bool is_day = column.field->kind == Kind::weekdays;
        if (column.field->kind == Kind::zero) {
            continue;
        }
        if (!is_day || column.name[std::strlen(column.name) - 1] == '1') {
            known.add(", %s", is_day ? "days" : column.name);
        }
    }
    return fail(Status::usage, "%s has no field \"%s\"; it has id%s", table_.name, field, known.text());
}

Status Assignments::take_friendly(std::string_view field, char *value, const Database &database, bool force,
                                  bool &is_friendly) {
    is_friendly = true;
    if (field == "days" && columns_.find("weekday1") != nullptr) {
        return take_days(value);
    }
    if (field == "hours" && columns_.find("start_time") != nullptr) {
        return take_hours(value);
    }
    if (const Table *const groups = groups_of(table_, field)) {
        return take_group(*groups, value, database, force);
    }
    is_friendly = false;
    return Status::done;
}

Status Assignments::take(char *text, const Database &database, bool force) {
    char *const equals = std::strchr(text, '=');
    if (equals == nullptr) {
        return fail(Status::usage, "\"%s\" is not of the form FIELD=VALUE", text);
    }
    *equals = '\0';
    char *const value = equals + 1;
    bool is_friendly = false;
    const Status status = take_friendly(text, value, database, force, is_friendly);
    if (is_friendly) {
        return status;
    }
    if (std::strcmp(text, "id") == 0) {
        return read_number(value, id_) && id_ > 0 ? Status::done : fail(Status::usage, "\"%s\" is no id", value);
    }
    const Column *const column = columns_.find(text);
    return column != nullptr && column->field->kind != Kind::zero ? take_column(*column, value, force)
                                                                  : fail_unknown(text);
}

void Assignments::complete() {
    const bool has_times = columns_.find("start_time") != nullptr;
    const Value *const control = find("timecontrol");
    const bool is_own = control == nullptr || control->number == routerdb::control_own;
    for (unsigned day = 1; has_times && day <= days_of_a_week; ++day) {
        char column[16];
        std::snprintf(column, sizeof(column), "weekday%u", day);
        put_default(column, nullptr, is_own ? 1 : 0);
    }
    put_default("start_time", is_own ? "00:00" : "", 0);
    put_default("end_time", is_own ? "23:59" : "", 0);
    put_default("timecontrol", nullptr, routerdb::control_own);
    put_default("ipcontrol", nullptr, routerdb::control_own);
    put_default("status", nullptr, 1);
    for (const Column &column : columns_) {
        put_default(column.name, column.field->kind == Kind::text ? "" : nullptr, 0);
    }
}

Status Assignments::check_references(const Database &database) const {
    for (const Column &column : columns_) {
        const Table *const groups = referenced_by(*column.field);
        const Value *const value = groups != nullptr ? find(column.name) : nullptr;
        const Value *const control = value != nullptr ? find(control_of(table_, *column.field).column) : nullptr;
        if (control == nullptr || control->number != routerdb::control_referenced) {
            continue;
        }
        Sql sql;
        sql.add("SELECT count(*) FROM \"%w\" WHERE id = %d", groups->in_sql(), value->number);
        if (number_of(database, sql.text()) == 0) {
            return fail(Status::refused, "there is no %s #%d", groups->name, value->number);
        }
    }
    return Status::done;
}

Sql &add_pairs(Sql &sql, const Assignments &assignments, const char *operation, const char *between) {
    const char *before = "";
    assignments.each([&](const char *column, const Assignments::Value &value) {
        sql.add("%s\"%w\" %s ", before, column, operation);
        value.add_to(sql);
        before = between;
    });
    return sql;
}

}  // namespace ctl
