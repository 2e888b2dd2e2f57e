// Another database beside the main one: the backup, the factory's, any file, or an export.
#pragma once

#include "database.h"

namespace ctl {

/// Puts it there as "other".
/// @param name  "backup", "factory", or the path of a database or of an export
/// @return done; not_found or refused, which fail() has said
Status put_beside(Database &database, const char *name);

}  // namespace ctl
