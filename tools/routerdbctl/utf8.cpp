#include "utf8.h"

#include <algorithm>
#include <cwchar>

namespace ctl {

namespace {

/// The bytes that follow a first one; 4 for one that is none.
unsigned bytes_after(unsigned char first) {
    return first < 0x80 ? 0 : first < 0xc2 ? 4 : first < 0xe0 ? 1 : first < 0xf0 ? 2 : first < 0xf5 ? 3 : 4;
}

bool is_character(std::uint32_t number, unsigned following) {
    constexpr std::uint32_t least[] = {0, 0x80, 0x800, 0x10000};
    return number >= least[following] && number < 0x110000 && (number < 0xd800 || number > 0xdfff);
}

}  // namespace

std::uint32_t next_character(std::string_view &text) {
    const auto first = static_cast<unsigned char>(text[0]);
    const unsigned following = bytes_after(first);
    text.remove_prefix(1);
    if (following > 3 || following > text.size()) {
        return invalid_character;
    }
    std::uint32_t number = following == 0 ? first : first & (0x3fU >> following);
    for (unsigned i = 0; i < following; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xc0U) != 0x80) {
            return invalid_character;
        }
        number = number << 6U | (byte & 0x3fU);
    }
    if (!is_character(number, following)) {
        return invalid_character;
    }
    text.remove_prefix(following);
    return number;
}

bool is_utf8(std::string_view text) {
    while (!text.empty()) {
        if (next_character(text) == invalid_character) {
            return false;
        }
    }
    return true;
}

bool can_be_shown(std::uint32_t character) {
    return character != invalid_character && character >= 0x20 && (character < 0x7f || character >= 0xa0) &&
           (character < 0x80 || wcwidth(static_cast<wchar_t>(character)) >= 0);
}

unsigned width_of(std::uint32_t character) {
    if (!can_be_shown(character) || character < 0x80) {
        return 1;
    }
    return static_cast<unsigned>(std::max(wcwidth(static_cast<wchar_t>(character)), 0));
}

unsigned width_of(std::string_view text) {
    unsigned width = 0;
    while (!text.empty()) {
        width += width_of(next_character(text));
    }
    return width;
}

}  // namespace ctl
