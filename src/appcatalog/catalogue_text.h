// Texts of the application catalogue.
#pragma once

#include <cstdint>

#include "core/row.h"
#include "text/text.h"

namespace routerdb {

/// Callers have never seen more bytes of a text.
inline constexpr std::uint8_t longest_catalogue_text = 199;

/// The text of a column. Valid until the next step.
inline std::string_view catalogue_text(const Row &row, int column) {
    return field_text(row.text(column), longest_catalogue_text);
}

}  // namespace routerdb
