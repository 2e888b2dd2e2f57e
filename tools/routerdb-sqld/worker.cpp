#include "worker.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdio>

#include "answer.h"
#include "channel.h"
#include "list_space.h"

namespace sqld {

namespace {

constexpr rlim_t mebibyte = rlim_t{1024} * 1024;

/// Descriptors that a request takes beside one for each row.
constexpr rlim_t spare_descriptors = 32;

void limit_memory([[maybe_unused]] const Settings &settings) {
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)  // which reserve more than any limit
    const rlim_t most = settings.memory_mib * mebibyte + list_space_size(longest_list(settings));
    const rlimit limit{most, most};
    setrlimit(RLIMIT_AS, &limit);
#endif
}

/// The most memory that this process has had, in KiB.
rlim_t resident_kib() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<rlim_t>(usage.ru_maxrss);
}

/// The first of the descriptors that have to be free when another request begins. The lowest free number is always
/// taken next: what is left open gets there last.
int first_needed(int any, const Settings &settings) {
    constexpr int taken_for_a_moment = 16;
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    const rlim_t least = static_cast<rlim_t>(any) + taken_for_a_moment;
    const rlim_t needed = settings.rows + spare_descriptors;
    const rlim_t first = limit.rlim_cur > least + needed ? limit.rlim_cur - needed : least;
    return static_cast<int>(std::min<rlim_t>(first, INT_MAX - taken_for_a_moment));
}

bool is_open(int descriptor) {
    return fcntl(descriptor, F_GETFD) >= 0;
}

/// How much a process may become before another takes its place.
class Growth {
public:
    Growth(int any, const Settings &settings)
        : descriptor_(first_needed(any, settings)),
          resident_(resident_kib() + settings.memory_mib * mebibyte / 2 / 1024) {}

    /// Some that are closed again may have left gaps.
    bool is_too_large() const {
        return is_open(descriptor_) || is_open(descriptor_ + 1) || is_open(descriptor_ + 2) ||
               resident_kib() > resident_;
    }

private:
    const int descriptor_;
    const rlim_t resident_;
};

/// One request under way.
struct Serving {
    int channel;
    bool waits;
};

void wait_for_client(void *context) {
    Serving &serving = *static_cast<Serving *>(context);
    serving.waits = true;
    say(serving.channel, {Report::waits, true});
}

}  // namespace

void work(int channel, unsigned requests, const Settings &settings) {
    static Request request;  // too large for the stack of a small target
    limit_memory(settings);
    const Growth growth(channel, settings);
    for (unsigned served = 1;; ++served) {
        const int connection = take_over(channel, request);
        if (connection < 0) {
            _exit(0);
        }
        Serving serving{channel, false};
        const Outcome outcome = answer(connection, request, settings, wait_for_client, &serving);
        close(connection);
        std::fflush(stdout);  // what the library prints
        const bool is_last = serving.waits || served == requests || growth.is_too_large();
        const bool said = say(channel, {outcome == Outcome::refused ? Report::refused : Report::answered, is_last});
        if (is_last || !said) {  // who is not heard would count as busy until its time is over
            _exit(0);
        }
    }
}

}  // namespace sqld
