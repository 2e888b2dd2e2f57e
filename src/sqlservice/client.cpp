#include "sqlservice/client.h"

#include <syslog.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "build_profile.h"
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

/// Each failure is reported twice, with the system's reason on standard error.
int fail(Step step) {
    const char *failure = failures[static_cast<unsigned>(step)].text;
    std::perror(failure);
    syslog(LOG_ERR, "%s!\n", failure);
    return -1;
}

/// Connects and sends the request.
int send_request(Socket &socket, const SqlRequest &request) {
    if (!socket.create()) {
        return fail(Step::create);
    }
    if (!socket.connect()) {
        return fail(Step::connect);
    }
    SigpipeHold hold;
    const bool header_sent = socket.send(&request, wire::header_size);
    if (header_sent && socket.send(request.text, request.length)) {
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

/// Receives the bytes that the reply announces. The service may end them early: what is missing then reads as zero.
bool receive_all(Socket &socket, char *data, const SqlReply &reply) {
    std::size_t received = 0;
    while (received < static_cast<std::size_t>(reply.size)) {
        const std::size_t missing = static_cast<std::size_t>(reply.size) - received;
        const ssize_t count = socket.receive(data + received, missing);
        if (count < 0) {
            return false;
        }
        if (count == 0) {
            std::memset(data + received, 0, missing);
            break;
        }
        received += static_cast<std::size_t>(count);
    }
    return true;
}

/// Receives the data behind the header.
int receive_data(Socket &socket, SqlReply &reply, const RecordArea *area) {
    void *const data = room_for(static_cast<std::size_t>(reply.size), area);
    if (data == nullptr) {
        return fail(Step::allocate);
    }
    if (!receive_all(socket, static_cast<char *>(data), reply)) {
        release(data, area);
        return fail(Step::receive_data);
    }
    reply.data = data;
    return 0;
}

int receive_reply(Socket &socket, SqlReply &reply, const RecordArea *area) {
    reply = {};
    if (socket.receive(&reply, wire::header_size) != static_cast<ssize_t>(wire::header_size)) {
        return fail(Step::receive_header);
    }
    if (reply.size >= 1) {
        return receive_data(socket, reply, area);
    }
    reply.data = std::malloc(4);  // so that a caller can always free it
    return reply.data != nullptr ? 0 : fail(Step::allocate);
}

}  // namespace

int exchange(const SqlRequest &request, SqlReply &reply, const RecordArea *area) {
    Socket socket;
    const int sent = send_request(socket, request);
    return sent == 0 ? receive_reply(socket, reply, area) : sent;
}

Reply send(std::uint32_t table_id, std::uint32_t operation, const Text &statement, const RecordArea *area) {
    SqlReply reply{};
    if (statement.complete()) {
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
