// The query for rows of a rule table that options ask for.
#pragma once

#include "options.h"
#include "sql.h"
#include "tables.h"

namespace ctl {

/// Adds it: its parameters are the values of the conditions. People get the days of a week in one column, programs the
/// seven of the table.
/// @return done, or what fail() has said of a field
Status add_selection(Sql &sql, const Options &options, const Table &table);

}  // namespace ctl
