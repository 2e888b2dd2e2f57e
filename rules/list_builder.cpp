#include "rules/list_builder.h"

#include <cstring>

#include "core/access.h"
#include "core/statement.h"
#include "rules/record.h"
#include "rules/record_reader.h"

namespace routerdb {

namespace {

struct BuilderProfile {
    AccessProfile access;
    Message prepare_failure;
};

constexpr Message error_on_output{Stream::standard_output, Wording::error};

// clang-format off
constexpr BuilderProfile builder{
    {Database::main, Guard::lock_file, FirstDelay::random, Draw::before_opening_lock_file, 1,
     Stream::nowhere, Stream::standard_output, error_on_output, FailedHandle::closed},
    error_on_output};
// clang-format on

/// The place of record `index` in a list. The list is cleared, what lies behind its capacity is cleared here.
void *next_record(const RuleTable &table, void *list, std::size_t index) {
    void *record = member(list, sizeof(std::uint32_t) + index * table.record_size);
    if (index >= ROUTERDB_LIST_CAPACITY) {
        std::memset(record, 0, table.record_size);
    }
    return record;
}

std::size_t read_rows(const RuleTable &table, Access &access, void *list, const char *sql) {
    Statement statement(access.db());
    const int code = statement.prepare(sql, access.backoff());
    if (code != SQLITE_OK) {
        report(builder.prepare_failure, {nullptr, code, sqlite3_errmsg(access.db())});
        return 0;
    }
    std::size_t count = 0;
    // There is no limit to the rows: the caller's buffer is sized for the table.
    for (bool more = statement.first_row(access.backoff()); more; more = statement.next_row()) {
        read_record(table, access.db(), statement.row(), next_record(table, list, count));
        ++count;
    }
    return count;
}

}  // namespace

int build_item_list(const RuleTable &table, void *list, const char *sql) {
    std::memset(list, 0, table.list_size());
    Access access(builder.access);
    if (!access.open()) {
        return -1;
    }
    put_number(list, 0, static_cast<std::int32_t>(read_rows(table, access, list, sql)));
    return access.close();
}

}  // namespace routerdb
