#include "rules/golden/samples.h"

#include <functional>

#include "rules/golden/names.h"
#include "rules/golden/references.h"
#include "support/database.h"
#include "support/profile.h"

namespace golden {

namespace {

using support::Record;

/// A value for each place but the id, from the place and its number.
using Make = std::function<std::string(const Place &place, std::size_t index)>;

Values made(const Table &table, const std::string &id, const Make &make) {
    Values values{id};
    for (std::size_t i = 1; i < table.places.size(); ++i) {
        values.push_back(make(table.places[i], i));
    }
    return values;
}

/// The values with the control column that makes a rule's own times count.
Values at_own_time(const Table &table, const Values &values) {
    return table.time_group ? changed(table.places, values, {{"timecontrol", "1"}}) : values;
}

char letter_of(std::size_t index) {
    return static_cast<char>('a' + index);
}

std::string plain_value(const Place &place, std::size_t index) {
    return place.kind == Kind::text ? place.column : std::to_string(10 + index);
}

std::string nothing(const Place &place, std::size_t /*index*/) {
    return place.kind == Kind::text ? "" : "0";
}

std::string filling_value(const Place &place, std::size_t index) {
    return place.kind == Kind::text ? of(place.width, letter_of(index)) : std::to_string(index % 2);
}

std::string utmost_value(const Place &place, std::size_t index) {
    return place.kind == Kind::text ? "" : std::to_string(index % 2 == 0 ? highest : lowest);
}

std::string other_utmost_value(const Place &place, std::size_t index) {
    return utmost_value(place, index + 1);
}

/// In 19 bytes.
std::string odd_text(const Place &place, std::size_t index) {
    return place.kind == Kind::text ? "it's %s%d 电视" : std::to_string(index);
}

Sample sample(const Table &table, const char *name, const Values &values, char fill) {
    Record record(table.record_size, fill);
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (table.places[i].kind != Kind::unread) {
            put(record, table.places[i], values[i]);
        }
    }
    Values written = values;
    std::transform(values.begin(), values.end(), written.begin(), support::as_value);
    const auto asking = [&](const std::vector<std::string> &questions, const std::string &statement) {
        constexpr std::uint32_t scalar = 100;
        std::vector<std::string> requests;
        for (const std::string &question : questions) {
            requests.push_back(query(scalar, filled(question, table.places, written)));
        }
        requests.push_back(execute(table.id, filled(statement, table.places, written)));
        return requests;
    };
    return {name, record.bytes(), asking(table.asked_before_insert, table.insert),
            asking(table.asked_before_update, table.update)};
}

bool is_carried(const Table &table, const Place &place, const Values &values) {
    const auto number = [&](const char *column) { return std::stoi(values[index_of(table.places, column)]); };
    switch (place.carried) {
        case Carried::always:
            return true;
        case Carried::with_own_time:
            return number("timecontrol") == 1;
        case Carried::with_time_group:
            return number("timecontrol") == 2;
        case Carried::with_ip_group:
            return number("ipcontrol") == 2;
        case Carried::without_ip_group:
            return number("ipcontrol") != 2;
        case Carried::never:
            return false;
    }
    return false;
}

/// The longest that a place carries.
std::string full_value(const Place &place, std::size_t index) {
    return place.kind == Kind::text ? of(place.width - 1, letter_of(index)) : utmost_value(place, index);
}

/// Too long by one character, or by many.
std::string excessive_value(const Place &place, std::size_t index) {
    return place.kind == Kind::text ? of(place.width + index % 2 * 3000, letter_of(index))
                                    : other_utmost_value(place, index);
}

/// Values of other types than the column's, as SQL and as they are read.
struct Converted {
    const char *sql;
    const char *read;
};

constexpr Converted numbers_of_texts[] = {{"' 1'", "1"},  {"'2nd'", "2"}, {"'three'", "0"}, {"'-4'", "-4"},
                                          {"'5.9'", "5"}, {"1.9", "1"},   {"'1e3'", "1000"}};
constexpr Converted texts_of_numbers[] = {{"1", "1"}, {"-2", "-2"}, {"3.5", "3.5"}, {"10", "10"}};

Converted converted(const Place &place, std::size_t index) {
    return place.kind == Kind::text ? texts_of_numbers[index % std::size(texts_of_numbers)]
                                    : numbers_of_texts[index % std::size(numbers_of_texts)];
}

/// A row whose values are read as they are stored.
Built stored(const Table &table, const char *name, const Values &values) {
    return built_of(table, name, as_sql(table.places, values), built_record(table, values));
}

Built of_other_types(const Table &table) {
    const auto sql = [](const Place &place, std::size_t i) { return std::string(converted(place, i).sql); };
    const auto read = [](const Place &place, std::size_t i) { return std::string(converted(place, i).read); };
    return built_of(table, "values of other types", at_own_time(table, made(table, "8", sql)),
                    built_record(table, at_own_time(table, made(table, "8", read))));
}

std::vector<Built> with_columns(const Table &table) {
    const auto null = [](const Place & /*place*/, std::size_t /*index*/) { return std::string("null"); };
    const Values nulls = made(table, "8", null);
    const Values none = made(table, "8", nothing);
    const std::string low = std::to_string(lowest);
    const std::string high = std::to_string(highest);
    const auto own = [&](const Values &values) { return at_own_time(table, values); };
    std::vector<Built> rows{
        stored(table, "plain", plain_values(table)),
        built_of(table, "NULL in every column", nulls, built_record(table, none)),
        stored(table, "full width", own(made(table, high, full_value))),
        stored(table, "beyond its width is cut", own(made(table, low, excessive_value))),
        of_other_types(table),
        stored(table, "Chinese and apostrophes", own(made(table, "8", odd_text))),
    };
    if (table.time_group) {
        rows.push_back(
            built_of(table, "NULL in every column of the own time", own(nulls), built_record(table, own(none))));
    }
    return rows;
}

}  // namespace

std::vector<Sample> samples(const Table &table) {
    const auto values = [&](std::int32_t id, const Make &make) { return made(table, std::to_string(id), make); };
    return {
        // What is not a column has odd bytes, and so has every text behind its terminator.
        sample(table, "plain", values(7, plain_value), 'Z'),
        sample(table, "empty", values(0, nothing), '\0'),
        sample(table, "filled to the last character", values(9, filling_value), 'Z'),
        sample(table, "utmost numbers", values(lowest, utmost_value), '\0'),
        sample(table, "utmost numbers the other way round", values(highest, other_utmost_value), '\0'),
        sample(table, "Chinese, apostrophes and percent signs stay as they are", values(8, odd_text), '\0'),
    };
}

void Built::prepare() const {
    support::execute(rows);
    if (!leases.empty()) {
        support::write_file("/var/dhcp.leases", leases);
    }
    if (!catalogue.empty()) {
        support::Database(support::catalogue_database).execute(catalogue);
    }
}

std::vector<Built> built(const Table &table) {
    std::vector<Built> all = with_columns(table);
    for (const auto more : {with_times, with_ranges, with_host_names, with_application_names}) {
        for (const Built &row : more(table)) {
            all.push_back(row);
        }
    }
    return all;
}

std::vector<Row> rows() {
    std::vector<Row> rows;
    for (const Table &table : tables()) {
        for (const Built &row : built(table)) {
            rows.push_back({table.name + ": " + row.name, table, row});
        }
    }
    return rows;
}

Values plain_values(const Table &table) {
    return at_own_time(table, made(table, "8", plain_value));
}

Built built_of(const Table &table, const std::string &name, const Values &sql, const Record &record) {
    return {name, insertion(table.name, sql), record.bytes(), table.host_name ? other_lease : ""};
}

Record built_record(const Table &table, const Values &values) {
    Record record(table.record_size);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const Place &place = table.places[i];
        if (is_carried(table, place, values)) {
            put(record, place, place.kind == Kind::text ? values[i].substr(0, place.width - 1) : values[i]);
        }
    }
    if (table.time_group && table.time_group->known) {
        record.number(*table.time_group->known, values[index_of(table.places, "timecontrol")] == "1" ? 1 : 0);
    }
    return record;
}

std::string query(std::uint32_t table_id, const std::string &text) {
    return std::to_string(table_id) + " 1 " + std::to_string(text.size()) + " " + text;
}

std::string execute(std::uint32_t table_id, const std::string &text) {
    return std::to_string(table_id) + " 2 " + std::to_string(text.size()) + " " + text;
}

}  // namespace golden
