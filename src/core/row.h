// The one reader of columns.
#pragma once

#include <sqlite3.h>

#include <cstddef>

namespace routerdb {

/// The current row of a statement. Columns count from 0; one that does not exist reads as NULL.
class Row {
public:
    explicit Row(sqlite3_stmt *statement) : statement_(statement) {}

    /// The text of a column, valid until the next step or read of it.
    /// @param null_text  stands for NULL
    const char *text(int column, const char *null_text = "") const;

    /// Whether the column holds a text that a zero byte does not cut short, or an integer in the range of int. SQLite
    /// compares others than these in ways of its own.
    bool is_text(int column) const;
    bool is_int(int column) const {
        int number = 0;
        return read_int(column, number);
    }

    /// The number that atoi reads in the column's text; 0 for NULL.
    int number(int column) const;

    /// The number that strtoul reads in the column's text; 0 for NULL.
    unsigned long unsigned_number(int column) const;

    /// Copies the text of a column into a field of `width` bytes, cut so that its terminator fits. What the field
    /// held behind the terminator stays.
    void copy(int column, char *field, std::size_t width) const;

private:
    /// @return false for anything but an integer in the range of int
    bool read_int(int column, int &number) const;

    sqlite3_stmt *statement_;
};

}  // namespace routerdb
