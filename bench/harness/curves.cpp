#include "harness/curves.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "harness/count.h"
#include "harness/desk.h"
#include "harness/outcomes.h"

namespace bench {

namespace {

struct Curve {
    const char *operation;
    const char *database;
    const char *resize;  // statements in which %d is the number of rows
    std::array<int, 4> sizes;
};

constexpr std::array<Curve, 4> curves{{
    {"GetUrlFilterItemListInServer", paths::main_database, "delete from filter_url where Id > %d;", {1, 16, 64, 128}},
    {"GetBehaviorItemListInServer", paths::main_database, "delete from behavior_rule where id > %d;", {1, 16, 64, 128}},
    {"GetApDevList",
     paths::main_database,
     "delete from DevInfo where Dev_Sn not in (select Dev_Sn from DevInfo order by Dev_IPSUM limit %d);",
     {1, 5, 10, 20}},
    {"GetAppClassItemList",
     paths::catalogue_database,
     "insert into App_Info select null, Class_Id + 30, Name, Name_En, Features, Mark from App_Info;"
     "insert into App_Class select Id + 30, Name, Name_En, Priority, Mark from App_Class;"
     "delete from App_Class where Id > %1$d; delete from App_Info where Class_Id > %1$d;",
     {1, 15, 30, 60}},
}};

constexpr std::array compared{Variant::exact, Variant::modern, Variant::bare, Variant::sqlitecpp};

void resize(const Curve &curve, int size) {
    outcomes::restore(Variant::bare);
    char sql[512];
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"  // from the table above
    std::snprintf(sql, sizeof(sql), curve.resize, size);
#pragma GCC diagnostic pop
    sqlite3 *db = nullptr;
    const bool resized =
        sqlite3_open(curve.database, &db) == SQLITE_OK && sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    if (!resized) {
        std::fprintf(stderr, "bench: %s\n", sqlite3_errmsg(db));
        std::exit(1);
    }
    sqlite3_close(db);
}

}  // namespace

void count_curves(const Profiles &profiles) {
    for (const Curve &curve : curves) {
        for (const Operation &operation : operations()) {
            if (std::strcmp(operation.name, curve.operation) != 0) {
                continue;
            }
            for (const int size : curve.sizes) {
                resize(curve, size);
                for (const Variant variant : compared) {
                    count_apart(profiles, operation, variant,
                                std::string(curve.operation) + " @ " + std::to_string(size));
                }
            }
        }
    }
    outcomes::restore(Variant::bare);
}

}  // namespace bench
