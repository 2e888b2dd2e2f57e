// Records and rows of every kind, made for the places of a table.
#pragma once

#include "rules/golden/golden.h"

namespace golden {

/// A caller's record and the requests that add and modify make of it.
struct Sample : support::Named {
    std::string record;
    std::vector<std::string> add;
    std::vector<std::string> modify;
};

std::vector<Sample> samples(const Table &table);

/// Statements that leave one row in a table, and the record that the builder makes of it.
struct Built : support::Named {
    std::string rows;
    std::string record;
    std::string leases{};     // content of the lease file, which is not made without
    std::string catalogue{};  // statements for the catalogue database

    void prepare() const;
};

/// Every way in which a row becomes a record.
std::vector<Built> built(const Table &table);

/// A row and its table.
struct Row : support::Named {
    Table table;
    Built built;
};

/// Those of all tables.
std::vector<Row> rows();

/// Values that are told apart, of row 8: numbers from 11 on and texts that name their columns. Times and addresses are
/// the rule's own.
Values plain_values(const Table &table);

/// A row of a table that looks up no host but unknown ones, and the record that is made of it.
Built built_of(const Table &table, const std::string &name, const Values &sql, const support::Record &record);

/// The record of a row with these values, as they are read: what it does not carry or does not have room for is left
/// out, and so is what it takes from other tables.
support::Record built_record(const Table &table, const Values &values);

/// One request, as support::readable() shows it.
std::string query(std::uint32_t table_id, const std::string &text);
std::string execute(std::uint32_t table_id, const std::string &text);

}  // namespace golden
