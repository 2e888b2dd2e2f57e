// The functions that read a row into a record, called alike.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "apinventory/tables.h"
#include "routerdb.h"
#include "support/named.h"

namespace readers {

/// What a call gave its caller.
struct Reading {
    int result;
    DevInfo record;
};

/// Whom a message reaches.
enum class Listener { standard_output, standard_error, system_log };

struct Reader : support::Named {
    tables::Table table = tables::devices;
    std::string key{};        // first column of the row that is read
    std::string other_key{};  // of one that is not; "" if all are read
    bool converts = false;    // SSIDs to GB2312

    /// Reads into a record whose bytes are odd.
    std::function<Reading()> read{};

    std::vector<std::string> calls_before{};  // what is called before the row is read
    bool opens = true;                        // a connection for the row
    std::string query{};
    unsigned first_sleep = 0;  // with 0 as the random number

    Listener told_when_unopenable{};
    Listener told_when_unpreparable{};
    std::string error_without_table{};

    int result = 0;
    int result_without_row = 0;
    int result_when_unopenable = 0;
    int result_when_unpreparable = 0;
};

std::vector<Reader> all();

/// How often a reader calls a function before its row counts, as in "sqlite3_open", while the table has one row.
std::size_t calls_before(const Reader &reader, const std::string &function);

}  // namespace readers
