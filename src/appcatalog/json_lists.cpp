#include "appcatalog/json_lists.h"

#include <unistd.h>

#include "appcatalog/list_spec.h"
#include "appcatalog/names.h"
#include "core/profiles.h"
#include "core/query.h"
#include "core/reading.h"
#include "json/json_list.h"
#include "routerdb.h"

namespace routerdb {

namespace {

constexpr ReadProfile catalogue = profiles::unguarded.on(Database::catalogue).when_not_prepared(webserver_on_output);

/// The joined names of one class.
using JoinedNames = char[joined_columns][ROUTERDB_JOINED_NAMES];

/// Joins the names that the keys ask for. It is done before the element is begun, so that a message stands in front.
void join(json::Keys keys, int class_id, NameJoiner &joiner, JoinedNames &joined) {
    for (char(&names)[ROUTERDB_JOINED_NAMES] : joined) {
        names[0] = '\0';
    }
    for (const json::Key &key : keys) {
        if (key.value.source == json::Source::given && key.value.index >= given_names) {
            const int index = key.value.index - given_names;
            joiner.join(static_cast<Joined>(index), class_id, joined[index]);
        }
    }
}

/// Prints the elements and closes the list.
void print_rows(const ListSpec &spec, json::Keys keys, Reading &reading, const char *argument, int table_count) {
    constexpr json::Keys longest = all_classes.keys;  // make the longest elements
    StackText<longest.room() + sizeof(JoinedNames)> text;
    json::List list(keys, text);
    JoinedNames joined;
    NameJoiner joiner(reading.db());
    while (reading.next_row()) {
        join(keys, reading.row().number(0), joiner, joined);
        const std::string_view given[] = {"0", argument, joined[0], joined[1], joined[2]};
        static_assert(std::size(given) == given_values);
        list.print(reading.row(), given);
    }
    list.close(spec.count == Count::of_table ? table_count : list.count(), spec.closing_blank);
    if (!list.complete()) {
        reading.call().fail(ENOMEM);
    }
}

void append_query(Text &sql, const char *query, bool by_number, const char *argument, const ListSpec &spec) {
    sql.append(query);
    if (by_number) {
        sql.append_quoted(argument).append(spec.query_tail);
    }
}

void read_rows(const ListSpec &spec, json::Keys keys, const char *argument, int table_count,
               SharedConnection &connection) {
    SqlText sql;
    append_query(sql, spec.row_query, spec.reads_by_number, argument, spec);
    Reading reading(catalogue, &connection);
    const Start start = reading.start(sql);
    if (start == Start::ready) {
        print_rows(spec, keys, reading, argument, table_count);
    }
    if (start == Start::not_opened) {
        close_callers_descriptor(reading.code());  // Deliberate: the number of a descriptor is that of a failure.
        return;
    }
    reading.close();
    close_callers_descriptor(STDIN_FILENO);
}

void print_list(const ListSpec &spec, json::Keys keys, const char *argument) {
    SqlText sql;
    append_query(sql, spec.count_query, spec.counts_by_number, argument, spec);
    SharedConnection connection;
    const int count = first_number_closing_input(profiles::sql_int_count_dpi, sql, &connection);
    json::print("{\"ItemList\":");
    if (count < 1) {
        json::print(json::no_list);
        return;
    }
    json::print(json::opening);
    read_rows(spec, keys, argument, count, connection);
}

}  // namespace

void print_all_classes() {
    print_list(all_classes.spec, all_classes.keys, "");
}

void print_class(const char *id) {
    print_list(one_class.spec, one_class.keys, id);
}

void print_application(const char *id) {
    print_list(one_application.spec, one_application.keys, id);
}

void print_applications_of_class(const char *class_id) {
    print_list(applications_of_class.spec, applications_of_class.keys, class_id);
}

}  // namespace routerdb
