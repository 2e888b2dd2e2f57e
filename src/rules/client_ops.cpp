#include "rules/client_ops.h"

#include <syslog.h>

#include <cstring>

#include "build_profile.h"
#include "core/list_room.h"
#include "rules/condition.h"
#include "rules/record.h"
#include "rules/sql_builder.h"
#include "sqlservice/client.h"
#include "text/text.h"

namespace routerdb {

namespace {

Reply request(std::uint8_t table_id, std::uint32_t operation, const Text &statement, const RecordArea *area = nullptr) {
    if (table_id != no_table) {
        return send(table_id, operation, statement, area);
    }
    leave_errno(EINVAL);
    return {};
}

/// Sends a statement whose reply says nothing.
void execute(std::uint8_t table_id, const Text &statement) {
    const Reply reply = request(table_id, ROUTERDB_EXECUTE, statement);
}

/// A condition that means other rows than it names is not sent.
void refuse(const RuleTable &table) {
    syslog(LOG_ERR, "delete from %s refused: its condition does more than compare columns with values\n", table.name);
    leave_errno(EINVAL);
}

/// Records of a reply that a list takes. There is no end to them where the build profile does not cap lists: the
/// caller's buffer is sized for the table.
std::size_t records_of(const Reply &reply, const RuleTable &table) {
    const std::size_t count = reply.size() / table.record_size;
    CallErrno call;
    return count == 0 || list_takes(count - 1, ROUTERDB_LIST_CAPACITY, table.name, call) ? count
                                                                                         : ROUTERDB_LIST_CAPACITY;
}

}  // namespace

void list_items(const RuleTable &table, void *list) {
    SqlText statement;
    append_list_query(statement, table);
    void *const records = member(list, sizeof(std::uint32_t));
    const RecordArea area{records, table.record_size, ROUTERDB_LIST_CAPACITY};
    const Reply reply = request(table.id, ROUTERDB_QUERY, statement, &area);

    const std::size_t count = records_of(reply, table);
    const std::size_t used = sizeof(std::uint32_t) + count * table.record_size;
    put_number(list, 0, static_cast<std::int32_t>(count));
    if (count != 0 && reply.data() != records) {
        std::memcpy(records, reply.data(), count * table.record_size);
    }
    if (used < table.list_size()) {
        std::memset(member(list, used), 0, table.list_size() - used);
    }
}

void get_item(const RuleTable &table, int id, void *record) {
    SqlText statement;
    append_select(statement, table, id);
    const RecordArea area{record, table.record_size, 1};
    const Reply reply = request(table.id, ROUTERDB_QUERY, statement, &area);
    if (reply.size() < table.record_size) {
        std::memset(record, 0, table.record_size);
    } else if (reply.data() != record) {
        std::memcpy(record, reply.data(), table.record_size);
    }
}

void add_item(const RuleTable &table, const void *record) {
    SqlText statement;
    append_insert(statement, table, record);
    execute(table.id, statement);
}

void modify_item(const RuleTable &table, const void *record) {
    SqlText statement;
    append_update(statement, table, record);
    execute(table.id, statement);
}

void delete_items(const RuleTable &table, const char *condition) {
    if (build_profile.checks_conditions && !is_plain_condition(or_empty(condition))) {
        return refuse(table);
    }
    SqlText statement;
    append_delete(statement, table);
    statement.append(or_empty(condition)).append(";");
    execute(table.delete_id, statement);
}

void delete_item(const RuleTable &table, int id) {
    SqlText statement;
    append_delete(statement, table);
    statement.append("id=").append_quoted(long{id}).append(";");
    execute(table.delete_id, statement);
}

void delete_items_of(const RuleTable &table, const char *mac) {
    SqlText statement;
    append_delete(statement, table);
    statement.append("mac=").append_quoted(or_empty(mac)).append(";");
    execute(table.delete_id, statement);
}

void delete_all_items(const RuleTable &table) {
    SqlText statement;
    append_delete_all(statement, table);
    execute(table.delete_id, statement);
}

}  // namespace routerdb
