#include "peers/program.h"

#include "harness/spawn.h"

namespace bench::peers {

namespace {

std::string quoted(const std::string &value) {
    std::string text = "'";
    for (const char character : value) {
        text += character == '\'' ? "''" : std::string(1, character);
    }
    return text + "'";
}

}  // namespace

std::vector<std::vector<std::string>> Program::rows_of(std::initializer_list<std::string> statements) const {
    constexpr char column_end = '\x1f';
    constexpr char row_end = '\x1e';
    std::string script;
    for (const std::string &sql : statements) {
        script += sql + ";";
    }
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> row;
    std::string value;
    for (const char character : output_of({"sqlite3", "-batch", "-ascii", path_, script})) {
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

void Program::execute(const std::string &sql, const std::vector<std::string> &values) {
    std::string script;
    auto value = values.begin();
    for (const char character : sql) {
        script += character == '?' ? quoted(*value++) : std::string(1, character);
    }
    spawn({"sqlite3", "-batch", path_, script});
}

}  // namespace bench::peers
