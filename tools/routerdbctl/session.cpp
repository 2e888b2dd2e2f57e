#include "session.h"

#include "core/paths.h"
#include "meaning.h"
#include "sql.h"

namespace ctl {

Session::Session(const Invocation &invocation)
    : status_(database_.open(routerdb::paths::main_database, invocation.seconds())) {}

Status Session::find_table(const char *name, const Table *&table) const {
    const Status status = status_ != Status::done ? status_ : ctl::find_table(name, table);
    if (status != Status::done) {
        return status;
    }
    Sql sql;
    sql.add("SELECT count(*) FROM sqlite_master WHERE name = %Q", table->in_sql());
    return number_of(database_, sql.text()) != 0
               ? Status::done
               : fail(Status::unreachable, "the database has no table %s; \"routerdbctl doctor\" says more",
                      table->in_sql());
}

Status read_id(const char *text, std::int32_t &id) {
    return read_number(*text == '#' ? text + 1 : text, id) && id > 0
               ? Status::done
               : fail(Status::usage, "\"%s\" is no id of a row", text);
}

}  // namespace ctl
