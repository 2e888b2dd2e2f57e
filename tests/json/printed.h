// What a list prints: its bytes, and what an independent JSON parser reads in them.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace printed {

/// What `action` prints on standard output. Anything on standard error fails the test.
std::string by(const std::function<void()> &action);

/// What `action` prints, write by write: standard output has no buffer meanwhile, and each call of the stream is one.
std::vector<std::string> writes_of(const std::function<void()> &action);

/// Whether a text is one JSON value and nothing else.
bool is_json(const std::string &text);

/// Expects these bytes, and that a parser takes them.
void expect_complete(const std::string &actual, const std::string &expected);

/// Expects these bytes, and that no parser takes them.
void expect_unfinished(const std::string &actual, const std::string &expected);

using Texts = std::map<std::string, std::string>;

/// A list as parsed. Its values are all texts.
struct List {
    std::vector<Texts> elements;  // the closing one included
    Texts totals;                 // what stands beside the array
};

/// Parses a list of a name, such as "ItemList"; throws if the text is anything else.
List parse(const std::string &text, const std::string &name);

/// The values of a key in all elements but the closing one.
std::vector<std::string> values(const List &list, const std::string &key);

}  // namespace printed
