#include "core/confinement.h"

#include "build_profile.h"

namespace routerdb {

namespace {

void set(sqlite3 *db, int option, int value) {
    sqlite3_db_config(db, option, value, static_cast<int *>(nullptr));
}

/// A plain VACUUM attaches a file without a name, VACUUM INTO the one that it names. A name that is yet to be computed
/// comes as null.
int refuse_named_files(void * /*unused*/, int action, const char *name, const char * /*unused*/,
                       const char * /*database*/, const char * /*trigger*/) {
    const bool named = action == SQLITE_ATTACH && (name == nullptr || *name != '\0');
    return named ? SQLITE_DENY : SQLITE_OK;
}

}  // namespace

void confine(sqlite3 *db, Texts texts) {
    if (!build_profile.confines_texts) {
        return;
    }
    set(db, SQLITE_DBCONFIG_DEFENSIVE, 1);
    set(db, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0);
    if (texts == Texts::own) {
        set(db, SQLITE_DBCONFIG_ENABLE_VIEW, 0);
    } else {
        sqlite3_set_authorizer(db, refuse_named_files, nullptr);
    }
}

}  // namespace routerdb
