// A service that sends too little, too much, or nothing: callers neither crash nor wait for good, and the modern
// profile takes little memory.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cerrno>
#include <chrono>
#include <climits>
#include <fstream>

#include "routerdb.h"
#include "soak/soak.h"
#include "sqlservice/exchange.h"
#include "support/fake_service.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/streams.h"

namespace {

using support::build_profile;
using support::Conversation;
using support::Ending;
using support::FakeService;
using support::Hearing;

constexpr std::size_t record_size = sizeof(UserUrlItem);

/// Memory that a caller may take beside what it has: room for the longest reply that is taken, and no more.
[[maybe_unused]] constexpr rlim_t memory_limit = 8UL * 1024 * 1024;

void limit_memory() {
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)  // which reserve more than any limit
    unsigned long pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlim_t limit = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + memory_limit;
    const rlimit both{limit, limit};
    if (setrlimit(RLIMIT_AS, &both) != 0) {
        std::abort();
    }
#endif
}

/// What a client is content with.
using Client = bool (*)();

/// One request; in modern its failure has a reason, and want of memory is none.
bool send_a_request() {
    support::Exchange exchange;
    errno = 0;
    const int result = exchange.send();
    return !build_profile.tells_failures || (result == 0 ? errno == 0 : errno != 0 && errno != ENOMEM);
}

bool ask_for_a_list() {
    static UserUrlItemList list;
    errno = 0;
    GetUserUrlItemList(&list);
    return !build_profile.caps_lists || (list.count <= ROUTERDB_LIST_CAPACITY && errno != ENOMEM);
}

class Peers : public ::testing::Test {
protected:
    /// Leads a conversation with a client in a process of its own.
    void lead(Client client, const Conversation &conversation) {
        const FakeService service(conversation);
        const auto begin = std::chrono::steady_clock::now();
        support::Process process([client] {
            limit_memory();
            bool content = false;
            support::streams_of([&] { content = client(); });
            return content;
        });
        EXPECT_EQ(process.wait(), 0);
        const auto taken = std::chrono::steady_clock::now() - begin;
        EXPECT_LT(taken, std::chrono::seconds(15));  // ten, and time for a machine that is busy
        ++conversations_;
    }

    void lead_both(const Conversation &conversation) {
        lead(send_a_request, conversation);
        lead(ask_for_a_list, conversation);
    }

    void tell(const char *what) const { soak::figure(conversations_, what); }

    std::mt19937 random_ = soak::random_numbers();

private:
    long conversations_ = 0;
};

std::string header(std::int32_t size) {
    return support::words({1, 1, static_cast<std::uint32_t>(size)});
}

std::string whole_reply() {
    return header(static_cast<std::int32_t>(record_size)) + std::string(record_size, 'x');
}

/// Without a limit of their own lists have to fit their room, which is the callers' business then. A size that no
/// memory is there for fails in time.
bool fits_a_list(std::int32_t size) {
    constexpr auto room = static_cast<std::int32_t>(ROUTERDB_LIST_CAPACITY * record_size);
    return build_profile.caps_lists || size <= room || size == INT_MAX;
}

std::vector<std::string> bytes_of(const std::string &text) {
    std::vector<std::string> bytes;
    for (const char byte : text) {
        bytes.emplace_back(1, byte);
    }
    return bytes;
}

TEST_F(Peers, that_send_one_byte_at_a_time) {
    lead_both({bytes_of(whole_reply())});
    std::vector<std::string> pieces = bytes_of(std::string(record_size, 'x'));
    pieces.insert(pieces.begin(), header(static_cast<std::int32_t>(record_size)));
    lead_both({pieces});
    tell("replies one byte at a time");
}

TEST_F(Peers, that_hang_up_at_every_byte) {
    const std::string reply = whole_reply();
    for (std::size_t size = 0; size <= reply.size(); size += soak::among_ordinary_tests() ? 8 : 1) {
        lead_both({{reply.substr(0, size)}});
    }
    lead_both({{}, Hearing::none});
    lead_both({{reply}, Hearing::left_unread});
    tell("replies that break off, one at each byte");
}

TEST_F(Peers, that_announce_what_they_do_not_send) {
    for (const std::int32_t size :
         {1, 64 * 1024, 64 * 1024 + 1, 1024 * 1024, 1024 * 1024 + 1, INT_MAX, -1, -12, INT_MIN}) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        if (size == INT_MAX && !build_profile.checks_replies) {
            continue;  // without a limit all of that would be taken
        }
#endif
        lead(send_a_request, {{header(size)}});
        lead(send_a_request, {{header(size) + "some"}});
        if (fits_a_list(size)) {
            lead(ask_for_a_list, {{header(size) + "some"}});
        }
    }
    tell("replies that announce up to 2 GiB, or less than nothing, and send little");
}

/// Any bytes behind a header that announces anything.
std::string any_reply(std::mt19937 &random) {
    constexpr std::uint32_t longest = 2 * 1024 * 1024;
    std::uint32_t size = 0;
    do {
        size = soak::draw(random, soak::draw(random, 2) == 0 ? 3 * record_size : longest);
    } while (!fits_a_list(static_cast<std::int32_t>(size)));
    std::string reply = header(static_cast<std::int32_t>(size));
    const std::uint32_t sent = soak::draw(random, 2) == 0 ? size : soak::draw(random, size + 100);
    for (std::uint32_t i = 0; i < sent; ++i) {
        reply += static_cast<char>(random());
    }
    return reply;
}

TEST_F(Peers, that_send_anything) {
    const long times = soak::count(20, 3000);
    for (long n = 0; n < times && !HasFailure(); ++n) {
        const std::string reply = any_reply(random_);
        const std::size_t cut = soak::draw(random_, static_cast<unsigned>(reply.size()) + 1);
        lead_both({{reply.substr(0, cut), reply.substr(cut)}});
    }
    tell("replies of any bytes and sizes");
}

TEST_F(Peers, that_fall_silent) {
    const long times = soak::among_ordinary_tests() ? 0 : soak::count(1, 8);  // ten seconds each
    const std::string reply = whole_reply();
    for (long n = 0; n < times; ++n) {
        const std::size_t sent = soak::draw(random_, static_cast<unsigned>(reply.size()));
        lead(n % 2 == 0 ? send_a_request : ask_for_a_list, {{reply.substr(0, sent)}, Hearing::whole, Ending::silence});
    }
    tell("replies that stop at some byte and leave the connection open, ended within 15 seconds");
}

}  // namespace
