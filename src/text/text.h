// Texts that grow and are never cut.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace routerdb {

/// Reads a null pointer as the empty text.
constexpr const char *or_empty(const char *text) {
    return text != nullptr ? text : "";
}

/// The text in a field of a record, terminated or not.
std::string_view field_text(const char *field, std::size_t width);

/// The text in a field of a record, whose width the type tells.
template <std::size_t width>
std::string_view field_text(const char (&field)[width]) {
    return field_text(field, width);
}

/// Copies a text into a field of `width` bytes, cut so that its terminator fits. What the field held behind the
/// terminator stays.
void copy_cut(std::string_view text, char *field, std::size_t width);

/// What becomes of the single quotes inside a value, unless the build profile doubles all of them.
enum class Quotes : std::uint8_t {
    as_given,  // they stay: the caller may have doubled them
    doubled    // SQL reads the value back as it is
};

/// A text under construction. It starts in a buffer on the stack and moves to the heap when it outgrows that. Where
/// memory runs out it remembers so: whoever uses the text asks complete() first.
class Text {
public:
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;

    Text &append(std::string_view piece);
    Text &append(const char *piece);  // a call with a literal takes a third of the code that a view of it takes
    Text &append(long number);
    Text &append(unsigned long number);

    /// Appends a value between single quotes: the one way for values to get into SQL.
    Text &append_quoted(std::string_view value, Quotes quotes = Quotes::as_given);
    Text &append_quoted(long number) { return append("'").append(number).append("'"); }
    Text &append_quoted(unsigned long number) { return append("'").append(number).append("'"); }

    /// Appends the name of a table: where the build profile checks what callers hand over, as a name that is nothing
    /// else.
    Text &append_table(const char *name);

    /// Begins anew in the same room. A text that memory ran out for stays so.
    void clear() {
        length_ = 0;
        *data_ = '\0';
    }

    /// Takes heap for a text of so many bytes, its terminator included, if the buffer does not have them.
    /// @return false without memory
    bool reserve(std::size_t size) { return make_room(size); }

    [[nodiscard]] bool complete() const { return !out_of_memory_; }
    const char *c_str() const { return data_; }
    std::size_t length() const { return length_; }
    std::string_view view() const { return {data_, length_}; }

protected:
    Text(char *buffer, std::size_t capacity) : data_(buffer), buffer_(buffer), capacity_(capacity) { *data_ = '\0'; }
    ~Text();

private:
    Text &append_doubled(std::string_view value, char quote);
    bool make_room(std::size_t size);

    char *data_;
    char *buffer_;
    std::size_t capacity_;
    std::size_t length_ = 0;
    bool out_of_memory_ = false;
};

/// A text that needs no heap up to `size` - 1 bytes.
template <std::size_t size>
class StackText : public Text {
public:
    StackText() : Text(reinterpret_cast<char *>(buffer_), size) {}

private:
    unsigned char buffer_[size];  // behind link-time optimisation GCC does not guard functions with arrays of char
};

/// A statement: 2560 bytes hold most of them.
using SqlText = StackText<2560>;

}  // namespace routerdb
