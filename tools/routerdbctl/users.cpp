#include "users.h"

namespace ctl {

Status check_unused(const Database &database, const Table &table, const char *rows) {
    Sql users;
    each_reference_to(table, [&](const Table &user, const Field &field) {
        Sql sql;
        sql.add(
            "SELECT group_concat(id, ', ') FROM \"%w\" WHERE \"%w\" = %d AND \"%w\" IN (SELECT id FROM \"%w\" WHERE "
            "%s)",
            user.in_sql(), control_of(user, field).column, routerdb::control_referenced, field.column, table.in_sql(),
            rows);
        Query query(database, sql.text());
        if (query.next() && !query.text(0).empty()) {
            const std::string_view ids = query.text(0);
            users.add("%s%s %.*s", users.is_empty() ? "" : "; ", user.name, static_cast<int>(ids.size()), ids.data());
        }
    });
    return users.is_empty() ? Status::done
                            : fail(Status::refused, "still used by %s; --force removes it nevertheless", users.text());
}

Sql &add_unused(Sql &sql, const Table &table) {
    each_reference_to(table, [&](const Table &user, const Field &field) {
        sql.add(" AND NOT EXISTS (SELECT 1 FROM \"%w\" WHERE \"%w\" = %d AND \"%w\" = \"%w\".id)", user.in_sql(),
                control_of(user, field).column, routerdb::control_referenced, field.column, table.in_sql());
    });
    return sql;
}

}  // namespace ctl
