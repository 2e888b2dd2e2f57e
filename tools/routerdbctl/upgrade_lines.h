// What an upgrade changes, as people read it: a line for each difference.
#pragma once

#include "sql.h"

namespace ctl {

class UpgradeLines {
public:
    /// @param name  of the database, which each line begins with
    explicit UpgradeLines(const char *name) : name_(name) {}

    void add(const char *format, ...);  // as Sql::add()

    /// The same of something that will be lost.
    template <typename... Values>
    void lose(const char *format, Values... values) {
        add(format, values...);
        loses_ = true;
    }

    unsigned count() const { return count_; }
    bool loses() const { return loses_; }
    const char *text() const { return text_.text(); }

    /// Prints them, as a terminal may be shown them.
    void print() const;

private:
    const char *name_;
    Sql text_;
    unsigned count_ = 0;
    bool loses_ = false;
};

}  // namespace ctl
