#include "text/number.h"

#include <cctype>
#include <cerrno>
#include <cstdlib>

#include "build_profile.h"

namespace routerdb {

namespace {

bool is_digit(char character) {
    return character >= '0' && character <= '9';
}

}  // namespace

int to_number(const char *text) {
    [[maybe_unused]] const int before = errno;
    const int number = std::atoi(text);  // NOLINT(cert-err34-c): a text that is no number counts as 0
    if (build_profile.tells_failures) {
        errno = before;
    }
    return number;
}

int number_in(std::string_view text) {
    // atoi wants a terminator: it gets a copy without the blanks and zeros of which there may be any number. One more
    // digit than a number has leaves it as far beyond the range of int as all of them.
    char copy[24];
    std::size_t length = 0;
    const auto take_first = [&] {
        copy[length++] = text.front();
        text.remove_prefix(1);
    };
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())) != 0) {
        text.remove_prefix(1);
    }
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        take_first();
    }
    while (text.size() > 1 && text[0] == '0' && is_digit(text[1])) {
        text.remove_prefix(1);
    }
    while (!text.empty() && length < sizeof(copy) - 1) {
        take_first();
    }
    copy[length] = '\0';
    return to_number(copy);
}

}  // namespace routerdb
