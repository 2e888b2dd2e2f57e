// One request of the tests' own, and what came of it.
#pragma once

#include <cstring>
#include <string>

#include "routerdb.h"

namespace support {

/// 37 bytes.
inline constexpr char list_statement[] = "select * from filter_url order by Id;";

/// Owns the reply to one request. It starts out with odd values, so that an untouched one shows.
struct Exchange {
    Exchange() = default;
    Exchange(const Exchange &) = delete;
    Exchange &operator=(const Exchange &) = delete;
    ~Exchange() {
        if (reply.data != odd_place()) {
            free(reply.data);
        }
    }

    static void *odd_place() {
        static char place;
        return &place;
    }

    int send(const char *text = list_statement) {
        const SqlRequest request{ROUTERDB_TABLE_URL_FILTER, ROUTERDB_QUERY, static_cast<uint32_t>(strlen(text)), text};
        return sqlclient_cmd(&request, &reply);
    }

    std::string header() const {
        return std::to_string(reply.word0) + " " + std::to_string(reply.word1) + " " + std::to_string(reply.size);
    }

    /// The data of a successful exchange.
    std::string data() const {
        return {static_cast<const char *>(reply.data), static_cast<std::size_t>(reply.size > 0 ? reply.size : 0)};
    }

    SqlReply reply{71, 72, 73, odd_place()};
};

}  // namespace support
