// Texts of strangers inside JSON strings.
#pragma once

#include <string_view>

#include "text/text.h"

namespace routerdb::json {

/// Appends a value as RFC 8259 asks for. Bytes that are no UTF-8, such as the first half of a character that was cut,
/// become U+FFFD: one for as many of them as a character could have begun with.
void append_escaped(Text &text, std::string_view value);

}  // namespace routerdb::json
