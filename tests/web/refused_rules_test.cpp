// Forms that the programs for rules do not let through to the library.
#include <gtest/gtest.h>

#include "support/service.h"
#include "web/rules.h"

namespace {

using web::failure;
using web::post;

struct Value {
    const char *field;
    const char *value;
    const char *error;
};

constexpr char no_action[] = "add, edit or remove";
constexpr char no_id[] = "a number from 1 to 999999999";
constexpr char no_version[] = "16 hexadecimal digits";
constexpr char no_text[] = "a text that fits, without apostrophes";
constexpr char no_url[] = "1 to 1029 characters without blanks and quotation marks";
constexpr char no_days[] = "seven times 0 or 1, not all 0";
constexpr char no_hour[] = "00:00 to 23:59";
constexpr char no_group[] = "the number of a time group";

constexpr Value refused_values[] = {
    {"action", "", no_action},
    {"action", "Add", no_action},
    {"id", "0", no_id},
    {"id", "-1", no_id},
    {"id", "1+or+1", no_id},
    {"id", "1000000000", no_id},
    {"version", "0123456789abcde", no_version},
    {"version", "0123456789abcdeg", no_version},
    {"name", "", no_text},
    {"name", "+++", no_text},
    {"name", "it%27s", no_text},
    {"name", "a%0ab", no_text},
    {"name", "a%09b", no_text},
    {"name", "a%7fb", no_text},
    {"name", "%ff", no_text},
    {"name", "a%80", no_text},
    {"name", "%E8%A7", no_text},
    {"name", "%C0%A7", no_text},
    {"name", "%E0%80%A7", no_text},
    {"name", "%ED%A0%80", no_text},
    {"name", "%F4%90%80%80", no_text},
    {"name", "%F8%88%80%80%80", no_text},
    {"mark", "%27", no_text},
    {"mark", "a%1bb", no_text},
    {"days", "", no_days},
    {"days", "0000000", no_days},
    {"days", "111111", no_days},
    {"days", "11111111", no_days},
    {"days", "1111102", no_days},
    {"from", "", no_hour},
    {"from", "24:00", no_hour},
    {"from", "20:60", no_hour},
    {"from", "8:00", no_hour},
    {"from", "08:0", no_hour},
    {"from", "08:000", no_hour},
    {"from", "0x:10", no_hour},
    {"from", "08-00", no_hour},
    {"to", "23:59:00", no_hour},
    {"to", "+9:00", no_hour},
};

constexpr Value refused_filter_values[] = {
    {"url", "", no_url},
    {"url", "a+b", no_url},
    {"url", "a%27b", no_url},
    {"url", "a%22b", no_url},
    {"url", "a%5Cb", no_url},
    {"url", "a%0Ab", no_url},
    {"url", "%E8%A7%86.example", no_url},
    {"status", "2", "0 or 1"},
    {"status", "", "0 or 1"},
    {"group", "0", no_group},
    {"group", "1%27", no_group},
    {"group", "", no_group},
};

void expect_refused(const char *program, const std::string &form, const std::string &error) {
    EXPECT_EQ(post(program, form), failure("400 Bad Request", error)) << program << ": " << form;
}

std::string form_with(const Value &value) {
    return std::string(value.field) + "=" + value.value;
}

TEST(CgiRefusesRules, values_that_are_not_what_they_should_be) {
    for (const Value &value : refused_values) {
        expect_refused("url-filters", form_with(value), std::string(value.field) + ": " + value.error);
        expect_refused("time-groups", form_with(value), std::string(value.field) + ": " + value.error);
    }
    for (const Value &value : refused_filter_values) {
        expect_refused("url-filters", form_with(value), std::string(value.field) + ": " + value.error);
        expect_refused("time-groups", form_with(value), "query: unknown parameter");
    }
}

TEST(CgiRefusesRules, texts_that_are_wider_than_their_places) {
    const std::string name_error = std::string("name: ") + no_text;
    const std::string mark_error = std::string("mark: ") + no_text;
    expect_refused("url-filters", "name=" + std::string(147, 'a') + "%E8%A7%86", name_error);
    expect_refused("url-filters", "url=" + std::string(1030, 'a'), std::string("url: ") + no_url);
    expect_refused("url-filters", "mark=" + std::string(152, 'a'), mark_error);
    expect_refused("time-groups", "name=" + std::string(152, 'a'), name_error);
    expect_refused("time-groups", "mark=" + std::string(152, 'a'), mark_error);
}

TEST(CgiRefusesRules, forms_that_say_too_little) {
    const support::Service service;
    constexpr char filter_error[] = "form: name, url and status are needed";
    constexpr char times_error[] = "form: days, from and to are needed";
    const std::string times = "&days=1000000&from=00:00&to=00:01";
    expect_refused("url-filters", "", "action: missing");
    expect_refused("url-filters", "action=add&url=a.example&status=1" + times, filter_error);
    expect_refused("url-filters", "action=add&name=a&status=1" + times, filter_error);
    expect_refused("url-filters", "action=add&name=a&url=a.example" + times, filter_error);
    expect_refused("url-filters", "action=add&name=a&url=a.example&status=1&days=1000000&from=00:00", times_error);
    expect_refused("time-groups", "action=add" + times, "form: a name is needed");
    expect_refused("time-groups", "action=add&name=a&from=00:00&to=00:01", times_error);
    EXPECT_EQ(support::value("select (select count(*) from filter_url) + (select count(*) from user_timegroup);"), "0");
}

TEST(CgiRefusesRules, times_that_end_before_they_begin) {
    const support::Service service;
    expect_refused("time-groups", "action=add&name=a&days=1000000&from=23:00&to=06:00", "to: later than from");
    expect_refused("time-groups", "action=add&name=a&days=1000000&from=23:00&to=23:00", "to: later than from");
}

TEST(CgiRefusesRules, a_group_that_there_is_none_of) {
    const support::Service service;
    EXPECT_EQ(post("url-filters", "action=add&name=a&url=a.example&status=1&group=9"),
              failure("409 Conflict", "group: gone"));
    EXPECT_EQ(support::value("select count(*) from filter_url;"), "0");
}

}  // namespace
