#include "answer.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "database.h"
#include "front.h"
#include "list_space.h"
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

/// One record more than may be answered: a builder that fills it has found too many.
constexpr std::size_t size_of_list(const Builder &builder, unsigned rows) {
    return sizeof(std::uint32_t) + (std::size_t{rows} + 1) * builder.record_size;
}

/// A request under way.
struct Exchange {
    int fd;
    const Request &request;
    OnWait on_wait;
    void *context;

    Outcome reply(const void *data, std::size_t size) const {
        send_reply(fd, request, data, size, on_wait, context);
        return Outcome::answered;
    }

    Outcome refuse(const char *reason) const {
        tell_refusal(client_of(fd), reason);
        return Outcome::refused;
    }
};

/// A builder trusts the room that it is given: its query is ended where that does.
Outcome answer_list(const Exchange &exchange, const Builder &builder, unsigned rows) {
    void *const list = list_space(size_of_list(builder, rows));
    if (list == nullptr) {
        return exchange.refuse("there is no memory for a list");
    }
    const WatchedQuery query(exchange.request.text, rows);
    builder.build(list, exchange.request.text);
    if (query.failure() != nullptr) {
        return exchange.refuse(query.failure());
    }
    std::uint32_t count = 0;
    std::memcpy(&count, list, sizeof(count));
    if (count > rows) {
        return exchange.refuse("it has more rows than a list takes");
    }
    return exchange.reply(static_cast<char *>(list) + sizeof(count), std::size_t{count} * builder.record_size);
}

/// Nobody waits for the database while the client takes its reply: what is sent is a copy.
Outcome answer_scalar(const Exchange &exchange) {
    char *copy = nullptr;
    {
        Query query(exchange.request.text);
        const char *const text = query.failure() == nullptr ? query.first_text() : nullptr;
        if (query.failure() != nullptr) {
            return exchange.refuse(query.failure());
        }
        copy = text != nullptr ? strdup(text) : nullptr;
        if (text != nullptr && copy == nullptr) {
            return exchange.refuse("out of memory");
        }
    }
    const Outcome outcome = exchange.reply(copy, copy != nullptr ? std::strlen(copy) + 1 : 0);
    std::free(copy);
    return outcome;
}

Outcome answer_query(const Exchange &exchange, unsigned rows) {
    if (exchange.request.table_id == ROUTERDB_TABLE_SCALAR) {
        return answer_scalar(exchange);
    }
    const Builder *builder = find_builder(exchange.request.table_id);
    return builder != nullptr ? answer_list(exchange, *builder, rows) : exchange.refuse("no such table");
}

Outcome answer_execution(const Exchange &exchange, char *sql, bool may_change_schema) {
    if (!may_execute(sql, may_change_schema)) {
        return exchange.refuse("it does more than change rows");
    }
    if (DbSqlExec(sql) != 0) {
        tell(client_of(exchange.fd), "failed");
    }
    return exchange.reply(nullptr, 0);
}

}  // namespace

Outcome answer(int fd, Request &request, const Settings &settings, OnWait on_wait, void *context) {
    const Exchange exchange{fd, request, on_wait, context};
    switch (request.operation) {
        case ROUTERDB_QUERY:
            return answer_query(exchange, settings.rows);
        case ROUTERDB_EXECUTE:
            return answer_execution(exchange, request.text, settings.may_change_schema);
        default:
            return exchange.refuse("unknown operation");
    }
}

std::size_t longest_list(const Settings &settings) {
    std::size_t longest = 0;
    for (const Builder &builder : builders) {
        const std::size_t size = size_of_list(builder, settings.rows);
        longest = size > longest ? size : longest;
    }
    return longest;
}

}  // namespace sqld
