// The library under test, loaded from a file: both profiles stand beside each other in one process.
#pragma once

#include <string>

#include "routerdb.h"

namespace bench {

#define BENCH_LIBRARY_FUNCTIONS(FUNCTION)  \
    FUNCTION(DB_EXEC_SQL_CHAR)             \
    FUNCTION(DB_UpdateInfo)                \
    FUNCTION(DB_addinfo)                   \
    FUNCTION(DB_getinfo)                   \
    FUNCTION(GetApDevList)                 \
    FUNCTION(GetApDevList_cgi)             \
    FUNCTION(GetAppClassItemList)          \
    FUNCTION(GetBehaviorItemListInServer)  \
    FUNCTION(GetUrlFilterItemList)         \
    FUNCTION(GetUrlFilterItemListInServer) \
    FUNCTION(GetWlanZeroCfgGroupList)      \
    FUNCTION(sqlclient_cmd)

/// The exported functions that are measured, by their names.
struct Library {
#define MEMBER(function) decltype(&::function) function;
    BENCH_LIBRARY_FUNCTIONS(MEMBER)
#undef MEMBER

    /// A program that is linked to this library, reads one access point, and ends.
    std::string start_program;
};

/// Loads a library; ends the process if it or one of the functions is missing.
Library load_library(const char *path, std::string start_program);

}  // namespace bench
