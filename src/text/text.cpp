#include "text/text.h"

#include <cstdlib>
#include <cstring>

#include "build_profile.h"

namespace routerdb {

std::string_view field_text(const char *field, std::size_t width) {
    return {field, strnlen(field, width)};
}

void copy_cut(std::string_view text, char *field, std::size_t width) {
    const std::size_t size = text.size() < width ? text.size() : width - 1;
    std::memcpy(field, text.data(), size);
    field[size] = '\0';
}

Text::~Text() {
    if (data_ != buffer_) {
        std::free(data_);
    }
}

Text &Text::append(std::string_view piece) {
    if (!out_of_memory_ && make_room(length_ + piece.size() + 1)) {
        std::memcpy(data_ + length_, piece.data(), piece.size());
        length_ += piece.size();
        data_[length_] = '\0';
    }
    return *this;
}

Text &Text::append(const char *piece) {
    return append(std::string_view(piece));
}

Text &Text::append(long number) {
    const unsigned long magnitude =
        number < 0 ? 0 - static_cast<unsigned long>(number) : static_cast<unsigned long>(number);
    return append(number < 0 ? "-" : "").append(magnitude);
}

// std::to_chars would bring its table of digits along.
Text &Text::append(unsigned long number) {
    char digits[3 * sizeof(number)];
    char *const end = digits + sizeof(digits);
    char *first = end;
    do {
        *--first = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number != 0);
    return append({first, static_cast<std::size_t>(end - first)});
}

Text &Text::append_quoted(std::string_view value, Quotes quotes) {
    append("'");
    if (quotes == Quotes::doubled || build_profile.doubles_quotes) {
        append_doubled(value, '\'');
    } else {
        append(value);
    }
    return append("'");
}

Text &Text::append_table(const char *name) {
    return build_profile.checks_conditions ? append("\"").append_doubled(name, '"').append("\"") : append(name);
}

Text &Text::append_doubled(std::string_view value, char quote) {
    while (const void *found = std::memchr(value.data(), quote, value.size())) {
        const std::size_t size = static_cast<std::size_t>(static_cast<const char *>(found) - value.data()) + 1;
        append({value.data(), size}).append({&quote, 1});
        value.remove_prefix(size);
    }
    return append(value);
}

bool Text::make_room(std::size_t size) {
    if (size <= capacity_) {
        return true;
    }
    const std::size_t capacity = size > 2 * capacity_ ? size : 2 * capacity_;
    const bool on_stack = data_ == buffer_;
    char *data = static_cast<char *>(on_stack ? std::malloc(capacity) : std::realloc(data_, capacity));
    if (data == nullptr) {
        out_of_memory_ = true;
        return false;
    }
    if (on_stack) {
        std::memcpy(data, buffer_, length_ + 1);
    }
    data_ = data;
    capacity_ = capacity;
    return true;
}

}  // namespace routerdb
