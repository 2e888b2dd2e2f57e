// Where a statement's rows have the columns of a table.
#pragma once

#include <sqlite3.h>

#include "rules/rule_table.h"

namespace routerdb {

/// Found once for each statement. Tables with settled positions have them in their fields; in the others the columns
/// are found by name, in upper or lower case.
class Columns {
public:
    Columns(const RuleTable &table, sqlite3_stmt *statement);

    /// Number of the column in a row; one that the statement lacks is beyond its end and reads as NULL.
    int id() const { return numbers_[0]; }

    /// Numbers of the columns of all fields, one after the other in the order of the fields.
    const std::uint8_t *of_fields() const { return numbers_ + 1; }

private:
    std::uint8_t numbers_[1 + most_columns];
};

}  // namespace routerdb
