// Members of a record by their offset.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace routerdb {

inline char *member(void *record, std::size_t offset) {
    return static_cast<char *>(record) + offset;
}

inline const char *member(const void *record, std::size_t offset) {
    return static_cast<const char *>(record) + offset;
}

inline std::int32_t number_at(const void *record, std::size_t offset) {
    std::int32_t number = 0;
    std::memcpy(&number, member(record, offset), sizeof(number));
    return number;
}

inline void put_number(void *record, std::size_t offset, std::int32_t number) {
    std::memcpy(member(record, offset), &number, sizeof(number));
}

}  // namespace routerdb
