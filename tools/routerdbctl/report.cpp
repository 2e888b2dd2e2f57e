#include "report.h"

#include <cstdio>
#include <cstring>
#include <string_view>

#include "utf8.h"

namespace ctl {

namespace {

/// Replaces what no terminal should get, such as bytes of a name in a database that somebody else has made.
/// @return the length
std::size_t make_fit_to_be_shown(char *text) {
    std::string_view rest(text);
    char *end = text;
    while (!rest.empty()) {
        const char *const start = rest.data();
        const bool is_shown = can_be_shown(next_character(rest));
        const auto size = static_cast<std::size_t>(rest.data() - start);
        if (is_shown) {
            std::memmove(end, start, size);
            end += size;
        } else {
            *end++ = '?';
        }
    }
    *end = '\0';
    return static_cast<std::size_t>(end - text);
}

}  // namespace

void Report::begin(const char *advice, const char *format, ...) {
    start(Health::bad, advice);
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(found_, sizeof(found_), format, arguments);
    va_end(arguments);
    is_pending_ = true;
}

void Report::ok(const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    add(Health::ok, "", format, arguments);
    va_end(arguments);
}

void Report::warn(const char *advice, const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    add(Health::doubtful, advice, format, arguments);
    va_end(arguments);
}

void Report::fail(const char *advice, const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    add(Health::bad, advice, format, arguments);
    va_end(arguments);
}

void Report::start(Health health, const char *advice) {
    health_ = health;
    is_pending_ = false;
    is_full_ = false;
    length_ = 0;
    found_[0] = '\0';
    std::snprintf(advice_, sizeof(advice_), "%s", advice);
}

void Report::add(Health health, const char *advice, const char *format, std::va_list arguments) {
    constexpr char more[] = "and more";
    if (is_pending_ || health > health_) {
        start(health, advice);
    }
    if (health < health_ || is_full_) {
        return;
    }
    char text[sizeof(found_) / 2];
    std::vsnprintf(text, sizeof(text), format, arguments);
    const std::size_t added = make_fit_to_be_shown(text);
    const char *const before = length_ == 0 ? "" : "; ";
    is_full_ = length_ + added + 2 * sizeof("; ") + sizeof(more) > sizeof(found_);
    length_ += static_cast<std::size_t>(
        std::snprintf(found_ + length_, sizeof(found_) - length_, "%s%s", before, is_full_ ? more : text));
}

}  // namespace ctl
