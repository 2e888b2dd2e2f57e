// The sqlite3 program, as scripts around it use it: a process for each call.
#pragma once

#include <cstdlib>
#include <initializer_list>
#include <string>
#include <vector>

namespace bench::peers {

class Program {
public:
    class Row {
    public:
        explicit Row(const std::vector<std::string> &values) : values_(values) {}
        const std::string &text(int column) const { return values_[static_cast<std::size_t>(column)]; }
        int number(int column) const { return std::atoi(text(column).c_str()); }

    private:
        const std::vector<std::string> &values_;
    };

    explicit Program(const char *path) : path_(path) {}

    /// Calls `use` with each row of the statements, one statement after the other.
    template <typename Use>
    void for_each(std::initializer_list<std::string> statements, Use use) {
        for (const std::vector<std::string> &values : rows_of(statements)) {
            use(Row(values));
        }
    }

    /// Executes a statement with a value for each "?".
    void execute(const std::string &sql, const std::vector<std::string> &values);

private:
    std::vector<std::vector<std::string>> rows_of(std::initializer_list<std::string> statements) const;

    std::string path_;
};

}  // namespace bench::peers
