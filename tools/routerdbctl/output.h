// What a command prints: the rows of a query, in the format that was asked for.
#pragma once

#include "database.h"
#include "options.h"

namespace ctl {

/// How to begin and end what stands out, where colours are wanted.
enum class Look : unsigned char { plain, heading, good, doubtful, bad };

/// Decides, once, whether colours are wanted on standard output.
void choose_colors(Color color);

const char *begin_look(Look look);
const char *end_look();

/// Prints rows as a table, as JSON, as a line of JSON each, or as values between tabs.
/// @return done, or what the query failed with
Status print_rows(const Invocation &invocation, Query &query);

/// Prints one value as JSON has it. Bytes that are no text become {"text": "..."} or {"blob": "..."} in hexadecimal.
void print_json(const Query &query, int column);

/// Prints a text as JSON has it, with its quotes.
void print_json(std::string_view text);

/// Prints a text with "?" in place of what a terminal should not get.
void print_shown(std::string_view text);

/// Prints a text as a shell takes it, in one piece.
void print_quoted(std::string_view text);

}  // namespace ctl
