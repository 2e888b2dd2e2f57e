// A request as it travels.
#pragma once

#include <cstddef>
#include <cstdint>

namespace sqld {

/// Longest statement that is accepted, in bytes.
inline constexpr std::uint32_t longest_statement = 64 * 1024;

/// Header and text, and room to terminate it.
struct Request {
    std::uint32_t table_id;
    std::uint32_t operation;
    std::uint32_t length;
    char text[longest_statement + 1];
};

inline constexpr std::size_t header_size = offsetof(Request, text);

/// Longest request, in bytes.
inline constexpr std::size_t longest_request = header_size + longest_statement;

}  // namespace sqld
