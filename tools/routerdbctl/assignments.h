// "FIELD=VALUE" as people type it, and what it makes of a row.
#pragma once

#include <cstdint>
#include <string_view>

#include "database.h"
#include "options.h"
#include "sql.h"
#include "tables.h"

namespace ctl {

/// The values of one row that have been given, column by column.
class Assignments {
public:
    explicit Assignments(const Table &table) : table_(table), columns_(table) {}

    /// Takes "FIELD=VALUE", where FIELD is a column, "id", "days", "hours", "group", "time-group" or "ip-group". The
    /// text has to live as long as this does.
    /// @param database  in which groups are looked up
    /// @param force     takes what the field is not made for, too
    /// @return done, or what fail() has said
    Status take(char *text, const Database &database, bool force);

    /// Gives what a new row needs beyond what was said: it applies, always, to its own addresses.
    void complete();

    /// Whether the groups that it refers to are there.
    Status check_references(const Database &database) const;

    /// Calls visit(name, value, is_number) for each column that has a value; value is as for Sql's %Q, or a number.
    template <typename Visit>
    void each(Visit visit) const {
        if (id_ != 0) {
            visit("id", Value{nullptr, id_, true});
        }
        unsigned i = 0;
        for (const Column &column : columns_) {
            if (values_[i].is_given) {
                visit(column.name, values_[i]);
            }
            ++i;
        }
    }

    struct Value {
        const char *text;  // null for a number
        std::int32_t number;
        bool is_given;

        /// As it stands in a statement.
        Sql &add_to(Sql &sql) const { return text != nullptr ? sql.add("%Q", text) : sql.add("%d", number); }
    };

    bool is_empty() const;
    const Table &table() const { return table_; }
    std::int32_t id() const { return id_; }  // 0 without one

    /// @return null without one
    const Value *find(std::string_view column) const;

private:
    Status take_group(const Table &groups, const char *value, const Database &database, bool force);
    Status take_days(const char *value);
    Status take_hours(char *value);
    Status take_column(const Column &column, const char *value, bool force);
    Status fail_unknown(const char *field) const;
    Status take_friendly(std::string_view field, char *value, const Database &database, bool force, bool &is_friendly);
    void put(std::string_view column, const char *text, std::int32_t number);
    void put_default(const char *column, const char *text, std::int32_t number);

    const Table &table_;
    Columns columns_;
    std::int32_t id_ = 0;
    Value values_[routerdb::most_columns]{};
};

/// "A=1, B='x'" and the like, for a statement.
/// @param between  what stands between the columns
Sql &add_pairs(Sql &sql, const Assignments &assignments, const char *operation, const char *between);

}  // namespace ctl
