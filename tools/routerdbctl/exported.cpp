#include "exported.h"

#include <cstring>

#include "lines.h"
#include "meaning.h"

namespace ctl {

namespace {

bool is_hexadecimal(std::string_view text) {
    return text.size() % 2 == 0 && text.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

/// Reads one file. A fault is told with its place, such as "filter_url[3].name".
class Reader {
public:
    Reader(Database &database, bool any_value) : database_(database), any_value_(any_value) {}

    Status read(std::string_view text);

private:
    Status make_table(const Table &table);
    void read_table(const Table &table, std::string_view rows);
    void read_row(const Table &table, const Columns &columns, int number, std::string_view row);
    bool check_id(const Table &table, int number, std::string_view row);
    bool add_cell(Sql &values, const Column *column, const Query &cell, const char *place);
    void complain(const char *place, std::string_view value, const char *fault);

    Database &database_;
    bool any_value_;
    Status status_ = Status::done;
};

void Reader::complain(const char *place, std::string_view value, const char *fault) {
    status_ = fail(Status::refused, "%s: \"%.*s\" %s", place, static_cast<int>(value.size()), value.data(), fault);
}

/// Adds the value of one cell as SQL has it.
/// @return whether it is one
bool Reader::add_cell(Sql &values, const Column *column, const Query &cell, const char *place) {
    const std::string_view type = cell.text(1);
    const std::string_view text = cell.text(2);
    if (type == "object") {
        // {"text": "..."} and {"blob": "..."} hold bytes that are no text
        Query bytes(database_, "SELECT key, atom FROM json_each(?1)");
        bytes.bind(1, text);
        if (!bytes.next() || !is_hexadecimal(bytes.text(1))) {
            complain(place, text, "is no value");
            return false;
        }
        const std::string_view digits = bytes.text(1);
        values.add(bytes.text(0) == "text" ? "CAST(x'%.*s' AS TEXT)" : "x'%.*s'", static_cast<int>(digits.size()),
                   digits.data());
        return true;
    }
    if (type == "array" || type == "true" || type == "false") {
        complain(place, text, "is no value");
        return false;
    }
    Sql words;
    const char *const fault =
        any_value_ || column == nullptr || type == "null" ? nullptr : fault_of(*column->field, text, words);
    if (fault != nullptr) {
        complain(place, text, fault);
        return false;
    }
    values.add_value(cell.value(3));
    return true;
}

/// Each row has an id of its own.
bool Reader::check_id(const Table &table, int number, std::string_view row) {
    Sql sql;
    sql.add(
        "SELECT id, EXISTS (SELECT 1 FROM %s.\"%w\" AS one WHERE one.id = given.id) FROM (SELECT "
        "coalesce(json_extract(?1, '$.id'), json_extract(?1, '$.Id')) AS id) AS given",
        other, table.in_sql());
    Query query(database_, sql.text());
    const bool is_id = query.bind(1, row).next() && query.type(0) == SQLITE_INTEGER;
    const bool is_taken = is_id && query.number(1) != 0;
    if (!is_id || is_taken) {
        Sql place;
        place.add("%s[%d].id", table.in_sql(), number);
        complain(place.text(), is_taken ? query.text(0) : "", is_taken ? "is another row's" : "is no id");
    }
    return is_id && !is_taken;
}

void Reader::read_row(const Table &table, const Columns &columns, int number, std::string_view row) {
    Sql names;
    Sql values;
    // The value is asked for twice: as a text, and as what it is.
    Query cell(database_, "SELECT key, type, value, atom FROM json_each(?1)");
    cell.bind(1, row);
    bool is_good = true;
    while (cell.next()) {
        Sql place;
        const std::string_view name = cell.text(0);
        place.add("%s[%d].%.*s", table.in_sql(), number, static_cast<int>(name.size()), name.data());
        Sql known;
        known.add("SELECT count(*) FROM pragma_table_info(%Q) WHERE name = ?1 COLLATE NOCASE", table.in_sql());
        Query column(database_, known.text());
        column.bind(1, name).next();
        if (column.number(0) == 0) {
            complain(place.text(), name, "is no field");
            is_good = false;
            continue;
        }
        names.add("%s\"%.*w\"", names.is_empty() ? "" : ", ", static_cast<int>(name.size()), name.data());
        values.add(values.is_empty() ? "" : ", ");
        is_good = add_cell(values, columns.find(name), cell, place.text()) && is_good;
    }
    if (is_good && check_id(table, number, row)) {
        Sql sql;
        sql.add("INSERT INTO %s.\"%w\"(%s) VALUES(%s)", other, table.in_sql(), names.text(), values.text());
        status_ = database_.run(sql.text()) == Status::done ? status_ : Status::unreachable;
    }
}

/// Makes a table in "other" with the columns of the one in "main": its rows have the ids as their numbers, too.
Status Reader::make_table(const Table &table) {
    Sql columns;
    columns.add("SELECT name, type, pk FROM pragma_table_info(%Q)", table.in_sql());
    Sql sql;
    sql.add("CREATE TABLE %s.\"%w\"(", other, table.in_sql());
    const char *before = "";
    for (Query column(database_, columns.text()); column.next(); before = ", ") {
        sql.add("%s\"%w\" %s", before, column.text(0).data(), column.text(1).data());
        sql.add("%s", column.number(2) != 0 ? " PRIMARY KEY" : "");
    }
    return database_.run(sql.add(")").text());
}

void Reader::read_table(const Table &table, std::string_view rows) {
    if (make_table(table) != Status::done) {
        status_ = Status::unreachable;
        return;
    }
    const Columns columns(table);
    Query row(database_, "SELECT key, type, value FROM json_each(?1)");
    row.bind(1, rows);
    while (row.next()) {
        const auto number = static_cast<int>(row.number(0));
        if (row.text(1) != "object") {
            Sql place;
            place.add("%s[%d]", table.in_sql(), number);
            complain(place.text(), row.text(2), "is no row");
        } else {
            read_row(table, columns, number, row.text(2));
        }
    }
}

Status Reader::read(std::string_view text) {
    Query whole(database_, "SELECT json_valid(?1)");
    if (!whole.bind(1, text).next() || whole.number(0) == 0) {
        return whole.status() != Status::done ? whole.status() : fail(Status::refused, "the file is no JSON");
    }
    Query format(database_, "SELECT json_extract(?1, '$.format'), json_type(?1, '$.tables')");
    if (!format.bind(1, text).next() || format.number(0) != export_format || format.text(1) != "object") {
        return fail(Status::refused, "the file is no export of this format, %d", export_format);
    }
    Query table(database_, "SELECT key, type, value FROM json_each(?1, '$.tables')");
    table.bind(1, text);
    while (table.next()) {
        Sql name;
        name.add("%s", table.text(0).data());
        const Table *found = nullptr;
        if (find_table(name.text(), found) != Status::done) {
            status_ = Status::refused;
        } else if (table.text(1) != "array") {
            complain(name.text(), table.text(2), "is no list of rows");
        } else {
            read_table(*found, table.text(2));
        }
    }
    return status_ != Status::done ? status_ : table.status();
}

}  // namespace

std::uint64_t digest_of_schema(const Database &database) {
    constexpr std::uint64_t start = 0xcbf29ce484222325;
    constexpr std::uint64_t prime = 0x100000001b3;
    std::uint64_t digest = start;
    Query query(database, "SELECT name || ' ' || sql FROM main.sqlite_master WHERE sql IS NOT NULL ORDER BY name");
    while (query.next()) {
        for (const char c : query.text(0)) {
            digest = (digest ^ static_cast<unsigned char>(c)) * prime;
        }
    }
    return digest;
}

Status add_rows(Sql &sql, const Database &database, const char *schema, const Table &table) {
    Sql all;
    all.add("SELECT * FROM %s.\"%w\" ORDER BY id", schema, table.in_sql());
    Query query(database, all.text());
    while (query.next()) {
        sql.add("INSERT INTO \"%w\"(", table.in_sql());
        for (int i = 0; i < query.columns(); ++i) {
            sql.add("%s\"%w\"", i == 0 ? "" : ", ", query.name(i));
        }
        sql.add(") VALUES(");
        for (int i = 0; i < query.columns(); ++i) {
            sql.add(i == 0 ? "" : ", ").add_value(query.value(i));
        }
        sql.add(");\n");
    }
    return query.status();
}

Status read_export(Database &database, const char *path, bool any_value) {
    Lines file;
    Status status = file.load(path);
    status = status != Status::done ? status : database.attach(":memory:", other);
    if (status != Status::done) {
        return status;
    }
    const Database::Scratch scratch(database);
    return Reader(database, any_value).read(file.text());
}

}  // namespace ctl
