// The engine of every JSON list. An element is formatted whole, by keys from a table, and then goes to the standard
// output stream, where callers have already put their headers, in the pieces that they know: one call for each, so that
// an unbuffered stream makes few writes. Threads that print do not mix inside an element.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/row.h"
#include "text/text.h"

namespace routerdb::json {

/// Where a value comes from.
enum class Source : std::uint8_t {
    text,    // a column
    number,  // a column as a number
    given,   // what the list hands over with each row
};

struct Value {
    Source source;
    std::uint8_t index;    // of the column, or among what is given
    std::uint8_t longest;  // bytes behind which the text of a column is cut
};

constexpr Value column_text(std::uint8_t column, std::uint8_t longest) {
    return {Source::text, column, longest};
}

constexpr Value column_number(std::uint8_t column) {
    return {Source::number, column, 0};
}

constexpr Value given(std::uint8_t index) {
    return {Source::given, index, 0};
}

/// What is special about a key.
enum Mark : std::uint8_t {
    not_in_closing = 1,
    begins_piece = 2,
    begins_closing_piece = 4,
};

struct Key {
    char name[31];
    Value value;
    std::uint8_t marks = 0;
};

/// The keys of a list, in the order in which they are printed.
class Keys {
public:
    template <std::size_t count>
    constexpr Keys(const Key (&keys)[count]) : begin_(keys), end_(keys + count) {}

    constexpr const Key *begin() const { return begin_; }
    constexpr const Key *end() const { return end_; }

    /// Bytes of a text that holds any element of these keys, what is given for it being numbers at most and no value
    /// longer for being escaped. Others move the text to the heap.
    constexpr std::size_t room() const {
        constexpr std::size_t longest_number = 20;
        std::size_t room = 64;  // for what stands around the members
        for (const Key *key = begin_; key != end_; ++key) {
            room += std::string_view(key->name).size() + std::string_view(R"("":"",)").size();
            room += key->value.source == Source::text ? key->value.longest : longest_number;
        }
        return room;
    }

private:
    const Key *begin_;
    const Key *end_;
};

/// Prints a literal piece.
void print(const char *piece);

/// What most lists begin with, and what stands in place of a list without elements.
inline constexpr char opening[] = "{\"data\":[";
inline constexpr char no_list[] = "{\"count\":\"0\"}}";

/// The elements of one list. An element that memory runs out for is not printed, nor is anything behind it: the list
/// stays unfinished, as it does when the database fails.
class List {
public:
    /// @param text  holds one element after the other
    List(Keys keys, Text &text) : keys_(keys), text_(text) {}

    /// Prints an element.
    void print(const Row &row, const std::string_view *given = nullptr);

    /// Prints an element all of whose values are given.
    void print(const std::string_view *given) { print(Row(nullptr), given); }

    /// Whether memory has sufficed so far.
    bool complete() const { return text_.complete(); }

    /// Elements so far.
    int count() const { return count_; }

    /// Prints the closing element, whose values are all empty, and a count in a piece of its own.
    /// @param blank  stands before the brace in some lists
    void close(int count, const char *blank = "");

    /// Prints the closing element, the count of elements and the end in one piece.
    void close_in_one_piece(const char *end);

private:
    void begin();
    void open_member(const Key &key, Mark begins);
    void append(const Value &value, const Row &row, const std::string_view *given);
    void append_closing_element();
    void append_count(int count, const char *end);
    void end_piece();
    bool write();

    Keys keys_;
    Text &text_;
    int count_ = 0;
};

}  // namespace routerdb::json
