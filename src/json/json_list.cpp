#include "json/json_list.h"

#include <cstdio>
#include <cstring>

#include "build_profile.h"
#include "core/call_errno.h"
#include "json/escape.h"

namespace routerdb::json {

namespace {

/// The one way of a text into JSON. In the exact profile it goes as it is stored: nothing is escaped.
void append_value(Text &element, std::string_view value) {
    if (build_profile.escapes_json) {
        append_escaped(element, value);
    } else {
        element.append(value);
    }
}

}  // namespace

void print(const char *piece) {
    const CallErrno untold;  // what becomes of the output is not looked at
    std::fputs(piece, stdout);
}

void List::print(const Row &row, const std::string_view *given) {
    begin();
    for (const Key &key : keys_) {
        open_member(key, begins_piece);
        append(key.value, row, given);
        text_.append("\"");
    }
    text_.append("},");
    count_ += write() ? 1 : 0;
}

void List::close(int count, const char *blank) {
    append_closing_element();
    text_.append(blank);
    end_piece();
    append_count(count, "}}");
    write();
}

void List::close_in_one_piece(const char *end) {
    append_closing_element();
    append_count(count_, end);
    write();
}

void List::begin() {
    text_.clear();
    text_.append("{");
}

void List::open_member(const Key &key, Mark begins) {
    if (text_.length() > 1) {
        text_.append(",");
    }
    if ((key.marks & begins) != 0) {
        end_piece();
    }
    text_.append("\"").append(key.name).append("\":\"");
}

void List::append(const Value &value, const Row &row, const std::string_view *given) {
    switch (value.source) {
        case Source::text:
            return append_value(text_, field_text(row.text(value.index), value.longest));
        case Source::number:
            text_.append(long{row.number(value.index)});
            return;
        case Source::given:
            return append_value(text_, given[value.index]);
    }
}

void List::append_closing_element() {
    begin();
    for (const Key &key : keys_) {
        if ((key.marks & not_in_closing) == 0) {
            open_member(key, begins_closing_piece);
            text_.append("\"");
        }
    }
}

void List::append_count(int count, const char *end) {
    text_.append("}],\"count\":\"").append(long{count}).append("\"").append(end);
}

/// A piece ends with a zero byte, which no value holds.
void List::end_piece() {
    constexpr char end = '\0';
    text_.append(std::string_view(&end, 1));
}

/// @return false without memory for the text
bool List::write() {
    if (!text_.complete()) {
        return false;
    }
    const char *const end = text_.c_str() + text_.length();
    flockfile(stdout);
    for (const char *piece = text_.c_str(); piece < end; piece += std::strlen(piece) + 1) {
        json::print(piece);
    }
    funlockfile(stdout);
    return true;
}

}  // namespace routerdb::json
