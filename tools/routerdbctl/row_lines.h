// Rows as lines that make them again.
#pragma once

#include "database.h"
#include "tables.h"

namespace ctl {

/// Prints each row as a command for a shell. What is NULL is left out: it reads as nothing.
Status print_set_lines(const Table &table, Query &query);

}  // namespace ctl
