// What the four lists of the application catalogue differ in.
#pragma once

#include <cstdint>

#include "appcatalog/catalogue_text.h"
#include "json/json_list.h"

namespace routerdb {

/// What is given for an element beside its row.
enum Given : std::uint8_t {
    given_zero,
    given_argument,  // the caller's text
    given_names,     // the joined names of the class whose number is in column 0
    given_names_en,
    given_features,
};
inline constexpr unsigned given_values = 5;

/// Which count is printed behind the list.
enum class Count : std::uint8_t { of_elements, of_table };

struct ListSpec {
    char count_query[52];  // up to the caller's text
    char row_query[76];
    char query_tail[3];     // behind the caller's text
    bool counts_by_number;  // the caller's text and the tail belong to the count query
    bool reads_by_number;   // and to the other
    Count count;
    char closing_blank[2];
};

template <std::size_t key_count>
struct KeyedList {
    ListSpec spec;
    json::Key keys[key_count];
};

constexpr json::Value catalogue_column(std::uint8_t column) {
    return json::column_text(column, longest_catalogue_text);
}

// clang-format off
inline constexpr KeyedList<9> all_classes{
    {"select  count(*) from App_Class;", "select * from App_Class order by Id ;", "", false, false,
     Count::of_elements, ""}, {
        {"id", json::column_number(0)},
        {"name", catalogue_column(1)},
        {"name_en", catalogue_column(2)},
        {"mark", catalogue_column(4)},
        {"priority", json::given(given_zero)},
        {"bw", json::given(given_zero)},
        {"appnames", json::given(given_names)},
        {"appnames_en", json::given(given_names_en)},
        {"appfeature", json::given(given_features)},
    }};

// Deliberate: the whole table is counted, and its count printed.
inline constexpr KeyedList<3> one_class{
    {"select  count(*) from App_Class;", "select Name,Mark from App_Class where Id=", " ;", false, true,
     Count::of_table, ""}, {
        {"name", catalogue_column(0)},
        {"mark", catalogue_column(1)},
        {"priority", json::given(given_zero)},
    }};

inline constexpr KeyedList<5> one_application{
    {"select\tcount(*) from App_Info;", "select Class_Id,Name,Name_En,Features,Mark from App_Info where Id=", " ;", false, true,
     Count::of_elements, " "}, {
        {"classname", json::column_number(0)},  // Deliberate: the key says name, the value is the number.
        {"appname", catalogue_column(1)},
        {"appname_en", catalogue_column(2)},
        {"features", catalogue_column(3)},
        {"mark", catalogue_column(4)},
    }};

inline constexpr KeyedList<6> applications_of_class{
    {"select  count(*) from App_Info where Class_Id=", "select * from App_Info where Class_Id=", ";", true, true,
     Count::of_elements, " "}, {
        {"id", json::column_number(0)},
        {"class_id", json::given(given_argument)},
        {"appname", catalogue_column(2)},
        {"appname_en", catalogue_column(3)},
        {"features", catalogue_column(4)},
        {"mark", catalogue_column(5)},
    }};
// clang-format on

}  // namespace routerdb
