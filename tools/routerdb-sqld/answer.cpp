#include "answer.h"

#include <sys/mman.h>
#include <syslog.h>
#include <unistd.h>

#include <cstring>

#include "database.h"
#include "peer.h"
#include "routerdb.h"
#include "rules/tables.h"

namespace sqld {

namespace {

/// How the list queries of one table are answered.
struct Builder {
    std::uint32_t table_id;
    std::uint32_t record_size;
    int (*build)(void *list, const char *sql);
};

#define BUILDER(name, Item, function, name_for_people) \
    {routerdb::tables::name::table.id, sizeof(Item),   \
     [](void *list, const char *sql) { return function(static_cast<Item##List *>(list), sql); }},
constexpr Builder builders[] = {ROUTERDB_RULE_TABLES(BUILDER)};
#undef BUILDER

const Builder *find_builder(std::uint32_t table_id) {
    for (const Builder &builder : builders) {
        if (builder.table_id == table_id) {
            return &builder;
        }
    }
    return nullptr;
}

/// A list buffer with room for so many records. Behind it lies a page that nobody may touch: a table that outgrows
/// the count ends this process instead of running into something else.
void *make_list(std::size_t bytes) {
    const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t rounded = (bytes + page - 1) / page * page;
    void *memory = mmap(nullptr, rounded + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED || mprotect(static_cast<char *>(memory) + rounded, page, PROT_NONE) != 0) {
        syslog(LOG_ERR, "no memory for a list of %zu bytes: %m", bytes);
        return nullptr;
    }
    return memory;
}

/// The rows are counted first, under the lock that keeps writers away until the builder has read them: builders
/// trust the room that they are given.
bool answer_list(int fd, const Request &request, const Builder &builder) {
    Query query(request.text);
    const std::size_t rows = query.failure() == nullptr ? query.count_rows() : 0;
    if (query.failure() != nullptr) {
        return refuse(fd, query.failure());
    }
    const std::size_t room = rows > ROUTERDB_LIST_CAPACITY ? rows : ROUTERDB_LIST_CAPACITY;
    void *list = make_list(sizeof(std::uint32_t) + room * builder.record_size);
    if (list == nullptr) {
        return false;
    }
    builder.build(list, request.text);
    std::uint32_t count = 0;
    std::memcpy(&count, list, sizeof(count));
    return send_reply(fd, request, static_cast<char *>(list) + sizeof(count), std::size_t{count} * builder.record_size);
}

bool answer_scalar(int fd, const Request &request) {
    Query query(request.text);
    const char *text = query.failure() == nullptr ? query.first_text() : nullptr;
    if (query.failure() != nullptr) {
        return refuse(fd, query.failure());
    }
    return send_reply(fd, request, text, text != nullptr ? std::strlen(text) + 1 : 0);
}

bool answer_query(int fd, const Request &request) {
    if (request.table_id == ROUTERDB_TABLE_SCALAR) {
        return answer_scalar(fd, request);
    }
    const Builder *builder = find_builder(request.table_id);
    return builder != nullptr ? answer_list(fd, request, *builder) : refuse(fd, "no such table");
}

bool answer_execution(int fd, Request &request, const Settings &settings) {
    if (!may_execute(request.text, settings.may_change_schema)) {
        return refuse(fd, "it does more than change rows");
    }
    if (DbSqlExec(request.text) != 0) {
        tell(fd, "failed");
    }
    return send_reply(fd, request, nullptr, 0);
}

}  // namespace

bool answer(int fd, const Settings &settings) {
    static Request request;  // too large for the stack of a small target
    if (!receive_request(fd, request)) {
        return false;
    }
    switch (request.operation) {
        case ROUTERDB_QUERY:
            return answer_query(fd, request);
        case ROUTERDB_EXECUTE:
            return answer_execution(fd, request, settings);
        default:
            return refuse(fd, "unknown operation");
    }
}

}  // namespace sqld
