#include "selection.h"

#include <algorithm>
#include <cstring>

namespace ctl {

namespace {

constexpr char days[] =
    "days(\"weekday1\", \"weekday2\", \"weekday3\", \"weekday4\", \"weekday5\", \"weekday6\", \"weekday7\")";

bool has_days(const Table &table) {
    return Columns(table).find("weekday1") != nullptr;
}

/// Adds what a field is in the query.
Status add_field(Sql &sql, const Table &table, std::string_view field) {
    const auto size = static_cast<int>(field.size());
    if (field == "days" && has_days(table)) {
        sql.add("%s", days);
    } else if (field == "id" || Columns(table).find(field) != nullptr) {
        sql.add("\"%.*s\"", size, field.data());
    } else {
        return fail(Status::usage, "%s has no field \"%.*s\"; \"routerdbctl table show %s\" lists them", table.name,
                    size, field.data(), table.name);
    }
    return Status::done;
}

void add_all(Sql &sql, const Table &table, bool for_people) {
    sql.add("\"id\" AS id");
    for (const Column &column : Columns(table)) {
        if (column.field->kind == Kind::zero) {
            continue;
        }
        if (column.field->kind != Kind::weekdays || !for_people) {
            sql.add(", \"%w\"", column.name);
        } else if (column.name[std::strlen(column.name) - 1] == '1') {
            sql.add(", %s AS days", days);
        }
    }
}

Status add_some(Sql &sql, const Table &table, std::string_view fields) {
    Status status = Status::done;
    for (const char *before = ""; status == Status::done && !fields.empty(); before = ", ") {
        const std::string_view field(fields.data(), std::min(fields.find(','), fields.size()));
        sql.add("%s", before);
        status = add_field(sql, table, field);
        sql.add(" AS \"%.*s\"", static_cast<int>(field.size()), field.data());
        fields.remove_prefix(std::min(field.size() + 1, fields.size()));
    }
    return status;
}

Status add_condition(Sql &sql, const Table &table, const char *condition) {
    const char *const equals = std::strchr(condition, '=');
    if (equals == nullptr) {
        return fail(Status::usage, "--where takes FIELD=VALUE, not \"%s\"", condition);
    }
    const Status status = add_field(sql, table, {condition, static_cast<std::size_t>(equals - condition)});
    sql.add(" = ?");
    return status;
}

Status add_order(Sql &sql, const Table &table, const char *field) {
    const bool is_reverse = *field == '-';
    sql.add(" ORDER BY ");
    const Status status = add_field(sql, table, field + (is_reverse ? 1 : 0));
    sql.add("%s, \"id\"", is_reverse ? " DESC" : "");
    return status;
}

}  // namespace

Status add_selection(Sql &sql, const Options &options, const Table &table) {
    const bool for_people = options.format == Format::standard || options.format == Format::table;
    Status status = Status::done;
    sql.add("SELECT ");
    if (options.fields == nullptr) {
        add_all(sql, table, for_people);
    } else {
        status = add_some(sql, table, options.fields);
    }
    sql.add(" FROM \"%w\"", table.in_sql());
    for (int i = 0; status == Status::done && i < options.conditions; ++i) {
        sql.add(i == 0 ? " WHERE " : " AND ");
        status = add_condition(sql, table, options.where[i]);
    }
    if (status == Status::done) {
        status = add_order(sql, table, options.sort != nullptr ? options.sort : "id");
    }
    if (options.limit != 0) {
        sql.add(" LIMIT %u", options.limit);
    }
    return status;
}

}  // namespace ctl
