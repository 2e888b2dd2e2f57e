// The service beside a service manager, and what it tells of its work.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "routerdb.h"
#include "support/database.h"
#include "support/peer.h"
#include "support/process.h"
#include "support/record.h"
#include "support/service.h"
#include "support/system_log.h"
#include "tools/question.h"

namespace {

using support::exchange;
using support::Process;
using support::request;
using support::words;

/// A local socket of that name; one that begins with a zero byte is no file.
int bound(int type, const std::string &name) {
    const int fd = socket(AF_UNIX, type, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    name.copy(address.sun_path, sizeof(address.sun_path) - 1);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size());
    EXPECT_EQ(bind(fd, reinterpret_cast<const sockaddr *>(&address), size), 0);
    return fd;
}

/// Where a manager is told something.
class Notified {
public:
    explicit Notified(const std::string &name) : fd_(bound(SOCK_DGRAM, name)) {
        const timeval patience{30, 0};
        setsockopt(fd_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
    }
    Notified(const Notified &) = delete;
    Notified &operator=(const Notified &) = delete;
    ~Notified() { close(fd_); }

    std::string next() const {
        std::array<char, 1024> text{};
        const ssize_t size = recv(fd_, text.data(), text.size(), 0);
        return {text.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
    }

private:
    int fd_;
};

struct Place {
    std::string name;
    std::string told;
};

void PrintTo(const Place &place, std::ostream *out) {
    *out << place.told;
}

class SqldNotifies : public testing::TestWithParam<Place> {};

TEST_P(SqldNotifies, when_it_is_ready_when_it_is_asked_and_when_it_stops) {
    const Notified manager(GetParam().name);
    setenv("NOTIFY_SOCKET", GetParam().told.c_str(), 1);
    support::Service service({"--workers", "2"});
    EXPECT_EQ(manager.next(), "READY=1\nSTATUS=Serving");
    service.signal(SIGUSR1);
    EXPECT_EQ(manager.next().substr(0, 66), "STATUS=0 requests, 1 refused, 0 timed out, 2 workers, longest wait");
    service.signal(SIGTERM);
    EXPECT_EQ(manager.next(), "STOPPING=1");
    EXPECT_EQ(service.wait(), 0);
}

INSTANTIATE_TEST_SUITE_P(, SqldNotifies,
                         testing::Values(Place{"/var/notified", "/var/notified"},
                                         Place{std::string("\0notified", 9), "@notified"}));

TEST(SqldCounters, are_told_in_the_log) {
    const support::Service service({"--workers", "1", "--request-seconds", "1"});
    EXPECT_EQ(exchange(question()), answer());
    EXPECT_EQ(exchange(request(100, 1, "nonsense")), "");
    EXPECT_EQ(exchange(request(5, 2, "insert into user_timegroup(name) values('a');")), words({5, 2, 0}));
    const int lock = get_db_lock();
    EXPECT_EQ(exchange(question()), "");
    free_db_lock(lock);
    EXPECT_EQ(exchange(question()), answer());
    const support::SystemLog log;
    service.signal(SIGUSR1);
    std::vector<std::string> lines;
    EXPECT_TRUE(support::eventually([&] { return !(lines = log.lines()).empty(); }));
    EXPECT_EQ(lines.front().substr(0, 62), "30 5 requests, 2 refused, 1 timed out, 1 workers, longest wait")
        << "the first refusal is that of a connection which said nothing";
}

/// Where the manager has made the socket, and hands it over with the first connection waiting.
TEST(SqldActivation, takes_the_socket_of_the_manager_and_leaves_it_there) {
    const int listener = bound(SOCK_STREAM, std::string(support::service_socket, sizeof(support::service_socket)));
    ASSERT_EQ(listen(listener, 10), 0);
    const support::Peer first;
    first.send(question());
    Process service([listener] {
        if (listener != 3) {
            dup2(listener, 3);
        }
        setenv("LISTEN_FDS", "1", 1);
        setenv("LISTEN_PID", std::to_string(getpid()).c_str(), 1);
        return support::become(support::sqld());
    });
    EXPECT_EQ(first.receive(), answer());
    EXPECT_EQ(exchange(question()), answer());
    kill(service.id(), SIGTERM);
    EXPECT_EQ(service.wait(), 0);
    const support::Peer next;
    EXPECT_TRUE(next.connected()) << "it waits for the next service";
    close(listener);
}

TEST(SqldActivation, is_for_the_process_that_it_names) {
    const int listener = bound(SOCK_STREAM, "/var/other");
    ASSERT_EQ(listen(listener, 10), 0);
    dup2(listener, 3);
    setenv("LISTEN_FDS", "1", 1);
    setenv("LISTEN_PID", std::to_string(getpid()).c_str(), 1);
    const support::Service service;  // another process
    EXPECT_EQ(exchange(question()), answer());
}

}  // namespace
