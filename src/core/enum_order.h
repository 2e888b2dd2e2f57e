// Arrays that an enum numbers.
#pragma once

#include <cstddef>

namespace routerdb {

/// Whether each row of an array names the enumerator that is its number, so that the array may be read by it.
template <typename Row, typename Enum, std::size_t count>
constexpr bool follows_enum(const Row (&rows)[count], Enum Row::*enumerator) {
    for (std::size_t row = 0; row < count; ++row) {
        if (static_cast<std::size_t>(rows[row].*enumerator) != row) {
            return false;
        }
    }
    return true;
}

}  // namespace routerdb
