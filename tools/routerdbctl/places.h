// Where the columns of a table are. Rows are read by place: a column elsewhere has programs read another one's values.
#pragma once

#include <cstddef>

#include "checks.h"
#include "sql.h"

namespace ctl {

/// Looks for the columns of one table, and reports those that are not where they should be.
class Places {
public:
    Places(Examination &examination, const Database &database, const char *table);

    /// The table itself; it is reported when it is not there.
    bool is_there() const { return is_there_; }

    /// Looks for a column at its place, counted from 0.
    void expect(unsigned place, const char *column);

    /// Looks for a column that may be anywhere.
    void expect(const char *column);

private:
    Examination &examination_;
    const Database &database_;
    const char *table_;
    bool is_there_;
};

inline constexpr char mend_tables[] =
    "\"routerdbctl db restore\" or \"routerdbctl db reset\" gets databases with the right tables";

}  // namespace ctl
