// The application catalogue of the tests, and the four lists that are printed from it.
#pragma once

#include <string>
#include <vector>

#include "support/named.h"

namespace catalogue {

inline constexpr char opening[] = "{\"ItemList\":{\"data\":[";
inline constexpr char no_items[] = "{\"ItemList\":{\"count\":\"0\"}}";

/// Runs statements on the catalogue.
void execute(const std::string &sql);

/// Class 3 with the applications A and B, class 7 with one, and class 9 with none.
void fill();

/// One of the lists.
struct List : support::Named {
    int (*call)(const char *argument);
    const char *argument;     // finds a row in the catalogue of the tests
    const char *table;        // that it reads
    const char *count_query;  // with that argument
    const char *row_query;
    const char *closing;  // from the closing element to the count

    void print() const { call(argument); }
};

const std::vector<List> &lists();

/// Gives the process a descriptor of that number.
void open_descriptor(int number);
bool is_open(int descriptor);

}  // namespace catalogue
