#include "rules/list_builder.h"

#include <cstring>

#include "core/list_room.h"
#include "core/reading.h"
#include "rules/field_reader.h"
#include "rules/record.h"
#include "rules/references.h"
#include "rules/sql_builder.h"
#include "text/number.h"

namespace routerdb {

namespace {

using namespace profiles;

// The first delay is drawn before anything else.
constexpr ReadProfile common = unguarded.for_callers()
                                   .under(Guard::lock_file)
                                   .drawing_first()
                                   .when_not_locked(Stream::standard_output)
                                   .when_not_opened(error_on_output)
                                   .when_not_prepared(error_on_output);
constexpr ReadProfile detailed = guarded.for_callers().drawing_first().when_not_prepared(prepare_on_output);

/// The place of record `index` in a list. The list is cleared, what lies behind its capacity is cleared here.
void *next_record(const RuleTable &table, void *list, std::size_t index) {
    void *record = member(list, sizeof(std::uint32_t) + index * table.record_size);
    if (index >= ROUTERDB_LIST_CAPACITY) {
        std::memset(record, 0, table.record_size);
    }
    return record;
}

/// @return the number of rows
std::size_t read_rows(const RuleTable &table, Reading &reading, void *list, Derive derive) {
    const Columns columns(table, reading.statement());
    References references(reading.db(), reading.call());
    std::size_t count = 0;
    while (reading.next_row() && list_takes(count, ROUTERDB_LIST_CAPACITY, table.name, reading.call())) {
        void *record = next_record(table, list, count++);
        read_fields(table, columns, reading.row(), record);
        if (derive != nullptr) {
            derive(references, record);
        }
    }
    return count;
}

/// Whether a query is one of those that the client operations of a table send: all of it, or one record.
bool is_own_query(const RuleTable &table, const char *sql) {
    StackText<80> own;
    append_list_query(own, table);
    const char *const value = std::strchr(sql, '\'');
    if (value != nullptr) {
        own.clear();
        append_select(own, table, to_number(value + 1));
    }
    return own.complete() && std::strcmp(sql, own.c_str()) == 0;
}

SqlView view_of(const RuleTable &table, const char *sql) {
    return build_profile.keeps_connection && is_own_query(table, sql) ? SqlView::recognised(sql) : SqlView(sql);
}

}  // namespace

int build_item_list(const RuleTable &table, void *list, const char *sql, Derive derive) {
    std::memset(list, 0, table.list_size());
    Reading reading(table.messages == BuilderMessages::detailed ? detailed : common);
    if (reading.start(view_of(table, sql)) == Start::ready) {
        put_number(list, 0, static_cast<std::int32_t>(read_rows(table, reading, list, derive)));
    }
    return reading.close().lock_file;
}

}  // namespace routerdb
