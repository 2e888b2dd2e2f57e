// Texts as terminals and other programs take them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ctl {

/// Takes the first character off a text that is not empty.
/// @return its number; invalid_character for a byte that does not belong to one
inline constexpr std::uint32_t invalid_character = 0xffffffff;
std::uint32_t next_character(std::string_view &text);

bool is_utf8(std::string_view text);

/// How many columns of a terminal a character takes. One that cannot be shown takes one, as "?".
unsigned width_of(std::uint32_t character);
bool can_be_shown(std::uint32_t character);

/// How many columns of a terminal a text takes.
unsigned width_of(std::string_view text);

}  // namespace ctl
