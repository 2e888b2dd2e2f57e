// The applications of a class as one text.
#pragma once

#include <sqlite3.h>

#include <cstdint>

#include "core/remembered.h"
#include "core/row.h"

namespace routerdb {

/// The columns that are joined.
enum class Joined : std::uint8_t { names, names_en, features };
inline constexpr unsigned joined_columns = 3;

/// Joins a column of the applications of a class, each value with a "/" behind it.
/// @param out  ROUTERDB_JOINED_NAMES bytes; untouched when the query cannot be prepared
void join_names(Joined column, int class_id, char *out, sqlite3 *db);

/// Joins for one list, whose open statement pins what the applications are: where the build profile remembers lookups,
/// they are read once for all classes.
class NameJoiner {
public:
    explicit NameJoiner(sqlite3 *db) : db_(db) {}

    /// As above.
    void join(Joined column, int class_id, char *out);

private:
    struct Application {
        const char *texts[joined_columns];
    };
    struct Class {
        int id;
        Remembered<Application> applications;
    };
    enum class State : std::uint8_t { not_read, known, not_knowable };

    bool read_applications();
    bool remember(const Row &row);
    Class *known_class(int id) const;

    sqlite3 *db_;
    State state_ = State::not_read;
    RememberedByKey<Class> classes_;
};

}  // namespace routerdb
