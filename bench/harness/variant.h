// The ways to one result that are compared.
#pragma once

#include <array>
#include <string_view>

namespace bench {

enum class Variant : unsigned char { exact, modern, bare, sqlitecpp, soci, program, kept_sqlite, kept_sqlitecpp };

inline constexpr std::array<std::string_view, 8> variant_names{"exact", "modern",  "bare",         "SQLiteCpp",
                                                               "SOCI",  "program", "SQLite, kept", "SQLiteCpp, kept"};

inline std::string_view name_of(Variant variant) {
    return variant_names[static_cast<std::size_t>(variant)];
}

}  // namespace bench
