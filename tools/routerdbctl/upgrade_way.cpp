#include "upgrade_way.h"

#include <unistd.h>

#include <cstring>

#include "core/paths.h"
#include "database.h"
#include "upgrade_file.h"

namespace ctl {

namespace {

namespace paths = routerdb::paths;

constexpr unsigned seconds_for_a_look = 10;

const char *base_of(const char *path) {
    const char *const slash = std::strrchr(path, '/');
    return slash != nullptr ? slash + 1 : path;
}

/// Looks which database a file is: only the catalogue has classes of applications, and no access points. A journal that
/// was left beside it is undone by that.
Status recognize(const char *path, RouterDatabase &which) {
    if (access(path, R_OK) != 0) {
        return fail(Status::not_found, "there is no such file (%s)", path);
    }
    Database database;
    Status status = database.open(path, seconds_for_a_look);
    status = status != Status::done ? status : database.run("PRAGMA query_only = 0; PRAGMA journal_mode = delete");
    if (status != Status::done) {
        return status;
    }
    const auto classes = number_of(database, "SELECT count(*) FROM sqlite_master WHERE name = 'App_Class'");
    const auto devices = number_of(database, "SELECT count(*) FROM sqlite_master WHERE name = 'DevInfo'");
    which = classes != 0 && devices == 0 ? RouterDatabase::catalogue : RouterDatabase::main;
    return Status::done;
}

}  // namespace

const char *UpgradeWay::name() const {
    return base_of(live);
}

UpgradeWay usual_way(RouterDatabase which) {
    return which == RouterDatabase::main ? UpgradeWay{which,
                                                      paths::main_database,
                                                      paths::main_database,
                                                      paths::factory_database,
                                                      paths::factory_database,
                                                      "upgrade.rules"}
                                         : UpgradeWay{which,
                                                      paths::catalogue_database,
                                                      paths::catalogue_database,
                                                      paths::factory_catalogue,
                                                      paths::factory_catalogue,
                                                      "upgrade-catalogue.rules"};
}

Status read_way(const Options &options, UpgradeWay &way) {
    RouterDatabase from{};
    RouterDatabase to{};
    Status status = options.from != nullptr ? recognize(options.from, from) : Status::done;
    status = status != Status::done || options.to == nullptr ? status : recognize(options.to, to);
    if (status != Status::done) {
        return status;
    }
    if (options.from != nullptr && options.to != nullptr && from != to) {
        return fail(Status::refused, "one of them is a catalogue of applications, and the other is none");
    }
    way = usual_way(options.from != nullptr ? from : to);
    if (options.from != nullptr && !is_same_file(options.from, way.live)) {
        way.from = options.from;
    }
    way.to = options.to != nullptr ? options.to : way.to;
    return Status::done;
}

Sql &add_rules_path(Sql &path, const UpgradeWay &way, const char *database) {
    return path.add("%.*s%s", static_cast<int>(base_of(database) - database), database, way.rules_name);
}

}  // namespace ctl
