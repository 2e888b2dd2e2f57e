// One request to the SQL service and its reply.
#pragma once

#include "routerdb.h"
#include "text/text.h"

namespace routerdb {

/// Where a caller wants records to arrive.
struct RecordArea {
    void *first;
    std::size_t record_size;
    std::size_t capacity;  // in records
};

/// Sends a request and receives the reply.
/// @param area  whole records that fit are received there, where the build profile spares the block; a failure may
///              leave anything in it. Null for none.
/// @return 0, and `reply` has a heap block or the area's bytes; -1 after the failure was reported, and it has neither
int exchange(const SqlRequest &request, SqlReply &reply, const RecordArea *area = nullptr);

/// Owns the reply to one request. One that failed, or announced data and has no block, is empty.
class Reply {
public:
    /// No reply, because nothing was asked.
    Reply() = default;

    /// Takes over what exchange() left.
    Reply(const SqlReply &reply, const RecordArea *area) : reply_(reply), area_(area) {}
    Reply(const Reply &) = delete;
    Reply &operator=(const Reply &) = delete;
    ~Reply();

    /// Bytes of data, 0 if there are none.
    std::size_t size() const;
    const char *data() const { return static_cast<const char *>(reply_.data); }

private:
    SqlReply reply_{};
    const RecordArea *area_ = nullptr;
};

/// Sends a statement and receives the reply; an incomplete text is not sent.
/// @param area  outlives the reply
Reply send(std::uint32_t table_id, std::uint32_t operation, const Text &statement, const RecordArea *area = nullptr);

}  // namespace routerdb
