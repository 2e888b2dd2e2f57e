#include "program/rows.h"

#include "harness/spawn.h"

namespace bench::program {

std::vector<Row> query(const char *database, const std::string &sql) {
    constexpr char column_end = '\x1f';
    constexpr char row_end = '\x1e';
    const std::string output = output_of({"sqlite3", "-batch", "-ascii", database, sql});
    std::vector<Row> rows;
    Row row;
    std::string value;
    for (const char character : output) {
        if (character != column_end && character != row_end) {
            value += character;
            continue;
        }
        row.push_back(value);
        value.clear();
        if (character == row_end) {
            rows.push_back(row);
            row.clear();
        }
    }
    return rows;
}

void execute(const char *database, const std::string &sql) {
    spawn({"sqlite3", "-batch", database, sql});
}

}  // namespace bench::program
