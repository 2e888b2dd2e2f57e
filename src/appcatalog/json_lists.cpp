#include "appcatalog/json_lists.h"

#include <unistd.h>

#include "appcatalog/catalogue_text.h"
#include "appcatalog/list_spec.h"
#include "appcatalog/names.h"
#include "core/json_list.h"
#include "core/profiles.h"
#include "core/query.h"
#include "core/reading.h"
#include "routerdb.h"

namespace routerdb {

namespace {

using profiles::parts::webserver_on_output;

// clang-format off
constexpr ReadProfile catalogue{
    {Database::catalogue, Guard::none, FirstDelay::random, Draw::after_opening_lock_file, 1,
     Stream::nowhere, Stream::nowhere, no_message, FailedHandle::closed},
    webserver_on_output};
// clang-format on

/// The joined names of one class.
using JoinedNames = char[joined_columns][ROUTERDB_JOINED_NAMES];

int index_in_joined(From from) {
    return static_cast<int>(from) - static_cast<int>(From::names);
}

/// Joins the names that the keys ask for. It is done before the element is begun, so that a message stands in front.
void join(const ListSpec &spec, int class_id, NameJoiner &joiner, JoinedNames &joined) {
    for (unsigned key = 0; key < spec.key_count; ++key) {
        const int index = index_in_joined(spec.keys[key].from);
        if (index >= 0) {
            joined[index][0] = '\0';
            joiner.join(static_cast<Joined>(index), class_id, joined[index]);
        }
    }
}

void print_member(json::Element &element, const Key &key, const Row &row, const char *argument,
                  const JoinedNames &joined) {
    switch (key.from) {
        case From::text:
            return element.print(key.name, catalogue_text(row, key.column));
        case From::number:
            return element.print(key.name, long{row.number(key.column)});
        case From::zero:
            return element.print(key.name, 0L);
        case From::argument:
            return element.print(key.name, argument);
        case From::names:
        case From::names_en:
        case From::features:
            return element.print(key.name, joined[index_in_joined(key.from)]);
    }
}

/// Prints the elements and closes the list.
void print_rows(const ListSpec &spec, Reading &reading, const char *argument, int table_count) {
    JoinedNames joined;
    NameJoiner joiner(reading.db());
    int count = 0;
    for (bool more = reading.first_row(); more; more = reading.next_row()) {
        join(spec, reading.row().number(0), joiner, joined);
        json::Element element;
        for (unsigned index = 0; index < spec.key_count; ++index) {
            print_member(element, spec.keys[index], reading.row(), argument, joined);
        }
        json::close_element();
        ++count;
    }
    json::Element closing;
    for (unsigned index = 0; index < spec.key_count; ++index) {
        closing.print(spec.keys[index].name, "");
    }
    json::close_list(spec.count == Count::of_table ? table_count : count, spec.closing_blank);
    json::close_object();
}

void read_rows(const ListSpec &spec, const char *argument, int table_count, SharedConnection &connection) {
    SqlText sql;
    sql.append(spec.row_query).append(argument).append(spec.query_tail);
    Reading reading(catalogue, &connection);
    const Start start = reading.start(sql);
    if (start == Start::ready) {
        print_rows(spec, reading, argument, table_count);
    }
    if (start == Start::not_opened) {
        close(reading.code());  // Deliberate: callers have come to expect it, as they do the close below.
        return;
    }
    reading.close();
    close(STDIN_FILENO);
}

void print_list(const ListSpec &spec, const char *argument) {
    SqlText sql;
    sql.append(spec.count_query);
    if (spec.count_by_class) {
        sql.append(argument).append(spec.query_tail);
    }
    SharedConnection connection;
    const int count = query(profiles::sqlite_sql_int, sql, {nullptr}, &connection);
    json::open_object("ItemList");
    if (count < 1) {
        json::print_no_list();
        return;
    }
    json::open_list();
    read_rows(spec, argument, count, connection);
}

}  // namespace

void print_all_classes() {
    print_list(all_classes, "");
}

void print_class(const char *id) {
    print_list(one_class, id);
}

void print_application(const char *id) {
    print_list(one_application, id);
}

void print_applications_of_class(const char *class_id) {
    print_list(applications_of_class, class_id);
}

}  // namespace routerdb
