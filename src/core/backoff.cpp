#include "core/backoff.h"

#include "core/random.h"

namespace routerdb {

namespace {

constexpr useconds_t step = 5;

useconds_t first_delay(FirstDelay first) {
    switch (first) {
        case FirstDelay::microseconds_50:
            return 50;
        case FirstDelay::microseconds_150:
            return 150;
        case FirstDelay::random:
            break;
    }
    return 51 + random_below(100);
}

}  // namespace

Backoff::Backoff(FirstDelay first, useconds_t scale, Stream busy_stream)
    : delay_(first_delay(first)), scale_(scale), busy_stream_(busy_stream) {}

useconds_t Backoff::next_sleep() const {
    return (delay_ + step) * scale_;
}

void Backoff::sleep(sqlite3 *db) {
    usleep(next_sleep());
    delay_ += step;
    if (busy_stream_ != Stream::nowhere) {
        report({busy_stream_, Wording::busy}, {nullptr, 0, sqlite3_errmsg(db)});
    }
}

}  // namespace routerdb
