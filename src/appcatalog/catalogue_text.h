// What is read of the application catalogue.
#pragma once

#include <cstdint>

#include "core/row.h"
#include "text/text.h"

namespace routerdb {

/// All applications with their classes. The condition leaves out what no class's number would equal as the text that it
/// is where the applications of one class are asked for.
inline constexpr char every_application[] =
    "select Class_Id,Name,Name_En,Features from App_Info where Class_Id=''||Class_Id;";

/// Callers have never seen more bytes of a text.
inline constexpr std::uint8_t longest_catalogue_text = 199;

/// The text of a column. Valid until the next step.
inline std::string_view catalogue_text(const Row &row, int column) {
    return field_text(row.text(column), longest_catalogue_text);
}

}  // namespace routerdb
