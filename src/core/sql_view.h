// Statements on their way to SQLite.
#pragma once

#include "build_profile.h"
#include "text/text.h"

namespace routerdb {

/// A statement that stays where it is: a literal, or a text that was built.
class SqlView {
public:
    /// @param narrow  the same query with the columns alone that are read; null for none
    constexpr SqlView(const char *text, const char *narrow = nullptr) : text_(text), narrow_(narrow) {}
    SqlView(const Text &text) : text_(text.complete() ? text.c_str() : nullptr) {}

    /// A text of a caller's that is, letter by letter, one of the library's own.
    static constexpr SqlView recognised(const char *text) { return {text, text}; }
    constexpr bool is_own() const { return narrow_ == text_; }

    /// False for a text that memory ran out for. It is not to be run.
    constexpr bool complete() const { return text_ != nullptr; }

    constexpr const char *text() const { return text_; }

    /// Null for none, and in build profiles that do not name the columns they need.
    constexpr const char *narrow() const { return build_profile.names_needed_columns && !is_own() ? narrow_ : nullptr; }

private:
    const char *text_;
    const char *narrow_ = nullptr;  // the text itself for one that was recognised
};

}  // namespace routerdb
