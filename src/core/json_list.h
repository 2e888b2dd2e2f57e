// The frame of every JSON list. It is printed piece by piece through the standard output stream, where callers have
// already put their headers. Nothing is escaped.
#pragma once

#include <string_view>

namespace routerdb::json {

/// Prints a literal piece.
void print(const char *piece);

/// "{\"ItemList\":"
void open_object(const char *name);

/// "{\"count\":\"0\"}}", in place of a list
void print_no_list();

/// "{\"data\":[", or another name for the array
void open_list(const char *name = "data");

/// One element, member by member.
class Element {
public:
    Element() { json::print("{"); }

    void print(const char *key, const char *value);
    void print(const char *key, std::string_view value);
    void print(const char *key, long value);
    void print(const char *key, unsigned long value);

private:
    void open_member(const char *key);

    const char *separator_ = "";
};

/// "},": more elements follow, the closing one at least.
void close_element();

/// "}],\"count\":\"3\"": this was the closing element.
/// @param blank  stands before the brace in some lists
void close_list(int count, const char *blank = "");

/// ",\"sumcount\":\"3\"", behind the count.
void print_total(const char *key, int value);

/// "}}"
void close_object();

}  // namespace routerdb::json
