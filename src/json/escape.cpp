#include "json/escape.h"

#include <cstddef>
#include <cstring>

namespace routerdb::json {

namespace {

constexpr char replacement[] = "\xef\xbf\xbd";  // U+FFFD

unsigned byte_at(std::string_view text, std::size_t place) {
    return place < text.size() ? static_cast<unsigned char>(text[place]) : 0U;
}

/// Whether a byte is an ASCII character that stands for itself.
bool is_plain(unsigned byte) {
    return byte >= ' ' && byte < 0x80 && byte != '"' && byte != '\\';
}

/// The bytes of a character that begins with `lead`; 0 where none does.
std::size_t character_size(unsigned lead) {
    if (lead < 0xc2 || lead > 0xf4) {  // 0xc0 and 0xc1 would begin what is ASCII
        return 0;
    }
    return lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
}

/// How many bytes of the character that a text begins with, which is not ASCII, are there.
/// @param size  that it should have
std::size_t bytes_there(std::string_view text, std::size_t size) {
    const unsigned lead = byte_at(text, 0);
    // The second byte tells what a shorter form would do for, surrogates, and what lies behind the last character.
    unsigned lowest = lead == 0xe0 ? 0xa0 : lead == 0xf0 ? 0x90 : 0x80;
    unsigned highest = lead == 0xed ? 0x9f : lead == 0xf4 ? 0x8f : 0xbf;
    std::size_t there = 1;
    while (there < size && byte_at(text, there) >= lowest && byte_at(text, there) <= highest) {
        ++there;
        lowest = 0x80;
        highest = 0xbf;
    }
    return there;
}

/// How many bytes a text begins with that go out as they are: plain ones, and characters that are there as a whole.
std::size_t run_as_it_is(std::string_view text) {
    std::size_t size = 0;
    while (true) {
        const unsigned byte = byte_at(text, size);
        if (is_plain(byte)) {
            ++size;
            continue;
        }
        const std::size_t wide = character_size(byte);
        if (wide == 0 || bytes_there({text.data() + size, text.size() - size}, wide) != wide) {
            return size;
        }
        size += wide;
    }
}

void append_escape(Text &text, char character) {
    constexpr char named[] = {'"', '\\', '\b', '\f', '\n', '\r', '\t'};
    constexpr char names[] = {'"', '\\', 'b', 'f', 'n', 'r', 't'};
    constexpr char digits[] = "0123456789abcdef";
    if (const void *const found = std::memchr(named, character, sizeof(named))) {
        const char escape[] = {'\\', names[static_cast<const char *>(found) - named]};
        text.append(std::string_view(escape, sizeof(escape)));
    } else {
        const char escape[] = {'\\', 'u', '0', '0', digits[character >> 4], digits[character & 15]};
        text.append(std::string_view(escape, sizeof(escape)));
    }
}

/// Appends something in the place of what a text begins with.
/// @return in the place of how many bytes
std::size_t append_substitute(Text &text, std::string_view value) {
    const unsigned byte = byte_at(value, 0);
    if (byte < 0x80) {
        append_escape(text, value[0]);
        return 1;
    }
    text.append(replacement);
    return bytes_there(value, character_size(byte));
}

}  // namespace

void append_escaped(Text &text, std::string_view value) {
    while (!value.empty()) {
        const std::size_t run = run_as_it_is(value);
        text.append({value.data(), run});
        value.remove_prefix(run);
        if (!value.empty()) {
            value.remove_prefix(append_substitute(text, value));
        }
    }
}

}  // namespace routerdb::json
