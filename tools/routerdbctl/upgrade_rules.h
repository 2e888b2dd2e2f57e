// What names alone cannot tell of two firmwares: columns that are called otherwise, mean something else, or are not to
// be carried over. The file of the rules ships beside a factory copy.
#pragma once

#include <cstdint>
#include <string_view>

#include "database.h"
#include "lines.h"
#include "status.h"

namespace ctl {

/// "rename table.column table.to", "drop table.column" or "map table.column from to".
struct UpgradeRule {
    enum class Kind : std::uint8_t { rename, drop, map };

    Kind kind;
    unsigned line;
    std::int32_t version;  // of the databases that it leads to
    std::string_view table;
    std::string_view column;
    std::string_view from;
    std::string_view to;
};

/// Whether SQL takes two names for the same.
bool is_same_name(std::string_view one, std::string_view other);

class UpgradeRules {
public:
    /// Reads a file; none at all has no rules. Until others are chosen, all of them apply.
    /// @param version  of the database that the file stands beside
    /// @return done; refused after a line for each fault
    Status load(const char *path, std::int32_t version);

    /// Looks whether the columns that they lead to are in the database that the file stands beside.
    Status check_columns(const Database &database, const char *schema) const;

    /// Chooses the rules that lie between two versions. They go backwards for a downgrade.
    void choose(std::int32_t old_version, std::int32_t new_version);

    /// Those that were chosen, in the order and the direction in which they apply.
    unsigned count() const { return end_ - begin_; }
    UpgradeRule at(unsigned index) const;
    bool go_backwards() const { return backwards_; }

    /// What a column of the new table was called in the old one, where its values may be carried over.
    /// @return whether they may
    bool find_origin(std::string_view table, std::string_view &column) const;

    /// What the column of a rule that applies is called in the end.
    /// @return whether there is an end
    bool find_end(unsigned index, std::string_view &column) const;

private:
    Status read(const char *path, std::int32_t version);
    Status take(std::string_view line, unsigned number, std::int32_t most);
    Status take_version(const std::string_view *words, unsigned count, unsigned number, std::int32_t most);
    Status take_rule(const std::string_view *words, unsigned count, UpgradeRule rule);
    Status check_values(const UpgradeRule &rule) const;
    [[gnu::format(printf, 3, 4)]] Status complain(unsigned number, const char *format, ...) const;

    static constexpr unsigned most_rules = 256;

    Lines file_;
    const char *path_ = "";
    std::int32_t version_ = 0;  // of the section that is being read
    unsigned all_ = 0;
    UpgradeRule rules_[most_rules];
    unsigned begin_ = 0;
    unsigned end_ = 0;
    bool backwards_ = false;
};

}  // namespace ctl
