// The SQL service: whether it answers, and whose process it is.
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "checks.h"
#include "core/paths.h"
#include "process_facts.h"
#include "routerdb.h"

namespace ctl {

namespace {

using routerdb::paths::service_socket;

constexpr char start_it[] = "start routerdb-sqld; the system log says why it has ended";
constexpr char restart_it[] = "start routerdb-sqld again; the system log says what it is at";

/// A connection to the service.
class Connection {
public:
    Connection() : fd_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {}
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection() { close(fd_); }

    bool connect() const {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, service_socket, sizeof(service_socket));
        return ::connect(fd_, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    }

    /// Who listens.
    bool read_peer(ucred &peer) const {
        socklen_t size = sizeof(peer);
        return getsockopt(fd_, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0;
    }

    /// Asks for a number.
    bool is_answered() const {
        constexpr char text[] = "select 1;";
        constexpr std::uint32_t header[] = {ROUTERDB_TABLE_SCALAR, ROUTERDB_QUERY, sizeof(text) - 1};
        char request[sizeof(header) + sizeof(text) - 1];
        std::memcpy(request, header, sizeof(header));
        std::memcpy(request + sizeof(header), text, sizeof(text) - 1);
        struct {
            std::uint32_t header[3];
            char text[2];
        } reply{};
        constexpr ssize_t size = sizeof(reply.header) + sizeof(reply.text);
        return send(fd_, request, sizeof(request), MSG_NOSIGNAL) == static_cast<ssize_t>(sizeof(request)) &&
               recv(fd_, &reply, size, MSG_WAITALL) == size && reply.header[2] == sizeof(reply.text) &&
               std::memcmp(reply.text, "1", sizeof(reply.text)) == 0;
    }

private:
    int fd_;
};

/// Whether programs whose library is modern ask a service of this user.
bool is_trusted(uid_t user) {
    struct stat database {};
    return user == 0 || user == geteuid() ||
           (stat(routerdb::paths::main_database, &database) == 0 && database.st_uid == user);
}

void report_process(Report &report, const ucred &peer) {
    ProcessFacts facts{};
    const bool is_known = peer.pid > 0 && read_process_facts(peer.pid, facts);
    report.ok("answers; process %d (%s) of %s", static_cast<int>(peer.pid), is_known ? facts.name : "not to be seen",
              name_of_user(peer.uid));
    if (!is_trusted(peer.uid)) {
        report.fail("look whose program it is, and end it", "process %d of %s serves, whom programs do not trust",
                    static_cast<int>(peer.pid), name_of_user(peer.uid));
    }
}

}  // namespace

void look_at_service(Examination &examination) {
    Report &report = examination.report;
    struct stat file {};
    const Connection connection;
    if (stat(service_socket, &file) != 0 || !S_ISSOCK(file.st_mode)) {
        report.fail(start_it, "there is no socket %s", service_socket);
        return;
    }
    report.begin(restart_it, "does not answer within %u seconds", examination.seconds);
    ucred peer{};
    if (!connection.connect() || !connection.read_peer(peer)) {
        report.fail(start_it, "nobody listens on %s: %s", service_socket, std::strerror(errno));
        return;
    }
    report.begin(restart_it, "process %d does not answer within %u seconds", static_cast<int>(peer.pid),
                 examination.seconds);
    if (!connection.is_answered()) {
        report.fail(restart_it, "process %d does not answer as a service does", static_cast<int>(peer.pid));
        return;
    }
    report_process(report, peer);
    if ((file.st_mode & S_IWOTH) != 0) {
        report.warn("\"chmod o-w\" it", "everybody may connect to %s, and change everything", service_socket);
    }
}

}  // namespace ctl
