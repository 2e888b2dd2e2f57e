// Conversion between UTF-8 and GB2312.
#pragma once

#include <cstddef>

namespace routerdb {

/// Converts into `out`, which is set to zero over `outlen` bytes first.
/// @return 0; -1 leaves what was converted up to the error
[[nodiscard]] int convert_utf8_to_gb2312(const char *in, std::size_t inlen, char *out, std::size_t outlen);

/// Converts into `out`, which is set to zero over `outlen` bytes first.
/// @return 0; -1 leaves the input
[[nodiscard]] int convert_gb2312_to_utf8(const char *in, std::size_t inlen, char *out, std::size_t outlen);

}  // namespace routerdb
