// What a behaviour rule is about, in words.
#pragma once

#include <cstddef>

#include "appcatalog/catalogue.h"

namespace routerdb {

/// A text that pieces are appended to, cut where its field ends.
struct NameField {
    char *text;
    std::size_t width;  // SIZE_MAX when the caller vouches for the room
};

/// Appends the names of the classes and applications in `info`, such as "3:f1?f2AND7:f9", and their English names.
void append_behavior_names(Catalogue &catalogue, const char *info, NameField names, NameField names_en);

}  // namespace routerdb
