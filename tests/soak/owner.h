// Databases of which all pages tell whose they are: a copy that ends in the middle has some of each.
#pragma once

#include <exception>
#include <string>

#include "support/database.h"

namespace soak {

/// Adds pages to a database.
inline void fill(const char *path, const std::string &owner, long pages) {
    const support::Database database(path);
    database.execute("create table pages(owner, bytes);");
    database.execute("with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
                     std::to_string(pages) + ") insert into pages select '" + owner + "', randomblob(2000) from n;");
}

/// Whose a database is; "nobody's" if it is not wholly one's, or not sound.
inline std::string owner_of(const char *path, long pages) {
    try {
        const support::Database database(path);
        const bool sound = database.value("pragma integrity_check;") == "ok";
        const auto owners = database.rows("select owner, count(*) from pages group by owner;");
        const std::size_t end = owners.empty() ? 0 : owners.front().find('|');
        const bool whole = owners.size() == 1 && owners.front().substr(end + 1) == std::to_string(pages);
        return sound && whole ? owners.front().substr(0, end) : "nobody's";
    } catch (const std::exception &) {
        return "nobody's";
    }
}

}  // namespace soak
