// What a firmware update leaves to be done: the owner's rows get into the new firmware's schema.
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstring>

#include "commands.h"
#include "question.h"
#include "upgrade_check.h"
#include "upgrade_columns.h"
#include "upgrade_copy.h"
#include "upgrade_databases.h"
#include "upgrade_file.h"
#include "upgrade_lines.h"
#include "upgrade_plan.h"
#include "upgrade_rules.h"
#include "upgrade_way.h"

namespace ctl {

namespace {

/// What --check ends with. The usual statuses have other meanings.
constexpr auto nothing_to_do = Status{0};
constexpr auto something_to_do = Status{1};
constexpr auto cannot_be_done = Status{2};

/// One upgrade on the way to a new database, in memory to see what it would be, or in a file.
class Upgrade {
public:
    /// @param lines       receives what it changes; nothing at all if there is no difference
    /// @param statements  receives what it executes
    Upgrade(const UpgradeWay &way, UpgradeLines &lines, Sql &statements)
        : way_(way), lines_(lines), statements_(statements) {}

    /// @param new_file  null for memory
    /// @return done; refused; not_found; unreachable. fail() has said it
    Status make(const char *new_file, unsigned seconds);

    Status finish() { return databases_.finish(); }

private:
    Status load_rules();

    const UpgradeWay &way_;
    UpgradeLines &lines_;
    Sql &statements_;
    Sql rules_path_;  // lives as long as the rules
    UpgradeRules rules_;
    UpgradeDatabases databases_;
};

/// Rules lead from older databases to the one that they stand beside. On the way back those count that the running
/// firmware's rows have come by.
Status Upgrade::load_rules() {
    const std::int32_t old_version = databases_.version(databases_.old());
    const std::int32_t new_version = databases_.version(UpgradeDatabases::target);
    const bool is_downgrade = new_version < old_version;
    const char *const beside = is_downgrade ? way_.factory : way_.to;
    add_rules_path(rules_path_, way_, beside);
    const Status status = rules_.load(rules_path_.text(), is_downgrade ? INT_MAX : new_version);
    const Status checked = status != Status::done || is_downgrade
                               ? status
                               : rules_.check_columns(databases_.connection(), UpgradeDatabases::target);
    rules_.choose(old_version, new_version);
    return checked;
}

Status Upgrade::make(const char *new_file, unsigned seconds) {
    Status status = databases_.open(way_, new_file, seconds);
    status = status != Status::done ? status : load_rules();
    status = status != Status::done ? status : list_columns(databases_, rules_);
    status = status != Status::done ? status : compare_schemas(databases_, lines_);
    if (status != Status::done || (lines_.count() == 0 && way_.keeps_rows())) {
        return status;
    }
    if (!way_.keeps_rows()) {
        lines_.lose("its rows give way to those of %s", way_.from);
    }
    status = check_places(databases_, way_.which);
    status = status != Status::done ? status : carry_rows_over(databases_, rules_, lines_, statements_);
    return status != Status::done ? status : check_result(databases_, way_.which, lines_);
}

/// Makes the new database in a file, which then takes the live one's place.
/// @param shown  the differences that were shown
Status replace(const Invocation &invocation, const UpgradeWay &way, const UpgradeFile &file,
               const UpgradeLines &shown) {
    UpgradeLines lines(way.name());
    Sql statements;
    Upgrade upgrade(way, lines, statements);
    const Status status = upgrade.make(file.path(), invocation.seconds());
    if (status != Status::done) {
        return status;
    }
    if (lines.count() == 0) {  // another program has done it
        file.remove();
        return Status::done;
    }
    if (!invocation.options.yes && lines.loses() && std::strcmp(lines.text(), shown.text()) != 0) {
        return fail(Status::refused, "another program has changed the database meanwhile; nothing was changed");
    }
    Sql kept;
    const Status finished = upgrade.finish();
    const Status placed = finished != Status::done ? finished : file.put_in_place(way.from, kept);
    if (placed == Status::done) {
        std::printf("%s: upgraded%s%s\n", way.name(), kept.is_empty() ? "" : "; the old one is ", kept.text());
    }
    return placed;
}

Status carry_out(const Invocation &invocation, const UpgradeWay &way, const UpgradeLines &shown) {
    UpgradeLock lock;
    const Status locked = lock.acquire(invocation.seconds());
    if (locked != Status::done) {
        return locked;
    }
    const UpgradeFile file(way.live);
    if (file.is_left_over()) {
        warn("%s was left by an upgrade that was interrupted, and is removed", file.path());
        file.remove();
    }
    umask(077);  // the new file has keys in it
    const Status status = replace(invocation, way, file, shown);
    if (status != Status::done) {
        file.remove();
    }
    return status;
}

/// Finds out what would change, and shows it.
Status show_changes(const Invocation &invocation, const UpgradeWay &way, UpgradeLines &lines) {
    Sql statements;
    Upgrade upgrade(way, lines, statements);
    const Status status = upgrade.make(nullptr, invocation.seconds());
    if (status == Status::done && invocation.options.is_dry_run) {
        std::fputs(statements.text(), stdout);
    } else if (status == Status::done) {
        lines.print();
    }
    return status;
}

/// Shows what would change in one database, and changes it.
Status upgrade_one(const Invocation &invocation, const UpgradeWay &way) {
    UpgradeLines lines(way.name());
    Status status = show_changes(invocation, way, lines);
    const bool differs = lines.count() != 0;
    if (invocation.options.has(option_check)) {
        return status != Status::done ? cannot_be_done : differs ? something_to_do : nothing_to_do;
    }
    if (status != Status::done || invocation.options.is_dry_run) {
        return status;
    }
    if (!differs && !UpgradeFile(way.live).is_left_over()) {
        return Status::done;
    }
    if (lines.loses()) {
        status = confirm(invocation, "Upgrade %s, and lose what it says?", way.name());
    }
    return status != Status::done ? status : carry_out(invocation, way, lines);
}

/// The catalogue comes behind the main database, where the firmware brings one.
Status upgrade_both(const Invocation &invocation) {
    const Status main = upgrade_one(invocation, usual_way(RouterDatabase::main));
    const bool goes_on = main == Status::done || (invocation.options.has(option_check) && main == something_to_do);
    const UpgradeWay way = usual_way(RouterDatabase::catalogue);
    if (!goes_on || access(way.from, F_OK) != 0 || access(way.to, F_OK) != 0) {
        return main;
    }
    const Status catalogue = upgrade_one(invocation, way);
    return catalogue != Status::done ? catalogue : main;
}

}  // namespace

Status upgrade_databases(Invocation &invocation) {
    if (invocation.options.from == nullptr && invocation.options.to == nullptr) {
        return upgrade_both(invocation);
    }
    UpgradeWay way{};
    const Status status = read_way(invocation.options, way);
    if (status != Status::done) {
        return invocation.options.has(option_check) ? cannot_be_done : status;
    }
    return upgrade_one(invocation, way);
}

}  // namespace ctl
