#include "rules/columns.h"

#include "rules/sql_builder.h"
#include "text/text.h"

namespace routerdb {

namespace {

constexpr std::uint8_t missing = UINT8_MAX;

std::uint8_t find(sqlite3_stmt *statement, const char *name) {
    const int count = sqlite3_column_count(statement);
    for (int number = 0; number < count && number < missing; ++number) {
        if (sqlite3_stricmp(sqlite3_column_name(statement, number), name) == 0) {
            return static_cast<std::uint8_t>(number);
        }
    }
    return missing;
}

std::uint8_t number_of(const Field &field, unsigned index, sqlite3_stmt *statement) {
    if (field.kind == Kind::zero) {
        return missing;
    }
    if (field.position != by_name) {
        return static_cast<std::uint8_t>(static_cast<unsigned>(field.position) + index);
    }
    StackText<sizeof(field.column) + 1> name;
    append_column_name(name, field, index);
    return find(statement, name.c_str());
}

}  // namespace

Columns::Columns(const RuleTable &table, sqlite3_stmt *statement) {
    numbers_[0] = table.fields[0].position == by_name ? find(statement, "id") : 0;
    unsigned next = 1;
    for (const Field *field = table.fields; field != table.fields + table.field_count; ++field) {
        for (unsigned index = 0; index < field->columns(); ++index) {
            numbers_[next++] = number_of(*field, index, statement);
        }
    }
}

}  // namespace routerdb
