#include "rules/field_reader.h"

#include "rules/record.h"

namespace routerdb {

namespace {

/// Whether the control member, which has been read by now, lets this field count.
bool counts(const Field &field, const void *record) {
    if (field.kind == Kind::zero) {
        return false;
    }
    const std::int32_t control = number_at(record, field.control);
    switch (field.when) {
        case When::always:
            return true;
        case When::own:
            return control == control_own;
        case When::referenced:
            return control == control_referenced;
        case When::not_referenced:
            return control != control_referenced;
    }
    return false;
}

void read_field(const Field &field, const std::uint8_t *columns, const Row &row, void *record) {
    if (field.kind == Kind::text) {
        row.copy(columns[0], member(record, field.offset), field.width);
        return;
    }
    for (unsigned index = 0; index < field.columns(); ++index) {
        put_number(record, field.offset + index * sizeof(std::int32_t), row.number(columns[index]));
    }
}

}  // namespace

void read_fields(const RuleTable &table, const Columns &columns, const Row &row, void *record) {
    put_number(record, id_offset, row.number(columns.id()));
    const std::uint8_t *next = columns.of_fields();
    for (const Field *field = table.fields; field != table.fields + table.field_count; ++field) {
        if (counts(*field, record)) {
            read_field(*field, next, row, record);
        }
        next += field->columns();
    }
}

}  // namespace routerdb
