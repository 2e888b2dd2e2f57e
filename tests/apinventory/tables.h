// Rows of the tables of access points and groups, column by column.
#pragma once

#include <map>
#include <string>

#include "apinventory/places.h"
#include "routerdb.h"

namespace tables {

struct Table {
    const char *name;
    int columns;
    int places::Place::*column;
};

inline constexpr Table devices{"DevInfo", places::device_columns, &places::Place::device};
inline constexpr Table wlan_groups{"WlanGroupInfo", 122, &places::Place::group};
inline constexpr Table zero_config_groups{"WlanZeroCfgGroupInfo", 126, &places::Place::group};

/// Texts by column; a column that is not there is NULL.
using Row = std::map<int, std::string>;

/// A row whose first column is `key`, and each other one "c" and its number.
Row numbered_row(const Table &table, const std::string &key);

/// A row whose first column is `key`, and each other one the same text.
Row uniform_row(const Table &table, const std::string &key, const std::string &text);

void insert(const Table &table, const Row &row);

/// The row that a condition such as "Dev_Sn=7" holds for; throws unless there is exactly one.
Row row_where(const Table &table, const std::string &condition);

/// Where two rows differ first; empty if they do not.
std::string difference(const Row &expected, const Row &actual);

/// The record that a row reads as, texts cut at the width of their members.
DevInfo record_of(const Table &table, const Row &row);

/// Deletes the file of the main database and puts a directory in its place: it cannot be opened any more.
void make_unopenable();

/// Deletes a table, so that no statement on it can be prepared.
void drop(const Table &table);

}  // namespace tables
