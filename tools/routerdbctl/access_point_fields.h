// The columns of an access point, as people name and fill them.
#pragma once

#include "database.h"
#include "options.h"
#include "sql.h"

namespace ctl {

struct AccessPointField {
    char column[40];
    const char *value;
};

/// Reads "FIELD=VALUE", where FIELD is a column of DevInfo with or without "Dev_".
/// @return done, or what fail() has said
Status read_access_point_field(const Database &database, const char *text, bool force, AccessPointField &field);

/// Adds a query with a row for each column of one that has a value.
void add_fields_as_rows(Sql &sql, const Database &database, const char *sn);

/// Adds a query for the rows of another one that the options ask for.
/// @return done, or what fail() has said of a field
Status add_narrowed(Sql &sql, const Database &database, const Options &options, const char *query);

}  // namespace ctl
