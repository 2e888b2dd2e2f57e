#include "rules/record_reader.h"

#include "rules/record.h"
#include "rules/time_span.h"

namespace routerdb {

namespace {

/// Whether the control columns, which have been read by now, let this column count.
bool counts(const Field &field, const RuleTable &table, const void *record) {
    switch (field.source) {
        case Source::always:
            return true;
        case Source::own_time:
            return number_at(record, table.time_span.control) == ROUTERDB_TIME_OWN;
        case Source::time_group:
            return number_at(record, table.time_span.control) == ROUTERDB_TIME_GROUP;
    }
    return false;
}

void read_field(const Field &field, const Row &row, void *record) {
    switch (field.kind) {
        case Kind::number:
        case Kind::weekdays:
            for (unsigned index = 0; index < field.columns(); ++index) {
                put_number(record, field.offset + index * sizeof(std::int32_t),
                           row.number(field.position + static_cast<int>(index)));
            }
            return;
        case Kind::text:
            row.copy(field.position, member(record, field.offset), field.width);
            return;
        case Kind::zero:
            return;
    }
}

}  // namespace

void read_record(const RuleTable &table, sqlite3 *db, const Row &row, void *record) {
    put_number(record, id_offset, row.number(0));
    for (const Field *field = table.fields; field != table.fields + table.field_count; ++field) {
        if (counts(*field, table, record)) {
            read_field(*field, row, record);
        }
    }
    if (table.has_time_span()) {
        settle_time_span(table.time_span, db, record);
    }
}

}  // namespace routerdb
