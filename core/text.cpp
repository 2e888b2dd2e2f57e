#include "core/text.h"

#include <charconv>
#include <cstdlib>
#include <cstring>

namespace routerdb {

namespace {

template <typename Number>
std::string_view in_digits(Number number, char (&digits)[24]) {
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof(digits), number);
    return {digits, static_cast<std::size_t>(end.ptr - digits)};
}

}  // namespace

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

Text &Text::append(long number) {
    char digits[24];
    return append(in_digits(number, digits));
}

Text &Text::append(unsigned long number) {
    char digits[24];
    return append(in_digits(number, digits));
}

Text &Text::append_escaped(std::string_view value) {
    for (std::size_t quote = value.find('\''); quote != std::string_view::npos; quote = value.find('\'')) {
        append({value.data(), quote + 1}).append("'");
        value.remove_prefix(quote + 1);
    }
    return append(value);
}

bool Text::make_room(std::size_t size) {
    if (size <= capacity_) {
        return true;
    }
    const std::size_t capacity = size > 2 * capacity_ ? size : 2 * capacity_;
    const bool on_stack = data_ == buffer_;
    char *data = static_cast<char *>(std::realloc(on_stack ? nullptr : data_, capacity));
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
