#include "profiles/random_databases.h"

#include <unistd.h>

#include "support/database.h"

namespace profiles {

namespace {

using support::Database;

constexpr const char *files[] = {support::main_database, support::catalogue_database, support::lock_file,
                                 "/var/dhcp.leases"};

/// A value of any type. Small numbers, as numbers and as texts, are frequent: references then meet.
std::string value(std::mt19937 &random) {
    static const std::string values[] = {"NULL",
                                         "''",
                                         "'x'",
                                         "'\xe4\xb8\xad\xe6\x96\x87'",
                                         "'a\"b'",
                                         "'it''s'",
                                         "1.5",
                                         "'0'",
                                         "-1",
                                         "x'ff00'",
                                         "'9999999999'",
                                         "4294967297",
                                         "2147483648",
                                         "'1 '",
                                         "'zero'||char(0)||'byte'",
                                         "'10.0.0.1'",
                                         "printf('%0300d',7)"};
    return random() % 2 == 0 ? std::to_string(random() % 4) : one_of(values, random);
}

/// A value for a column that other tables or files refer to, or any.
std::string value_for(const std::string &column, std::mt19937 &random) {
    static const std::string features[] = {"'f1'", "'f2'", "'it''s'", "'zero'||char(0)", "5", "1.5", "x'6631'", "NULL"};
    const auto quoted = [](const std::string &text) { return text == "it's" ? "'it''s'" : "'" + text + "'"; };
    if (column == "Features") {
        return one_of(features, random);
    }
    if (column == "devmac" || column == "Dev_MAC") {
        return quoted(one_of(macs, random));
    }
    if (column == "Dev_Ipaddress") {
        return quoted(one_of(addresses, random));
    }
    if (column == "behavior_info") {
        std::string text;
        for (const char letter : one_of(behaviors, random)) {
            text += letter == '\'' ? std::string("''") : std::string(1, letter);
        }
        return "'" + text + "'";
    }
    return column == "ipcontrol" || column == "timecontrol" ? "2" : value(random);
}

std::vector<std::string> tables(const Database &database) {
    return database.rows(
        "select name from sqlite_master where type='table' and name not like 'sqlite%' order by name;");
}

void fill_table(const Database &database, const std::string &table, std::mt19937 &random) {
    const auto columns = database.rows("select name from pragma_table_info('" + table + "');");
    for (auto rows = random() % 7; rows != 0; --rows) {
        std::string values;
        for (const std::string &column : columns) {
            values += (values.empty() ? "" : ",") + value_for(column, random);
        }
        try {
            database.execute("insert or ignore into " + table + " values(" + values + ");");
        } catch (const std::exception &) {  // a key that takes no such value
        }
    }
}

/// Makes the table anew with one affinity for all columns, which then compare in another way.
void change_types(const Database &database, const std::string &table, const std::string &type) {
    std::string columns;
    for (const std::string &column : database.rows("select name from pragma_table_info('" + table + "');")) {
        columns += (columns.empty() ? "" : ",") + column + " " + type;
    }
    database.execute("drop table " + table + "; create table " + table + "(" + columns + ");");
}

void fill_database(const char *path, std::mt19937 &random) {
    const Database database(path);
    for (const std::string &table : tables(database)) {
        switch (random() % 12) {
            case 0:
                database.execute("drop table " + table + ";");
                break;
            case 1:
                change_types(database, table, "text");
                fill_table(database, table, random);
                break;
            case 2:
                change_types(database, table, "");
                fill_table(database, table, random);
                break;
            default:
                fill_table(database, table, random);
        }
    }
}

}  // namespace

void fill_databases(std::mt19937 &random) {
    fill_database(support::main_database, random);
    fill_database(support::catalogue_database, random);
    if (random() % 4 != 0) {
        std::string leases;
        for (auto line = random() % 5; line != 0; --line) {
            leases += "17 " + one_of(macs, random) + " 192.168.1.2 host" + std::to_string(line) + "\n";
        }
        support::write_file("/var/dhcp.leases", leases);
    }
    if (random() % 8 == 0) {
        unlink(support::lock_file);
    }
}

Files::Files() {
    for (std::size_t file = 0; file < std::size(files); ++file) {
        contents_[file] = support::file_exists(files[file]) ? "+" + support::file_content(files[file]) : "";
    }
}

void Files::restore() const {
    for (std::size_t file = 0; file < std::size(files); ++file) {
        unlink(files[file]);
        if (!contents_[file].empty()) {
            support::write_file(files[file], contents_[file].substr(1));
        }
    }
}

std::string dump() {
    const Database database;
    std::string text;
    for (const std::string &table : tables(database)) {
        text += table + "\n";
        for (const std::string &row : database.rows("select * from " + table + ";")) {
            text += row + "\n";
        }
    }
    return text;
}

}  // namespace profiles
