// Texts of the application catalogue.
#pragma once

#include "core/row.h"
#include "core/text.h"

namespace routerdb {

/// The text of a column, of which callers have never seen more than 199 bytes. Valid until the next step.
inline std::string_view catalogue_text(const Row &row, int column) {
    constexpr std::size_t longest = 199;
    return field_text(row.text(column), longest);
}

}  // namespace routerdb
