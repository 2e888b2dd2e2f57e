// Conversion between UTF-8 and GB2312.
#pragma once

#include <iconv.h>

#include <cstddef>

namespace routerdb {

/// Owns a converter: one for each text, or one for all texts of a record, as the build profile says.
class Converter {
public:
    Converter(const char *to, const char *from) : to_(to), from_(from) {}
    Converter(const Converter &) = delete;
    Converter &operator=(const Converter &) = delete;
    ~Converter() { close(); }

    /// @return false for a null handle, the only failure that is logged; (iconv_t)-1 fails when it is used
    bool open();

    /// Converts into the fixed room of a text, whatever size the caller's buffer has: callers rely on texts that their
    /// own sizes deny.
    bool convert(const char *in, std::size_t inlen, char *out);

    /// The text is done. Further ones may follow.
    void end_text();

private:
    bool usable() const;
    void close();

    const char *to_;
    const char *from_;
    iconv_t handle_ = nullptr;
};

/// Converters for the functions below.
struct Utf8ToGb2312 : Converter {
    Utf8ToGb2312() : Converter("gb2312", "utf-8") {}
};
struct Gb2312ToUtf8 : Converter {
    Gb2312ToUtf8() : Converter("utf-8", "gb2312") {}
};

/// Converts into `out`, which is set to zero over `outlen` bytes first.
/// @return 0; -1 leaves what was converted up to the error
[[nodiscard]] int convert(Utf8ToGb2312 &converter, const char *in, std::size_t inlen, char *out, std::size_t outlen);

/// Converts into `out`, which is set to zero over `outlen` bytes first.
/// @return 0; -1 leaves the input
[[nodiscard]] int convert(Gb2312ToUtf8 &converter, const char *in, std::size_t inlen, char *out, std::size_t outlen);

}  // namespace routerdb
