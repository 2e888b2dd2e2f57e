// What the sqlite3 program answers.
#pragma once

#include <string>
#include <vector>

namespace bench::program {

using Row = std::vector<std::string>;

/// The rows of a query, NULL as the empty text.
std::vector<Row> query(const char *database, const std::string &sql);

void execute(const char *database, const std::string &sql);

}  // namespace bench::program
