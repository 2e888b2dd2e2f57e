#include "rules/condition.h"

#include <strings.h>

#include <cstring>

namespace routerdb {

namespace {

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

bool is_name(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || is_digit(c);
}

bool equal_names(std::string_view name, std::string_view other) {
    return name.size() == other.size() && strncasecmp(name.data(), other.data(), name.size()) == 0;
}

/// Names that SQLite reads as values: comparing them with one another means every row. What is neither one of these nor
/// a column makes the statement fail.
bool is_value(std::string_view name) {
    constexpr char values[][18] = {"true", "false", "null", "current_date", "current_time", "current_timestamp"};
    for (const char *value : values) {
        if (equal_names(name, value)) {
            return true;
        }
    }
    return false;
}

/// Takes a condition from its beginning. What does not fit is not taken.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) { skip_blanks(); }

    bool at_end() const { return rest_.empty(); }

    bool take(char c) {
        const bool taken = !rest_.empty() && rest_.front() == c;
        return taken && advance(1);
    }

    bool take_word(const char *word) {
        const std::string_view name = next_name();
        return !name.empty() && equal_names(name, word) && advance(name.size());
    }

    bool take_column() {
        const std::string_view name = next_name();
        return !name.empty() && !is_digit(name.front()) && !is_value(name) && advance(name.size());
    }

    bool take_comparison() {
        constexpr char comparisons[][3] = {"==", "=", "!=", "<>", "<=", "<", ">=", ">"};  // the longer ones first
        for (const char *comparison : comparisons) {
            if (begins_with(comparison)) {
                return advance(std::strlen(comparison));
            }
        }
        return false;
    }

    /// 'it''s', 17, -1
    bool take_value() { return !at_end() && rest_.front() == '\'' ? take_text() : take_integer(); }

private:
    bool advance(std::size_t size) {
        rest_.remove_prefix(size);
        skip_blanks();
        return true;
    }

    void skip_blanks() {
        while (!rest_.empty() && is_blank(rest_.front())) {
            rest_.remove_prefix(1);
        }
    }

    bool begins_with(std::string_view text) const {
        return rest_.size() >= text.size() && std::memcmp(rest_.data(), text.data(), text.size()) == 0;
    }

    std::string_view next_name() const {
        std::size_t size = 0;
        while (size < rest_.size() && is_name(rest_[size])) {
            ++size;
        }
        return {rest_.data(), size};
    }

    bool take_text() {
        std::size_t end = 1;
        while (end < rest_.size() && (rest_[end] != '\'' || (end + 1 < rest_.size() && rest_[end + 1] == '\''))) {
            end += rest_[end] == '\'' ? 2 : 1;
        }
        return end < rest_.size() && advance(end + 1);
    }

    bool take_integer() {
        std::size_t end = !rest_.empty() && (rest_.front() == '-' || rest_.front() == '+') ? 1 : 0;
        const std::size_t first = end;
        while (end < rest_.size() && is_digit(rest_[end])) {
            ++end;
        }
        return end != first && (end == rest_.size() || (!is_name(rest_[end]) && rest_[end] != '.')) && advance(end);
    }

    std::string_view rest_;
};

bool take_values(Reader &reader) {
    if (!reader.take('(')) {
        return false;
    }
    do {
        if (!reader.take_value()) {
            return false;
        }
    } while (reader.take(','));
    return reader.take(')');
}

bool take_term(Reader &reader) {
    if (!reader.take_column()) {
        return false;
    }
    return reader.take_word("in") ? take_values(reader) : reader.take_comparison() && reader.take_value();
}

}  // namespace

bool is_plain_condition(std::string_view condition) {
    Reader reader(condition);
    unsigned open = 0;
    do {
        while (reader.take('(')) {
            ++open;
        }
        if (!take_term(reader)) {
            return false;
        }
        while (open > 0 && reader.take(')')) {
            --open;
        }
    } while (reader.take_word("or") || reader.take_word("and"));
    return reader.at_end() && open == 0;
}

}  // namespace routerdb
