// SQLiteCpp, as its users write it.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace bench::peers {

class SqliteCpp {
public:
    class Row {
    public:
        explicit Row(SQLite::Statement &query) : query_(query) {}
        const char *text(int column) const { return query_.getColumn(column).getText(); }
        int number(int column) const { return query_.getColumn(column).getInt(); }

    private:
        SQLite::Statement &query_;
    };

    explicit SqliteCpp(const char *path) : database_(path, SQLite::OPEN_READWRITE) {}

    /// Calls `use` with each row of the statements, one statement after the other.
    template <typename Use>
    void for_each(std::initializer_list<std::string> statements, Use use) {
        for (const std::string &sql : statements) {
            SQLite::Statement query(database_, sql);
            while (query.executeStep()) {
                use(Row(query));
            }
        }
    }

    /// Executes a statement with a value for each "?".
    void execute(const std::string &sql, const std::vector<std::string> &values) {
        SQLite::Statement statement(database_, sql);
        int parameter = 0;
        for (const std::string &value : values) {
            statement.bind(++parameter, value);
        }
        statement.exec();
    }

private:
    SQLite::Database database_;
};

}  // namespace bench::peers
