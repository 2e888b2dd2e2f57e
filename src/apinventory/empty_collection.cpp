#include "apinventory/empty_collection.h"

#include "core/execute.h"
#include "core/profiles.h"

namespace routerdb {

int empty_collection(std::uint32_t &count, const char *sql) {
    const int result = execute(profiles::collection, sql);
    if (result == 0) {
        count = 0;  // Deliberate: the rows are not delivered.
    }
    return result;
}

}  // namespace routerdb
