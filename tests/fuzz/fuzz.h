// What every target of this folder has: its input, a platform that only notes what the library does to it, and a way to
// say that something is wrong.
#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "support/profile.h"

namespace fuzz {

using support::build_profile;

/// What a target takes its bytes from. Behind their end there are zeros and empty texts.
class Input {
public:
    explicit Input(std::string_view bytes) : rest_(bytes) {}

    bool empty() const { return rest_.empty(); }

    /// A number below `limit`, out of one byte: seeds write it as a letter from 'a' on.
    unsigned take_number(unsigned limit);

    /// What stands before the next line break, which is taken too; at most `longest` bytes of it.
    std::string take_line(std::size_t longest = std::string::npos);

    /// All that is left.
    std::string take_rest();

private:
    std::string_view rest_;
};

// Three things make a target. The first one is what held for so many inputs, as the table of scripts/fuzz has it; it
// names the target's idea.
extern const char what[];

/// Called once, before the first input.
void prepare();

/// Gives an input to the library. Once it has returned nothing may be left: no descriptor, stream, converter,
/// connection or statement, but for what the exact profile promises to leave.
void run(Input input);

/// Ends the program, unless something is as it should be. `fault` says what is wrong.
void require(bool as_it_should_be, const char *fault);
void require(bool as_it_should_be, const std::string &fault);

// The platform. Nothing sleeps, no command is run, no process is signalled, the system log takes all and keeps nothing.
// A call that sleeps thousands of times is taken for one that never ends.

/// What has been printed on standard output by this input.
std::string printed();

/// Lets the next commands with any characters pass: without this they are made of letters, digits and a few signs.
void allow_foreign_commands();

/// Commands that this input had run, by a shell or without one.
const std::vector<std::string> &commands();

/// Called with each command and, where its output goes to a descriptor, with that; else with -1.
void on_command(std::function<void(const std::string &command, int output)> action);

/// What the SQL service answers on each connection of this input.
void answer_with(std::string_view reply);

/// The statements that were sent to it.
const std::vector<std::string> &statements();

// Databases, small ones.

/// Makes the main database, or another one, anew: with these tables only, as the schema has them, and these rows.
void make_database(const std::vector<std::string> &tables, const std::string &rows, const char *path = nullptr);

/// Ends statements of a connection that take too long, as it is done on those of the library: a view may have no end.
void limit_statements(sqlite3 *db);

/// A file with these bytes. A message ends the program where that is not possible.
void put_file(const char *path, std::string_view bytes);

/// Whether a text is JSON, as a strict parser takes it.
bool is_json(const std::string &text);

/// A block of exactly the size that callers give, so that a byte beyond it is noticed, with bytes that nobody wrote.
class Room {
public:
    explicit Room(std::size_t size);
    Room(const Room &) = delete;
    Room &operator=(const Room &) = delete;
    ~Room();

    char *text() { return bytes_; }
    template <typename Record>
    Record *as() {
        return reinterpret_cast<Record *>(bytes_);
    }

private:
    char *bytes_;
};

/// A text with its terminator in a block of exactly its size.
class Argument : public Room {
public:
    explicit Argument(const std::string &text);
};

}  // namespace fuzz
