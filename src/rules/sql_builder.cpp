#include "rules/sql_builder.h"

#include "rules/record.h"

namespace routerdb {

namespace {

enum class Part : std::uint8_t { names, values, assignments };

void append_value(Text &sql, const Field &field, unsigned index, const void *record) {
    switch (field.kind) {
        case Kind::text:
            sql.append_quoted(field_text(member(record, field.offset), field.width));
            return;
        case Kind::number:
        case Kind::weekdays:
            sql.append_quoted(long{number_at(record, field.offset + index * sizeof(std::int32_t))});
            return;
        case Kind::zero:
            sql.append_quoted(0L);
            return;
    }
}

/// The one walk over a table's columns: their names, a record's values, or both as assignments.
void append_columns(Text &sql, Part part, const RuleTable &table, const void *record) {
    const char *separator = "";
    for (const Field *field = table.fields; field != table.fields + table.field_count; ++field) {
        for (unsigned index = 0; index < field->columns(); ++index) {
            sql.append(separator);
            separator = ",";
            if (part != Part::values) {
                append_column_name(sql, *field, index);
            }
            if (part == Part::assignments) {
                sql.append("=");
            }
            if (part != Part::names) {
                append_value(sql, *field, index, record);
            }
        }
    }
}

}  // namespace

void append_column_name(Text &text, const Field &field, unsigned index) {
    text.append(field.column);
    if (field.kind == Kind::weekdays) {
        text.append(static_cast<long>(index) + 1);
    }
}

void append_list_query(Text &sql, const RuleTable &table) {
    sql.append("select * from ").append(table.name).append(" order by ").append(table.order_column).append(";");
}

void append_select(Text &sql, const RuleTable &table, int id) {
    sql.append("select * from ").append(table.name).append(" where id=").append_quoted(long{id}).append(";");
}

void append_insert(Text &sql, const RuleTable &table, const void *record) {
    sql.append("insert into ").append(table.name).append("(");
    append_columns(sql, Part::names, table, record);
    sql.append(") values(");
    append_columns(sql, Part::values, table, record);
    sql.append(");");
}

void append_update(Text &sql, const RuleTable &table, const void *record) {
    sql.append("update ").append(table.name).append(" set ");
    append_columns(sql, Part::assignments, table, record);
    sql.append(" where id=").append_quoted(long{number_at(record, id_offset)}).append(";");
}

void append_delete_all(Text &sql, const RuleTable &table) {
    sql.append("delete from ").append(table.name).append(";");
}

void append_delete(Text &sql, const RuleTable &table) {
    sql.append("delete from ").append(table.name).append(" where ");
}

}  // namespace routerdb
