// Bytes at places given by number, and how two blocks of bytes differ.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace support {

/// A record under construction, written at literal offsets instead of through a structure.
class Record {
public:
    explicit Record(std::size_t size, char fill = '\0') : bytes_(size, fill) {}

    /// A text with its terminator.
    Record &text(std::size_t offset, std::string_view value);

    /// A text that fills its field, without a terminator.
    Record &unterminated(std::size_t offset, std::string_view value);

    Record &numbers(std::size_t offset, std::initializer_list<std::int32_t> values);
    Record &number(std::size_t offset, std::int32_t value) { return numbers(offset, {value}); }

    const void *data() const { return bytes_.data(); }
    const std::string &bytes() const { return bytes_; }

private:
    std::string bytes_;
};

/// Words as they travel, in host byte order.
std::string words(std::initializer_list<std::uint32_t> values);

/// Word number `index` of a block.
std::uint32_t word(std::string_view bytes, std::size_t index);

/// A count and the records behind it, as a list buffer of `size` bytes holds them, zero behind.
std::string list_of(std::string_view records, std::uint32_t count, std::size_t size);

/// Where two blocks differ first; empty if they do not.
std::string difference(std::string_view expected, std::string_view actual);

}  // namespace support
