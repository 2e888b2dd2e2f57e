// What the value of a field has to look like, beyond being a number or a text that fits.
#pragma once

#include <cstdint>
#include <string_view>

#include "sql.h"
#include "tables.h"

namespace ctl {

enum class Meaning : std::uint8_t { number, text, flag, mac, address, time, reference, control };

/// What its column says.
Meaning meaning_of(const Field &field);

/// A meaning in words, such as "a MAC address".
const char *name_of(Meaning meaning);

/// Checks a value for a field.
/// @return null if it fits, else what is wrong, such as "is no MAC address, such as 02:00:5e:10:00:01"
const char *fault_of(const Field &field, std::string_view value, Sql &words);

/// Reads a number of 32 bits, all of the text.
bool read_number(std::string_view text, std::int32_t &number);

/// Reads a time of day, "HH:MM".
bool is_time(std::string_view text);

}  // namespace ctl
