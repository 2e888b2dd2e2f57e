#include "tables.h"

#include <cstring>

#include "choices.h"

namespace ctl {

Columns::Columns(const Table &table) {
    for (unsigned i = 0; i < table.rules->field_count; ++i) {
        const Field &field = table.rules->fields[i];
        for (unsigned day = 0; day < field.columns(); ++day) {
            Column &column = columns_[count_++];
            column.field = &field;
            const std::size_t length = strnlen(field.column, sizeof(field.column));
            std::memcpy(column.name, field.column, length);
            column.name[length] = field.kind == Kind::weekdays ? static_cast<char>('1' + day) : '\0';
            column.name[length + 1] = '\0';
        }
    }
}

const Column *Columns::find(std::string_view name) const {
    for (const Column &column : *this) {
        if (name == column.name) {
            return &column;
        }
    }
    return nullptr;
}

Status find_table(const char *name, const Table *&table) {
    Choices choices("table", name);
    for (const Table &one : tables) {
        choices.offer(one.name, &one);
        choices.offer_silently(one.in_sql(), &one);
        // One record serves several tables.
        if (one.rules->id != ROUTERDB_TABLE_ACL1 && one.rules->id != ROUTERDB_TABLE_ACL2) {
            choices.offer_silently(one.record, &one);
        }
    }
    return choices.decide(table);
}

const Table *referenced_by(const Field &field) {
    const bool is_time_group = std::strcmp(field.column, "timegroup_id") == 0;
    if (!is_time_group && std::strcmp(field.column, "ipgroup_id") != 0) {
        return nullptr;
    }
    for (const Table &table : tables) {
        if (table.rules->id == (is_time_group ? ROUTERDB_TABLE_TIME_GROUP : ROUTERDB_TABLE_IP_GROUP)) {
            return &table;
        }
    }
    return nullptr;
}

const Field &control_of(const Table &table, const Field &field) {
    unsigned i = 0;
    while (table.rules->fields[i].offset != field.control) {
        ++i;
    }
    return table.rules->fields[i];
}

}  // namespace ctl
