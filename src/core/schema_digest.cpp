#include "core/schema_digest.h"

#include "core/remembered.h"
#include "core/statement.h"

namespace routerdb {

bool digest_schema(sqlite3 *db, Backoff &backoff, std::uint32_t &digest) {
    Statement statement;
    if (!statement.prepare(db, "select name,rootpage,sql from sqlite_master;", backoff, no_message)) {
        return false;
    }
    digest = 1;
    while (statement.next_row(backoff)) {
        for (int column = 0; column < 3; ++column) {
            digest = digest * 16777619U ^ key_of(statement.row().text(column));
        }
    }
    return statement.ended_well();
}

}  // namespace routerdb
