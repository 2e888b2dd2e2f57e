// One request to the SQL service and its reply.
#pragma once

#include "core/text.h"
#include "routerdb.h"

namespace routerdb {

/// Sends a request and receives the reply.
/// @return 0, and `reply` owns a heap block; -1 after the failure was reported, and it owns none
int exchange(const SqlRequest &request, SqlReply &reply);

/// Owns the reply to one request. One that failed, or announced data and has no block, is empty.
class Reply {
public:
    /// No reply, because nothing was asked.
    Reply() = default;

    /// Sends a statement; an incomplete text is not sent.
    Reply(std::uint32_t table_id, std::uint32_t operation, const Text &statement);
    Reply(const Reply &) = delete;
    Reply &operator=(const Reply &) = delete;
    ~Reply();

    /// Bytes of data, 0 if there are none.
    std::size_t size() const;
    const char *data() const { return static_cast<const char *>(reply_.data); }

private:
    SqlReply reply_{};
};

}  // namespace routerdb
