// Every exported function is called very often: heap, descriptors and threads are as before.
#include <gtest/gtest.h>
#include <iconv.h>
#include <malloc.h>

#include <filesystem>
#include <set>
#include <sstream>

#include "core/helpers.h"
#include "dhcp/leases.h"
#include "soak/calls/calls.h"
#include "soak/soak.h"
#include "support/exported_names.h"
#include "support/process.h"
#include "support/profile.h"
#include "support/service.h"
#include "support/streams.h"

namespace {

using soak::Call;
using soak::Connections;

/// Starts the program anew without the C library's cache of free blocks, which counts them as used.
[[gnu::constructor]] void start_without_cache(int /*count*/, char **arguments, char ** /*environment*/) {
    if (std::getenv("GLIBC_TUNABLES") == nullptr) {
        setenv("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0", 1);
        execv("/proc/self/exe", arguments);
    }
}

/// What a process holds.
struct Holdings {
    long heap;
    long descriptors;
    long threads;
};

/// Blocks that stay are now and then a few bytes larger than what was asked for, also those of a connection that is
/// kept. One more with each call would be more than the hundredth part.
bool operator==(const Holdings &left, const Holdings &right) {
    const long tolerance = right.heap / 100 + (support::build_profile.keeps_connection ? 100 : 0);
    return std::labs(left.heap - right.heap) <= tolerance && left.descriptors == right.descriptors &&
           left.threads == right.threads;
}

std::ostream &operator<<(std::ostream &out, const Holdings &holdings) {
    return out << holdings.heap << " bytes, " << holdings.descriptors << " descriptors, " << holdings.threads
               << " threads";
}

Holdings now() {
    const struct mallinfo2 heap = mallinfo2();
    const auto threads = std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
    return {static_cast<long>(heap.uordblks + heap.hblkhd), support::open_descriptors(), threads};
}

Holdings operator-(const Holdings &left, const Holdings &right) {
    return {left.heap - right.heap, left.descriptors - right.descriptors, left.threads - right.threads};
}

/// What is held after so many times of something, beside what was held after some before.
Holdings left_by(long times, const std::function<void()> &action) {
    for (int n = 0; n < 3; ++n) {
        action();
        now();
    }
    const Holdings before = now();
    for (long n = 0; n < times; ++n) {
        action();
    }
    return now() - before;
}

sqlite3 *connection_to(const char *path) {
    sqlite3 *db = nullptr;
    sqlite3_open(path, &db);
    return db;
}

class NothingIsLeft : public ::testing::Test {
protected:
    NothingIsLeft() { soak::make_router(); }
};

/// What is promised to stay of so many calls, measured where the same is done by hand.
Holdings promised(const soak::Left &left, long times) {
    Holdings sum{};
    const auto add = [&](long each, void (*leave)()) {
        const Holdings some = each > 0 ? left_by(each * times, leave) : Holdings{};
        sum = {sum.heap + some.heap, sum.descriptors + some.descriptors, sum.threads + some.threads};
    };
    if (!support::build_profile.closes_its_own) {
        add(left.streams, [] { [[maybe_unused]] const FILE *const stream = std::fopen(leases::text_file, "r"); });
        add(left.converters, [] { [[maybe_unused]] const iconv_t converter = iconv_open("GB2312", "UTF-8"); });
        add(left.connections, [] { connection_to(support::main_database); });
    }
    return sum;
}

/// Makes a call often, in a process of its own.
/// @return how often it was made
long expect_nothing_left(const Call &call, bool without_databases) {
    const long often = soak::count(5, without_databases ? 100 : 500);
    const long times = call.pace == soak::Pace::slow ? often / 20 + 1 : often;
    const Connections callers{connection_to(support::main_database), connection_to(support::catalogue_database)};
    if (without_databases) {
        soak::take_databases_away();
    }
    support::Process process([&] {
        Holdings left{};
        support::streams_of([&] {
            left = left_by(times, [&] {
                open_standard_input();
                call.make(callers);
            });
        });
        const Holdings expected = promised(without_databases ? call.left_without_databases : call.left, times);
        EXPECT_EQ(left, expected) << call.name;
        return left == expected;
    });
    EXPECT_EQ(process.wait(), 0) << call.name;
    sqlite3_close(callers.main);
    sqlite3_close(callers.catalogue);
    return times;
}

void call_all(bool without_databases, const char *what) {
    const support::Service service;
    long times = 0;
    for (const Call &call : soak::calls()) {
        soak::put_router_back();
        times += expect_nothing_left(call, without_databases);
    }
    soak::figure(times, what);
}

TEST_F(NothingIsLeft, of_any_call) {
    call_all(false, "calls of all exported functions, slow ones less often; heap, descriptors and threads as promised");
}

TEST_F(NothingIsLeft, of_any_call_without_databases) {
    call_all(true, "of them without databases; heap, descriptors and threads as promised");
}

TEST(Calls, are_made_of_every_exported_function) {
    std::set<std::string> met(std::begin(soak::exported_data), std::end(soak::exported_data));
    met.insert("lock_reg");  // between taking the lock and giving it back
    for (const Call &call : soak::calls()) {
        std::istringstream words(call.name);
        for (std::string word; words >> word;) {
            met.insert(word);
        }
    }
    for (const std::string &name : support::exported_names("\\w+")) {
        EXPECT_EQ(met.count(name), 1U) << name;
    }
}

}  // namespace
