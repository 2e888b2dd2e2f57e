// Requests to the reference SQL service, from their first byte to the reply.
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>

#include "fuzz/fuzz.h"
#include "routerdb-sqld/answer.h"
#include "routerdb-sqld/connections.h"
#include "routerdb-sqld/database.h"
#include "support/database.h"

const char fuzz::what[] = "requests to routerdb-sqld: a reply that is whole, or none";

namespace {

constexpr char tables[][16] = {"user_timegroup", "user_urlinfo"};

std::string untouched;

/// A text that goes on and on, as far as the header announces one.
void extend(std::string &request) {
    constexpr std::size_t header = 12;
    constexpr std::uint32_t most = 200'000;
    std::uint32_t length = 0;
    if (request.size() > header) {
        std::memcpy(&length, request.data() + 8, sizeof(length));
        while (length <= most && request.size() - header < length) {
            request += request.substr(header, length - (request.size() - header));
        }
    }
}

int none_served(void * /*unused*/, pid_t /*process*/) {
    return 0;
}

void wait_for_nobody(void * /*unused*/) {}

/// Collects a request as the service does, and answers it as a worker does.
bool serve(int fd) {
    static sqld::Counters counters;
    static sqld::Connections connections(counters, sqld::Settings().request_seconds);
    connections.add(fd);
    sqld::Connection *const whole = connections.next_whole(none_served, nullptr);
    if (whole == nullptr) {
        connections.give_up_oldest();
        return false;
    }
    whole->request->text[whole->request->length] = '\0';
    const bool answered =
        sqld::answer(fd, *whole->request, sqld::Settings(), wait_for_nobody, nullptr) == sqld::Outcome::answered;
    whole->drop();
    return answered;
}

/// The service keeps one, and closes it now and then: it is there before every input.
void open_scalar_connection() {
    const sqld::Query scalar("select 1;");
}

}  // namespace

void fuzz::prepare() {
    make_database({tables[0], tables[1]},
                  "insert into user_timegroup(id,name) values(1,'group'); insert into user_urlinfo(id,name,url) "
                  "values(1,'site','http://a'),(2,NULL,x'00');");
    untouched = support::file_content(support::main_database);
    open_scalar_connection();
}

void fuzz::run(Input input) {
    const bool goes_on = input.take_number(2) == 1;
    std::string request = input.take_rest();
    if (goes_on) {
        extend(request);
    }
    int ends[2];
    require(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) == 0, "no sockets to be had");
    constexpr int room = 1 << 22;  // a whole list, which nobody reads meanwhile
    setsockopt(ends[1], SOL_SOCKET, SO_SNDBUF, &room, sizeof(room));
    send(ends[0], request.data(), request.size(), MSG_DONTWAIT);
    shutdown(ends[0], SHUT_WR);
    const bool answered = serve(ends[1]);

    static std::string reply(1 << 22, '\0');
    std::uint32_t header[3] = {};
    const ssize_t size = recv(ends[0], reply.data(), reply.size(), MSG_WAITALL);
    close(ends[0]);
    if (size >= static_cast<ssize_t>(sizeof(header))) {
        std::memcpy(header, reply.data(), sizeof(header));
    }
    require(answered ? size == static_cast<ssize_t>(sizeof(header) + header[2]) : size <= 0, "half a reply");
    require(!answered || std::memcmp(reply.data(), request.data(), 8) == 0, "a reply to another request");
    put_file(support::main_database, untouched);
    open_scalar_connection();
}
