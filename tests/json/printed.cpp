#include "json/printed.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>
#include <thread>

#include "support/streams.h"
#include <nlohmann/json.hpp>

namespace printed {

namespace {

/// Far up, where a list that closes low descriptors does not meet it.
int moved_up(int descriptor) {
    constexpr int far_up = 500;
    const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, far_up);
    close(descriptor);
    return moved;
}

}  // namespace

std::string by(const std::function<void()> &action) {
    const support::Streams::Text text = support::streams_of(action);
    EXPECT_EQ(text.error, "");
    return text.output;
}

std::vector<std::string> writes_of(const std::function<void()> &action) {
    int ends[2];  // a packet is what one write sends
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) {
        throw std::runtime_error("no sockets to be had");
    }
    const int end = moved_up(ends[0]);
    std::vector<std::string> writes;
    std::thread reader([&writes, end] {
        std::string packet(1 << 16, '\0');
        for (ssize_t size = 0; (size = recv(end, packet.data(), packet.size(), 0)) > 0;) {
            writes.emplace_back(packet.data(), static_cast<std::size_t>(size));
        }
    });
    std::fflush(stdout);
    const int saved = moved_up(dup(STDOUT_FILENO));
    dup2(ends[1], STDOUT_FILENO);
    close(ends[1]);
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    action();
    std::setvbuf(stdout, nullptr, _IOFBF, BUFSIZ);
    dup2(saved, STDOUT_FILENO);
    close(saved);
    reader.join();
    close(end);
    return writes;
}

bool is_json(const std::string &text) {
    return nlohmann::json::accept(text);
}

void expect_complete(const std::string &actual, const std::string &expected) {
    EXPECT_EQ(actual, expected);
    EXPECT_TRUE(is_json(actual)) << actual;
}

void expect_unfinished(const std::string &actual, const std::string &expected) {
    EXPECT_EQ(actual, expected);
    EXPECT_FALSE(is_json(actual)) << actual;
}

List parse(const std::string &text, const std::string &name) {
    const nlohmann::json whole = nlohmann::json::parse(text);
    if (whole.size() != 1) {
        throw std::runtime_error("more than one list");
    }
    List list;
    for (const auto &member : whole.at(name).items()) {
        if (member.value().is_array()) {
            list.elements = member.value().get<std::vector<Texts>>();
        } else {
            list.totals[member.key()] = member.value().get<std::string>();
        }
    }
    return list;
}

std::vector<std::string> values(const List &list, const std::string &key) {
    std::vector<std::string> found;
    for (std::size_t i = 0; i + 1 < list.elements.size(); ++i) {
        found.push_back(list.elements[i].at(key));
    }
    return found;
}

}  // namespace printed
