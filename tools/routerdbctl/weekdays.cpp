#include "weekdays.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace ctl {

namespace {

constexpr char names[days_of_a_week][4] = {"mon", "tue", "wed", "thu", "fri", "sat", "sun"};
constexpr unsigned none = days_of_a_week;

unsigned number_of_day(std::string_view text) {
    for (unsigned day = 0; day < days_of_a_week; ++day) {
        if (text == names[day]) {
            return day;
        }
    }
    return none;
}

std::string_view next_part(std::string_view &text, char separator) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part(text.data(), end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

/// "mon" or "mon-fri", which may go over the end of the week.
bool read_span(std::string_view text, int (&days)[days_of_a_week]) {
    const unsigned first = number_of_day(next_part(text, '-'));
    const unsigned last = text.empty() ? first : number_of_day(text);
    if (first == none || last == none) {
        return false;
    }
    for (unsigned day = first;; day = (day + 1) % days_of_a_week) {
        days[day] = 1;
        if (day == last) {
            return true;
        }
    }
}

void call_days(sqlite3_context *context, int count, sqlite3_value **values) {
    int days[days_of_a_week]{};
    for (int i = 0; i < count; ++i) {
        days[i] = sqlite3_value_int(values[i]);
    }
    char text[96];
    write_days(days, text, sizeof(text));
    sqlite3_result_text(context, text, -1, SQLITE_TRANSIENT);
}

}  // namespace

bool read_days(std::string_view text, int (&days)[days_of_a_week]) {
    std::fill(days, days + days_of_a_week, text == "daily" ? 1 : 0);
    if (text == "daily" || text == "none") {
        return true;
    }
    if (text.empty() || text[text.size() - 1] == ',') {
        return false;
    }
    while (!text.empty()) {
        if (!read_span(next_part(text, ','), days)) {
            return false;
        }
    }
    return true;
}

void write_days(const int (&days)[days_of_a_week], char *text, std::size_t size) {
    const auto is_set = [&](unsigned day) { return day < days_of_a_week && days[day] == 1; };
    const bool is_week = std::all_of(days, days + days_of_a_week, [](int day) { return day == 0 || day == 1; });
    const auto set = std::count(days, days + days_of_a_week, 1);
    if (!is_week) {
        std::snprintf(text, size, "%d,%d,%d,%d,%d,%d,%d", days[0], days[1], days[2], days[3], days[4], days[5],
                      days[6]);
        return;
    }
    std::snprintf(text, size, "%s", set == days_of_a_week ? "daily" : set == 0 ? "none" : "");
    if (*text != '\0') {
        return;
    }
    for (unsigned day = 0; day < days_of_a_week; ++day) {
        const std::size_t length = std::strlen(text);
        const bool goes_on = day != 0 && is_set(day - 1) && is_set(day + 1);
        if (!is_set(day) || (goes_on && text[length - 1] == '-')) {
            continue;
        }
        const char *const before = *text == '\0' || text[length - 1] == '-' ? "" : ",";
        const bool is_span = is_set(day + 1) && is_set(day + 2) && (day == 0 || !is_set(day - 1));
        std::snprintf(text + length, size - length, "%s%s%s", before, names[day], is_span ? "-" : "");
    }
}

void add_days_function(sqlite3 *db) {
    sqlite3_create_function(db, "days", days_of_a_week, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, call_days, nullptr,
                            nullptr);
}

}  // namespace ctl
