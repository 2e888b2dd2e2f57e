#include "core/text.h"

#include <charconv>
#include <cstdlib>
#include <cstring>

namespace routerdb {

std::string_view field_text(const char *field, std::size_t width) {
    return {field, strnlen(field, width)};
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
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof(digits), number);
    return append({digits, static_cast<std::size_t>(end.ptr - digits)});
}

bool Text::make_room(std::size_t length) {
    if (length <= capacity_) {
        return true;
    }
    const std::size_t capacity = length * 2;
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
