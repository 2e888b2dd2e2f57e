// What the library that this program runs with says of itself, whichever the program was built with.
#pragma once

namespace tools {

/// Finds the note of librouterdb, whose text is the profile, a space, and the version.
/// @return null where no library that is loaded has one
const char *library_note();

}  // namespace tools
