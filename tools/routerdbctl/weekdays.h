// The days of a week as people type and read them: "mon-fri", "sat,sun", "daily", "none".
#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <string_view>

namespace ctl {

inline constexpr unsigned days_of_a_week = 7;

/// Reads a text into seven numbers, 0 or 1, Monday first.
/// @return whether it is one
bool read_days(std::string_view text, int (&days)[days_of_a_week]);

/// Writes seven numbers as a text; the numbers themselves if one is neither 0 nor 1.
void write_days(const int (&days)[days_of_a_week], char *text, std::size_t size);

/// Lets queries call days(weekday1, ..., weekday7).
void add_days_function(sqlite3 *db);

}  // namespace ctl
