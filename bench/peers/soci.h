// SOCI, as its users write it.
#pragma once

#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace bench::peers {

class Soci {
public:
    class Row {
    public:
        explicit Row(const soci::row &row) : row_(row) {}
        std::string text(int column) const {
            return is_number(at(column)) ? std::to_string(number(column)) : row_.get<std::string>(at(column), "");
        }
        int number(int column) const {
            return is_number(at(column)) ? row_.get<int>(at(column)) : std::stoi(row_.get<std::string>(at(column)));
        }

    private:
        static std::size_t at(int column) { return static_cast<std::size_t>(column); }
        // By the declared type: sums and counts have none, and are texts.
        bool is_number(std::size_t column) const {
            return row_.get_properties(column).get_data_type() == soci::dt_integer;
        }

        const soci::row &row_;
    };

    explicit Soci(const char *path) : session_(soci::sqlite3, std::string("db=") + path) {}

    /// Calls `use` with each row of the statements, one statement after the other.
    template <typename Use>
    void for_each(std::initializer_list<std::string> statements, Use use) {
        for (const std::string &sql : statements) {
            const soci::rowset<soci::row> rows = session_.prepare << sql;
            for (const soci::row &row : rows) {
                use(Row(row));
            }
        }
    }

    /// Executes a statement with a value for each "?".
    void execute(const std::string &sql, const std::vector<std::string> &values) {
        soci::statement statement(session_);
        for (const std::string &value : values) {
            statement.exchange(soci::use(value));
        }
        statement.alloc();
        statement.prepare(sql);
        statement.define_and_bind();
        statement.execute(true);
    }

private:
    soci::session session_;
};

}  // namespace bench::peers
