#include "peers/kept.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <initializer_list>
#include <map>
#include <string>

#include "bare/connection.h"
#include "peers/sqlitecpp.h"

namespace bench::peers {

class KeptSqlite {
public:
    using Row = bare::Row;

    explicit KeptSqlite(const char *path) : open_(databases().try_emplace(path, path).first->second) {}

    template <typename Use>
    void for_each(std::initializer_list<std::string> statements, Use use) {
        for (const std::string &sql : statements) {
            const auto [entry, added] = open_.statements.try_emplace(sql, nullptr);
            if (added) {
                entry->second = bare::prepare(open_.connection, sql.c_str());
            }
            while (sqlite3_step(entry->second) == SQLITE_ROW) {
                use(Row(entry->second));
            }
            sqlite3_reset(entry->second);
        }
    }

private:
    struct Open {
        explicit Open(const char *path) : connection(path) {}
        bare::Connection connection;
        std::map<std::string, sqlite3_stmt *> statements;
    };

    static std::map<std::string, Open> &databases() {
        static auto &all = *new std::map<std::string, Open>;  // until the process ends
        return all;
    }

    Open &open_;
};

class KeptSqliteCpp {
public:
    using Row = SqliteCpp::Row;

    explicit KeptSqliteCpp(const char *path) : open_(databases().try_emplace(path, path).first->second) {}

    template <typename Use>
    void for_each(std::initializer_list<std::string> statements, Use use) {
        for (const std::string &sql : statements) {
            SQLite::Statement &query = open_.statements.try_emplace(sql, open_.database, sql).first->second;
            while (query.executeStep()) {
                use(Row(query));
            }
            query.reset();
        }
    }

private:
    struct Open {
        explicit Open(const char *path) : database(path, SQLite::OPEN_READWRITE) {}
        SQLite::Database database;
        std::map<std::string, SQLite::Statement> statements;
    };

    static std::map<std::string, Open> &databases() {
        static auto &all = *new std::map<std::string, Open>;
        return all;
    }

    Open &open_;
};

#define INSTANTIATE(function, Database) template void function<Database>();
FOR_EACH_KEPT(INSTANTIATE)
#undef INSTANTIATE

}  // namespace bench::peers
