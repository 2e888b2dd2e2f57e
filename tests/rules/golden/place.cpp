#include "rules/golden/place.h"

#include <algorithm>
#include <stdexcept>

namespace golden {

namespace {

std::string quoted(const std::string &text) {
    std::string quoted = "'";
    for (const char letter : text) {
        quoted += letter == '\'' ? "''" : std::string(1, letter);
    }
    return quoted + "'";
}

}  // namespace

std::string of(std::size_t count, char letter) {
    return std::string(count, letter);
}

std::string numbered(std::size_t count, char letter, int n) {
    const std::string number = std::to_string(n);
    return of(count - number.size(), letter) + number;
}

std::size_t index_of(const Places &places, const std::string &column) {
    const auto found =
        std::find_if(places.begin(), places.end(), [&](const Place &place) { return place.column == column; });
    if (found == places.end()) {
        throw std::out_of_range("no column " + column);
    }
    return static_cast<std::size_t>(found - places.begin());
}

bool has(const Places &places, const std::string &column) {
    return std::any_of(places.begin(), places.end(), [&](const Place &place) { return place.column == column; });
}

Values changed(const Places &places, Values values, const std::vector<Change> &changes) {
    for (const Change &change : changes) {
        values[index_of(places, change.column)] = change.value;
    }
    return values;
}

Values as_sql(const Places &places, Values values) {
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i].kind == Kind::text) {
            values[i] = quoted(values[i]);
        }
    }
    return values;
}

std::string insertion(const std::string &table, const Values &sql) {
    std::string list;
    for (const std::string &value : sql) {
        list += (list.empty() ? "" : ",") + value;
    }
    return "insert into " + table + " values(" + list + ");";
}

void put(support::Record &record, const Place &place, const std::string &value) {
    if (place.kind == Kind::number) {
        record.number(place.offset, std::stoi(value));
    } else if (value.size() < place.width) {
        record.text(place.offset, value);
    } else {
        record.unterminated(place.offset, value);
    }
}

std::string filled(const std::string &statement, const Places &places, const Values &values) {
    std::string filled;
    std::size_t from = 0;
    for (std::size_t brace = statement.find('{'); brace != std::string::npos; brace = statement.find('{', from)) {
        const std::size_t end = statement.find('}', brace);
        filled += statement.substr(from, brace - from);
        filled += values.at(index_of(places, statement.substr(brace + 1, end - brace - 1)));
        from = end + 1;
    }
    return filled + statement.substr(from);
}

std::string filled(const std::string &statement, const std::string &name, const std::string &value) {
    return filled(statement, {text(name.c_str(), 0, 0)}, {value});
}

}  // namespace golden
