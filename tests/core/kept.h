// Readings on the connection that is kept, and what is open for them.
#pragma once

#include <string>
#include <vector>

namespace kept {

/// The access point that tests read. Its name tells which file it was read from.
inline constexpr unsigned long known_device = 7;

/// A database with the access point of this name.
void name_device(const std::string &name);

/// The name, read through the library; "" if it is not there.
std::string read_name();

/// Reads as often as it takes until a connection is kept.
void keep_connection();

/// How often a connection was opened for reading the name once.
std::size_t opened_by_reading();

/// Descriptors that this process has open for reading the main database alone.
std::vector<int> descriptors();

/// The one that is kept. Fails the test if there is none, or another one.
int descriptor();

}  // namespace kept
