// What a killed writer leaves beside the main database.
#pragma once

namespace routerdb {

/// Lets SQLite roll back what a killed writer left behind, trying again for a while when it is busy or gives an I/O
/// error: the journal would destroy a file that is put in place, or be missing from a copy that is made.
void settle_main_database();

/// Removes a journal of either kind that could not be settled. Only for a database that is about to be replaced.
void remove_main_journals();

}  // namespace routerdb
