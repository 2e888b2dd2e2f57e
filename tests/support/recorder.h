// What the library asked of the platform and of SQLite, and what it got.
//
// A test program defines usleep, system, syslog, sqlite3_open and so on itself, in front of the real ones. While a
// Recorder lives, each such call made on its thread is noted as one line, and a planned answer replaces the real one.
#pragma once

#include <climits>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace support {

class Recorder {
public:
    Recorder();
    Recorder(const Recorder &) = delete;
    Recorder &operator=(const Recorder &) = delete;
    ~Recorder();

    /// Answers that the next calls of `function` give without being made, one each; after them the real one answers.
    /// sqlite3_close closes all the same.
    /// For "sqlite3_..." and "usleep" the number is the result code, for "socket", "connect", "send", "recv", "open",
    /// "fcntl" and "syncfs" it is the errno that goes with -1.
    void answer(std::string_view function, std::initializer_list<int> results);

    /// As an answer: that call is made.
    static constexpr int really = INT_MIN;

    /// Shows `watcher` each line as it is noted, before the call is made. Nothing that the watcher calls is noted.
    void watch(std::function<void(const std::string &line)> watcher);

    /// Lets connections be opened to be kept for later calls, which otherwise go without while a recorder lives: each
    /// call then does what the first one of a program does, however many come after it.
    void let_connections_be_kept();

    /// Commands for the shell, and programs started without one, are noted and not run.
    void keep_commands_from_running();

    /// All calls, as "usleep 155", "sqlite3_open /etc/...", "system cp -f ...", "spawn capwapmanage ...", "syslog 3
    /// cannot open ...". A random number is a "draw", however it is drawn; its planned answer is what rand() draws, 0
    /// to RAND_MAX. Of open, fcntl and close only those on the database lock file are noted, as "open lock file",
    /// "lock", "unlock", "close lock file", and close(0) as "close 0"; of unlink those on a journal of the main
    /// database.
    const std::vector<std::string> &calls() const;

    /// The calls that start with one of the words, such as {"usleep", "system"}.
    std::vector<std::string> calls(std::initializer_list<std::string_view> words) const;

    /// The lengths of all sleeps.
    std::vector<unsigned> sleeps() const;
};

}  // namespace support
