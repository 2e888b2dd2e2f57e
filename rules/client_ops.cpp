#include "rules/client_ops.h"

#include <cstring>

#include "core/text.h"
#include "rules/record.h"
#include "rules/sql_builder.h"
#include "sqlservice/client.h"

namespace routerdb {

namespace {

void send(const RuleTable &table, const Text &statement) {
    const Reply reply(table.id, ROUTERDB_EXECUTE, statement);  // its data says nothing
}

}  // namespace

void list_items(const RuleTable &table, void *list) {
    SqlText statement;
    append_list_query(statement, table);
    const Reply reply(table.id, ROUTERDB_QUERY, statement);

    // Whole records only, and no limit to what the list holds: the caller's buffer is sized for the table.
    const std::size_t count = reply.size() / table.record_size;
    const std::size_t used = sizeof(std::uint32_t) + count * table.record_size;
    put_number(list, 0, static_cast<std::int32_t>(count));
    if (count != 0) {
        std::memcpy(member(list, sizeof(std::uint32_t)), reply.data(), count * table.record_size);
    }
    if (used < table.list_size()) {
        std::memset(member(list, used), 0, table.list_size() - used);
    }
}

void get_item(const RuleTable &table, int id, void *record) {
    SqlText statement;
    append_select(statement, table, id);
    const Reply reply(table.id, ROUTERDB_QUERY, statement);
    if (reply.size() >= table.record_size) {
        std::memcpy(record, reply.data(), table.record_size);
    } else {
        std::memset(record, 0, table.record_size);
    }
}

void add_item(const RuleTable &table, const void *record) {
    SqlText statement;
    append_insert(statement, table, record);
    send(table, statement);
}

void modify_item(const RuleTable &table, const void *record) {
    SqlText statement;
    append_update(statement, table, record);
    send(table, statement);
}

void delete_items(const RuleTable &table, const char *condition) {
    SqlText statement;
    append_delete(statement, table, or_empty(condition));
    send(table, statement);
}

}  // namespace routerdb
