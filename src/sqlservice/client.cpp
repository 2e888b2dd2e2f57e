#include "sqlservice/client.h"

#include <syslog.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "build_profile.h"
#include "core/call_errno.h"
#include "core/enum_order.h"
#include "sqlservice/sigpipe_hold.h"
#include "sqlservice/socket.h"
#include "sqlservice/wire.h"

namespace routerdb {

namespace {

enum class Step : std::uint8_t { create, connect, send_header, send_text, receive_header, allocate, receive_data };

struct Failure {
    Step step;
    char text[40];
};

constexpr Failure failures[] = {
    {Step::create, "cannot create sql socket client"},
    {Step::connect, "cannot connect sql socket client"},
    {Step::send_header, "send header to sql socket server fail"},
    {Step::send_text, "send data to sql socket server fail"},
    {Step::receive_header, "recv header from sql socket server fail"},
    {Step::allocate, "sql client malloc data buffer fail"},
    {Step::receive_data, "recv data from sql socket server fail"},
};
static_assert(follows_enum(failures, &Failure::step));

// A list of the longest records fits, and any text that a query is answered with.
constexpr std::int32_t longest_reply = 1024 * 1024;
constexpr std::int32_t longest_scalar = 64 * 1024;

/// One request and its reply, step by step.
class Exchange {
public:
    Exchange(const SqlRequest &request, SqlReply &reply, const RecordArea *area)
        : request_(request), reply_(reply), area_(area) {}

    /// @return 0, or -1 after the failure was reported
    int run() {
        const int sent = send_request();
        return sent == 0 ? receive_reply() : sent;
    }

private:
    int send_request();
    int receive_reply();
    int receive_data();
    bool receive_all(char *data);
    bool announces_too_much() const;
    static bool is_protocol_error();
    int fail(Step step);

    CallErrno call_;
    Socket socket_;
    const SqlRequest &request_;
    SqlReply &reply_;
    const RecordArea *area_;
};

/// Whether a flaw of a reply counts: errno says EPROTO then. Otherwise it stays what it was, which the reports show.
bool Exchange::is_protocol_error() {
    if (build_profile.checks_replies) {
        errno = EPROTO;
    }
    return build_profile.checks_replies;
}

/// Each failure is reported twice, with the system's reason on standard error.
int Exchange::fail(Step step) {
    call_.fail(errno == EAGAIN ? ETIMEDOUT : errno);  // what a time-out is for callers
    const char *failure = failures[static_cast<unsigned>(step)].text;
    std::perror(failure);
    syslog(LOG_ERR, "%s!\n", failure);
    return -1;
}

/// Connects and sends the request.
int Exchange::send_request() {
    if (!socket_.create()) {
        return fail(Step::create);
    }
    if (!socket_.connect() || !socket_.serves_this_caller()) {
        return fail(Step::connect);
    }
    SigpipeHold hold;
    const bool header_sent = socket_.send(&request_, wire::header_size);
    if (header_sent && socket_.send(request_.text, request_.length)) {
        return 0;
    }
    hold.note_failure();
    hold.lift();  // before the report, whose streams are the caller's
    return fail(header_sent ? Step::send_text : Step::send_header);
}

/// Where data of a size goes: to the area if it is whole records that fit, else to a block.
void *room_for(std::size_t size, const RecordArea *area) {
    if (build_profile.receives_in_place && area != nullptr && size % area->record_size == 0 &&
        size / area->record_size <= area->capacity) {
        return area->first;
    }
    return std::malloc(size);
}

void release(void *data, const RecordArea *area) {
    if (area == nullptr || data != area->first) {
        std::free(data);
    }
}

/// Receives the bytes that the reply announces. Where replies are not checked the service may end them early: what is
/// missing then reads as zero.
bool Exchange::receive_all(char *data) {
    std::size_t received = 0;
    while (received < static_cast<std::size_t>(reply_.size)) {
        const std::size_t missing = static_cast<std::size_t>(reply_.size) - received;
        const ssize_t count = socket_.receive(data + received, missing);
        if (count < 0) {
            return false;
        }
        if (count == 0) {
            if (is_protocol_error()) {
                return false;
            }
            std::memset(data + received, 0, missing);
            break;
        }
        received += static_cast<std::size_t>(count);
    }
    return true;
}

/// Receives the data behind the header.
int Exchange::receive_data() {
    void *const data = room_for(static_cast<std::size_t>(reply_.size), area_);
    if (data == nullptr) {
        return fail(Step::allocate);
    }
    if (!receive_all(static_cast<char *>(data))) {
        release(data, area_);
        return fail(Step::receive_data);
    }
    reply_.data = data;
    return 0;
}

bool Exchange::announces_too_much() const {
    const std::int32_t longest = request_.table_id == ROUTERDB_TABLE_SCALAR ? longest_scalar : longest_reply;
    return reply_.size < 0 || reply_.size > longest;
}

int Exchange::receive_reply() {
    reply_ = {};
    const ssize_t received = socket_.receive(&reply_, wire::header_size);
    const bool whole = received == static_cast<ssize_t>(wire::header_size);
    const bool flawed = received >= 0 && (!whole || announces_too_much()) && is_protocol_error();
    if (flawed || !whole) {
        return fail(Step::receive_header);
    }
    if (reply_.size >= 1) {
        return receive_data();
    }
    reply_.data = std::malloc(4);  // so that a caller can always free it
    return reply_.data != nullptr ? 0 : fail(Step::allocate);
}

}  // namespace

int exchange(const SqlRequest &request, SqlReply &reply, const RecordArea *area) {
    return Exchange(request, reply, area).run();
}

Reply send(std::uint32_t table_id, std::uint32_t operation, const Text &statement, const RecordArea *area) {
    SqlReply reply{};
    if (!statement.complete()) {
        leave_errno(ENOMEM);
    } else {
        const SqlRequest request{table_id, operation, static_cast<std::uint32_t>(statement.length()),
                                 statement.c_str()};
        exchange(request, reply, area);
    }
    return {reply, area};
}

Reply::~Reply() {
    release(reply_.data, area_);
}

std::size_t Reply::size() const {
    return reply_.data != nullptr && reply_.size > 0 ? static_cast<std::size_t>(reply_.size) : 0;
}

}  // namespace routerdb
