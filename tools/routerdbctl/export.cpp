// All rows, for another day or another device.
#include <cstdint>
#include <cstdio>

#include "commands.h"
#include "exported.h"
#include "output.h"
#include "row_lines.h"
#include "selection.h"
#include "session.h"
#include "sql.h"

namespace ctl {

namespace {

/// The tables that a command names; all of them if it names none.
class Chosen {
public:
    Status read(const Session &session, char **names, int count) {
        Status status = session.status();
        for (int i = 0; status == Status::done && i < count; ++i) {
            const Table *table = nullptr;
            status = session.find_table(names[i], table);
            is_chosen_[table != nullptr ? table - tables : 0] = true;
        }
        takes_all_ = count == 0;
        return status;
    }

    /// Calls visit(table) for each of them while it answers done.
    template <typename Visit>
    Status each(Visit visit) const {
        Status status = Status::done;
        for (const Table &table : tables) {
            if (status == Status::done && (takes_all_ || is_chosen_[&table - tables])) {
                status = visit(table);
            }
        }
        return status;
    }

private:
    bool takes_all_ = true;
    bool is_chosen_[sizeof(tables) / sizeof(*tables)]{};
};

Status print_object_lines(Query &query) {
    const char *before = "\n      {";
    while (query.next()) {
        for (int i = 0; i < query.columns(); ++i) {
            std::fputs(i == 0 ? before : ",", stdout);
            print_json(query.name(i));
            std::putchar(':');
            print_json(query, i);
        }
        std::putchar('}');
        before = ",\n      {";
    }
    return query.status();
}

Status print_as_json(const Session &session, const Chosen &chosen) {
    std::printf("{\n  \"format\": %d,\n  \"schema\": \"%016llx\",\n  \"tables\": {", export_format,
                static_cast<unsigned long long>(digest_of_schema(session.database())));
    const char *before = "\n    ";
    const Status status = chosen.each([&](const Table &table) {
        std::printf("%s\"%s\": [", before, table.in_sql());
        before = ",\n    ";
        Sql sql;
        sql.add("SELECT * FROM \"%w\" ORDER BY id", table.in_sql());
        Query query(session.database(), sql.text());
        const Status printed = print_object_lines(query);
        std::putchar(']');
        return printed;
    });
    std::puts("\n  }\n}");
    return status;
}

Status print_as_lines(const Session &session, const Chosen &chosen) {
    Options all;
    all.format = Format::set;
    return chosen.each([&](const Table &table) {
        Sql sql;
        add_selection(sql, all, table);
        Query query(session.database(), sql.text());
        return print_set_lines(table, query);
    });
}

Status print_as_sql(const Session &session, const Chosen &chosen) {
    std::puts("BEGIN;");
    const Status status = chosen.each([&](const Table &table) {
        Sql sql;
        const Status added = add_rows(sql, session.database(), "main", table);
        std::fputs(sql.text(), stdout);
        return added;
    });
    std::puts("COMMIT;");
    return status;
}

}  // namespace

Status export_tables(Invocation &invocation) {
    Session session(invocation);
    Chosen chosen;
    Status status = chosen.read(session, invocation.arguments, invocation.count);
    status = status != Status::done ? status : session.database().hold();
    if (status != Status::done) {
        return status;
    }
    switch (invocation.options.format) {
        case Format::standard:
        case Format::json:
            return print_as_json(session, chosen);
        case Format::set:
            return print_as_lines(session, chosen);
        case Format::sql:
            return print_as_sql(session, chosen);
        default:
            return fail(Status::usage, "tables are exported as json, set or sql");
    }
}

}  // namespace ctl
