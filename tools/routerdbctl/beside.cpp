#include "beside.h"

#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "core/paths.h"
#include "exported.h"
#include "sql.h"

namespace ctl {

namespace {

bool is_database(const char *path) {
    constexpr char start[] = "SQLite format 3";
    char bytes[sizeof(start)] = "";
    std::FILE *const file = std::fopen(path, "re");
    const bool is_read = file != nullptr && std::fread(bytes, 1, sizeof(bytes), file) == sizeof(bytes);
    if (file != nullptr) {
        std::fclose(file);
    }
    return is_read && std::memcmp(bytes, start, sizeof(start)) == 0;
}

}  // namespace

Status put_beside(Database &database, const char *name) {
    const bool is_backup = std::strcmp(name, "backup") == 0;
    const bool is_factory = std::strcmp(name, "factory") == 0;
    const char *const path = is_backup    ? routerdb::paths::backup_database
                             : is_factory ? routerdb::paths::factory_database
                                          : name;
    if (access(path, R_OK) != 0) {
        return fail(Status::not_found, "there is no %s (%s)", is_backup || is_factory ? name : "such file", path);
    }
    if (is_database(path)) {
        return database.attach(path, other);
    }
    return is_backup || is_factory ? fail(Status::refused, "%s is no database", path)
                                   : read_export(database, path, true);
}

}  // namespace ctl
