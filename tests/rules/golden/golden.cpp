#include "rules/golden/golden.h"

#include <stdexcept>

#include "rules/golden/samples.h"

namespace golden {

namespace {

std::vector<Table> collected() {
    std::vector<Table> tables;
#define TABLE(name)                     \
    for (const Table &table : name()) { \
        tables.push_back(table);        \
    }
#include "golden_tables.inc"
#undef TABLE
    return tables;
}

/// Of 100 bytes or more, a text that has Chinese in it too.
std::string full_text(std::size_t width, char letter, int n) {
    const std::string chinese = width < 100 ? "" : "规则";
    return chinese + numbered(width - 1 - chinese.size(), letter, n);
}

}  // namespace

const std::vector<Table> &tables() {
    static const std::vector<Table> tables = collected();
    return tables;
}

const Table &table(const std::string &name) {
    for (const Table &table : tables()) {
        if (table.name == name) {
            return table;
        }
    }
    throw std::out_of_range("no table " + name);
}

Values Table::row(int n) const {
    Values values;
    for (const Place &place : places) {
        const int index = static_cast<int>(values.size());
        const int number = index * 1000 + n;
        values.push_back(place.kind == Kind::text ? full_text(place.width, static_cast<char>('a' + index), n)
                                                  : std::to_string(index % 2 == 0 ? number : -number));
    }
    if (time_group) {
        values = changed(places, values, {{"timecontrol", "1"}});
    }
    // Without an address, whose name would have to be looked up.
    return host_name ? changed(places, values, {{"devmac", ""}}) : values;
}

std::string Table::record(int n) const {
    return built_record(*this, row(n)).bytes();
}

std::string Table::records(int n) const {
    std::string records;
    for (int i = 1; i <= n; ++i) {
        records += record(i);
    }
    return records;
}

std::string Table::inserts(int n) const {
    std::string statements = "begin;";
    for (int i = 1; i <= n; ++i) {
        statements += insertion(name, as_sql(places, row(i)));
    }
    return statements + "commit;";
}

void Table::remove_first() const {
    if (remove) {
        remove("id='1'");
    } else {
        remove_row(1);
    }
}

}  // namespace golden
