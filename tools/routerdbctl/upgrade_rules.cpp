#include "upgrade_rules.h"

#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <utility>

#include "meaning.h"
#include "sql.h"

namespace ctl {

namespace {

constexpr unsigned most_words = 5;

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

/// Takes the next word off a line. One between quotes may be empty, and have blanks and "#".
/// @return whether there is one
bool next_word(std::string_view &line, std::string_view &word) {
    while (!line.empty() && is_blank(line.front())) {
        line.remove_prefix(1);
    }
    if (line.empty() || line.front() == '#') {
        return false;
    }
    const bool is_quoted = line.front() == '\'';
    line.remove_prefix(is_quoted ? 1 : 0);
    std::size_t length = 0;
    while (length < line.size() && (is_quoted ? line[length] != '\'' : !is_blank(line[length]))) {
        ++length;
    }
    word = {line.data(), length};
    line.remove_prefix(length + (is_quoted && length < line.size() ? 1 : 0));
    return true;
}

/// Takes "table.column" apart.
bool split(std::string_view name, std::string_view &table, std::string_view &column) {
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos || dot == 0 || dot + 1 == name.size()) {
        return false;
    }
    table = {name.data(), dot};
    column = {name.data() + dot + 1, name.size() - dot - 1};
    return column.find('.') == std::string_view::npos;
}

UpgradeRule turned_round(UpgradeRule rule) {
    std::swap(rule.kind == UpgradeRule::Kind::rename ? rule.column : rule.from, rule.to);
    return rule;
}

int length_of(std::string_view text) {
    return static_cast<int>(text.size());
}

}  // namespace

bool is_same_name(std::string_view one, std::string_view other) {
    return one.size() == other.size() && sqlite3_strnicmp(one.data(), other.data(), length_of(one)) == 0;
}

Status UpgradeRules::complain(unsigned number, const char *format, ...) const {
    char fault[256];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(fault, sizeof(fault), format, arguments);
    va_end(arguments);
    return fail(Status::refused, "%s:%u: %s", path_, number, fault);
}

Status UpgradeRules::load(const char *path, std::int32_t version) {
    path_ = path;
    return access(path, F_OK) != 0 ? Status::done : read(path, version);
}

Status UpgradeRules::read(const char *path, std::int32_t version) {
    Status status = file_.load(path);
    std::string_view rest = file_.text();
    for (unsigned number = 1; !rest.empty(); ++number) {
        const std::size_t end = rest.find('\n');
        const std::string_view line(rest.data(), end == std::string_view::npos ? rest.size() : end);
        rest.remove_prefix(line.size() + (end == std::string_view::npos ? 0 : 1));
        const Status taken = take(line, number, version);
        status = status != Status::done ? status : taken;
    }
    choose(0, version);
    return status;
}

Status UpgradeRules::take(std::string_view line, unsigned number, std::int32_t most) {
    std::string_view words[most_words];
    unsigned count = 0;
    while (count < most_words && next_word(line, words[count])) {
        ++count;
    }
    if (count == 0) {
        return Status::done;
    }
    if (words[0] == "version") {
        return take_version(words, count, number, most);
    }
    UpgradeRule rule{UpgradeRule::Kind::rename, number, version_, {}, {}, {}, {}};
    if (words[0] == "drop") {
        rule.kind = UpgradeRule::Kind::drop;
    } else if (words[0] == "map") {
        rule.kind = UpgradeRule::Kind::map;
    } else if (words[0] != "rename") {
        return complain(number, "there is no rule \"%.*s\"; there are rename, drop, map and version",
                        length_of(words[0]), words[0].data());
    }
    return take_rule(words, count, rule);
}

Status UpgradeRules::take_version(const std::string_view *words, unsigned count, unsigned number, std::int32_t most) {
    std::int32_t version = 0;
    if (count != 2 || !read_number(words[1], version) || version < 1) {
        return complain(number, "it has to be \"version NUMBER\"");
    }
    if (version <= version_) {
        return complain(number, "version %d does not follow version %d", version, version_);
    }
    version_ = version;
    return version <= most ? Status::done
                           : complain(number, "the factory's database is of version %d (its \"user_version\")", most);
}

Status UpgradeRules::take_rule(const std::string_view *words, unsigned count, UpgradeRule rule) {
    constexpr const char *forms[] = {"rename TABLE.COLUMN TABLE.COLUMN", "drop TABLE.COLUMN",
                                     "map TABLE.COLUMN VALUE VALUE"};
    constexpr unsigned counts[] = {3, 2, 4};
    const auto kind = static_cast<unsigned>(rule.kind);
    std::string_view table;
    const bool is_well_formed = count == counts[kind] && split(words[1], rule.table, rule.column) &&
                                (rule.kind != UpgradeRule::Kind::rename || split(words[2], table, rule.to));
    if (!is_well_formed) {
        return complain(rule.line, "it has to be \"%s\"", forms[kind]);
    }
    if (rule.kind == UpgradeRule::Kind::rename && !is_same_name(table, rule.table)) {
        return complain(rule.line, "a column stays in its table");
    }
    if (rule.kind == UpgradeRule::Kind::map) {
        rule.from = words[2];
        rule.to = words[3];
    }
    if (rule.version == 0) {
        return complain(rule.line, "no \"version\" stands before it");
    }
    if (all_ == most_rules) {
        return complain(rule.line, "there are more than %u rules", most_rules);
    }
    const Status status = check_values(rule);
    rules_[all_++] = rule;
    return status;
}

/// A value that becomes two would not say which.
Status UpgradeRules::check_values(const UpgradeRule &rule) const {
    for (unsigned i = 0; rule.kind == UpgradeRule::Kind::map && i < all_; ++i) {
        const UpgradeRule &other = rules_[i];
        if (other.kind == rule.kind && other.version == rule.version && is_same_name(other.table, rule.table) &&
            is_same_name(other.column, rule.column) && other.from == rule.from) {
            return complain(rule.line, "line %u has this value already", other.line);
        }
    }
    return Status::done;
}

Status UpgradeRules::check_columns(const Database &database, const char *schema) const {
    Status status = Status::done;
    for (unsigned i = 0; i < count(); ++i) {
        const UpgradeRule rule = at(i);
        std::string_view column;
        if (rule.kind == UpgradeRule::Kind::drop || !find_end(i, column)) {
            continue;
        }
        Query query(database, "SELECT 1 FROM pragma_table_info(?1, ?2) WHERE name = ?3 COLLATE NOCASE");
        query.bind(1, rule.table).bind(2, schema).bind(3, column);
        if (!query.next()) {
            status = complain(rule.line, "the factory's database has no %.*s.%.*s", length_of(rule.table),
                              rule.table.data(), length_of(column), column.data());
        }
    }
    return status;
}

void UpgradeRules::choose(std::int32_t old_version, std::int32_t new_version) {
    backwards_ = new_version < old_version;
    const std::int32_t low = backwards_ ? new_version : old_version;
    const std::int32_t high = backwards_ ? old_version : new_version;
    begin_ = 0;
    while (begin_ < all_ && rules_[begin_].version <= low) {
        ++begin_;
    }
    end_ = begin_;
    while (end_ < all_ && rules_[end_].version <= high) {
        ++end_;
    }
}

UpgradeRule UpgradeRules::at(unsigned index) const {
    return backwards_ ? turned_round(rules_[end_ - 1 - index]) : rules_[begin_ + index];
}

bool UpgradeRules::find_origin(std::string_view table, std::string_view &column) const {
    for (unsigned i = count(); i-- > 0;) {
        const UpgradeRule rule = at(i);
        if (rule.kind == UpgradeRule::Kind::map || !is_same_name(rule.table, table)) {
            continue;
        }
        if (rule.kind == UpgradeRule::Kind::rename && is_same_name(rule.to, column)) {
            column = rule.column;
        } else if (is_same_name(rule.column, column)) {
            return false;  // the old one of this name has become another, or is not wanted
        }
    }
    return true;
}

bool UpgradeRules::find_end(unsigned index, std::string_view &column) const {
    const UpgradeRule first = at(index);
    column = first.kind == UpgradeRule::Kind::rename ? first.to : first.column;
    for (unsigned i = index + 1; i < count(); ++i) {
        const UpgradeRule rule = at(i);
        if (rule.kind == UpgradeRule::Kind::map || !is_same_name(rule.table, first.table)) {
            continue;
        }
        if (is_same_name(rule.column, column) && rule.kind == UpgradeRule::Kind::rename) {
            column = rule.to;
        } else if (is_same_name(rule.column, column) || is_same_name(rule.to, column)) {
            return false;
        }
    }
    return true;
}

}  // namespace ctl
