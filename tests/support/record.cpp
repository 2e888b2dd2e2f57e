#include "support/record.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace support {

Record &Record::text(std::size_t offset, std::string_view value) {
    return unterminated(offset, std::string(value) + '\0');
}

Record &Record::unterminated(std::size_t offset, std::string_view value) {
    if (offset + value.size() > bytes_.size()) {
        throw std::out_of_range("beyond the record");
    }
    bytes_.replace(offset, value.size(), value);
    return *this;
}

Record &Record::numbers(std::size_t offset, std::initializer_list<std::int32_t> values) {
    for (const std::int32_t value : values) {
        unterminated(offset, words({static_cast<std::uint32_t>(value)}));
        offset += sizeof(value);
    }
    return *this;
}

std::string words(std::initializer_list<std::uint32_t> values) {
    std::string bytes;
    for (const std::uint32_t value : values) {
        bytes.append(reinterpret_cast<const char *>(&value), sizeof(value));
    }
    return bytes;
}

std::uint32_t word(std::string_view bytes, std::size_t index) {
    std::uint32_t value = 0;
    std::memcpy(&value, bytes.substr(index * sizeof(value), sizeof(value)).data(), sizeof(value));
    return value;
}

std::string list_of(std::string_view records, std::uint32_t count, std::size_t size) {
    std::string list = words({count}) + std::string(records);
    list.resize(std::max(size, list.size()));
    return list;
}

std::string difference(std::string_view expected, std::string_view actual) {
    if (expected.size() != actual.size()) {
        return std::to_string(actual.size()) + " bytes instead of " + std::to_string(expected.size());
    }
    const auto at = std::mismatch(expected.begin(), expected.end(), actual.begin());
    if (at.first == expected.end()) {
        return {};
    }
    const auto number = [](char byte) { return std::to_string(static_cast<unsigned char>(byte)); };
    return "byte " + std::to_string(at.first - expected.begin()) + " is " + number(*at.second) + " instead of " +
           number(*at.first);
}

}  // namespace support
