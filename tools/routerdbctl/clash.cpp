#include "clash.h"

#include "meaning.h"

namespace ctl {

namespace {

/// Calls visit(column, value) for each value that no other row may have.
template <typename Visit>
void each_unique(const Assignments &values, Visit visit) {
    for (const Column &column : Columns(values.table())) {
        const Assignments::Value *const value = is_unique(values.table(), column) ? values.find(column.name) : nullptr;
        if (value != nullptr && *value->text != '\0') {
            visit(column.name, *value);
        }
    }
}

}  // namespace

bool is_unique(const Table &table, const Column &column) {
    const Meaning meaning = meaning_of(*column.field);
    return table.rules->id == ROUTERDB_TABLE_DHCP_STATIC && (meaning == Meaning::mac || meaning == Meaning::address);
}

Status check_no_clash(const Database &database, const Assignments &values, std::int32_t id) {
    Status status = Status::done;
    each_unique(values, [&](const char *column, const Assignments::Value &value) {
        Sql sql;
        sql.add("SELECT id FROM \"%w\" WHERE \"%w\" = %Q COLLATE NOCASE AND id <> %d", values.table().in_sql(), column,
                value.text, id);
        const auto other = number_of(database, sql.text());
        if (other != 0 && status == Status::done) {
            status = fail(Status::refused, "row %lld of %s has %s %s already", static_cast<long long>(other),
                          values.table().name, column, value.text);
        }
    });
    return status;
}

Sql &add_no_clash(Sql &sql, const Assignments &values, std::int32_t id) {
    each_unique(values, [&](const char *column, const Assignments::Value &value) {
        sql.add(" AND NOT EXISTS (SELECT 1 FROM \"%w\" WHERE \"%w\" = %Q COLLATE NOCASE AND id <> %d)",
                values.table().in_sql(), column, value.text, id);
    });
    return sql;
}

}  // namespace ctl
