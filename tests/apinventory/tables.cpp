#include "apinventory/tables.h"

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <stdexcept>

#include "support/database.h"

namespace tables {

namespace {

std::string text_of(const Row &row, int column) {
    const auto found = row.find(column);
    return found == row.end() ? "NULL" : "'" + found->second + "'";
}

std::string quoted(const std::string &text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? "''" : std::string(1, c);
    }
    return quoted + "'";
}

}  // namespace

Row numbered_row(const Table &table, const std::string &key) {
    Row row{{0, key}};
    for (int column = 1; column < table.columns; ++column) {
        row[column] = "c" + std::to_string(column);
    }
    return row;
}

Row uniform_row(const Table &table, const std::string &key, const std::string &text) {
    Row row{{0, key}};
    for (int column = 1; column < table.columns; ++column) {
        row[column] = text;
    }
    return row;
}

void insert(const Table &table, const Row &row) {
    std::string sql = std::string("insert into ") + table.name + " values(";
    for (int column = 0; column < table.columns; ++column) {
        const auto found = row.find(column);
        sql += (column > 0 ? "," : "") + (found == row.end() ? "NULL" : quoted(found->second));
    }
    support::execute(sql + ");");
}

Row row_where(const Table &table, const std::string &condition) {
    const support::Database database;
    const std::string sql = std::string("select * from ") + table.name + " where " + condition + ";";
    sqlite3_stmt *prepared = nullptr;
    sqlite3_prepare_v2(database.handle(), sql.c_str(), -1, &prepared, nullptr);
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> statement(prepared, sqlite3_finalize);
    if (sqlite3_step(statement.get()) != SQLITE_ROW) {
        throw std::runtime_error("no row: " + sql);
    }
    Row row;
    for (int column = 0; column < table.columns; ++column) {
        const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement.get(), column));
        if (text != nullptr) {
            row[column] = text;
        }
    }
    if (sqlite3_step(statement.get()) != SQLITE_DONE) {
        throw std::runtime_error("more than one row: " + sql);
    }
    return row;
}

std::string difference(const Row &expected, const Row &actual) {
    for (int column = 0; column < devices.columns; ++column) {
        if (text_of(expected, column) != text_of(actual, column)) {
            return "column " + std::to_string(column) + " is " + text_of(actual, column) + " instead of " +
                   text_of(expected, column);
        }
    }
    return {};
}

DevInfo record_of(const Table &table, const Row &row) {
    DevInfo record{};
    if (table.column == &places::Place::device) {
        record.Dev_Sn = static_cast<uint32_t>(std::stoul(row.at(0)));
    }
    for (const places::Place &place : places::all()) {
        const auto found = row.find(place.*table.column);
        if (found != row.end() && place.*table.column < table.columns) {
            places::put(record, place, found->second.substr(0, place.width - 1));
        }
    }
    return record;
}

void make_unopenable() {
    if (unlink(support::main_database) != 0 || mkdir(support::main_database, 0755) != 0) {
        throw std::runtime_error("cannot replace the database");
    }
}

void drop(const Table &table) {
    support::execute(std::string("drop table ") + table.name + ";");
}

}  // namespace tables
