// What the four lists of the application catalogue differ in.
#pragma once

#include <cstdint>

namespace routerdb {

/// Where a member of an element comes from.
enum class From : std::uint8_t {
    text,      // a column
    number,    // a column as a number
    zero,      // always 0
    argument,  // the caller's text
    names,     // the joined names of the class whose number is in column 0
    names_en,
    features,
};

struct Key {
    char name[13];
    From from;
    std::uint8_t column;
};

/// Which count is printed behind the list.
enum class Count : std::uint8_t { of_elements, of_table };

struct ListSpec {
    char count_query[52];  // up to the caller's text
    char row_query[76];
    char query_tail[4];   // behind the caller's text
    bool count_by_class;  // the caller's text and the tail belong to the count query too
    Count count;
    char closing_blank[2];
    std::uint8_t key_count;
    Key keys[9];
};

// clang-format off
inline constexpr ListSpec all_classes{
    "select  count(*) from App_Class;", "select * from App_Class order by Id ;", "", false,
    Count::of_elements, "", 9, {
        {"id", From::number, 0},
        {"name", From::text, 1},
        {"name_en", From::text, 2},
        {"mark", From::text, 4},
        {"priority", From::zero, 0},
        {"bw", From::zero, 0},
        {"appnames", From::names, 0},
        {"appnames_en", From::names_en, 0},
        {"appfeature", From::features, 0},
    }};

// Deliberate: the whole table is counted, and its count printed.
inline constexpr ListSpec one_class{
    "select  count(*) from App_Class;", "select Name,Mark from App_Class where Id='", "' ;", false,
    Count::of_table, "", 3, {
        {"name", From::text, 0},
        {"mark", From::text, 1},
        {"priority", From::zero, 0},
    }};

inline constexpr ListSpec one_application{
    "select\tcount(*) from App_Info;", "select Class_Id,Name,Name_En,Features,Mark from App_Info where Id='", "' ;", false,
    Count::of_elements, " ", 5, {
        {"classname", From::number, 0},  // Deliberate: the key says name, the value is the number.
        {"appname", From::text, 1},
        {"appname_en", From::text, 2},
        {"features", From::text, 3},
        {"mark", From::text, 4},
    }};

inline constexpr ListSpec applications_of_class{
    "select  count(*) from App_Info where Class_Id='", "select * from App_Info where Class_Id='", "';", true,
    Count::of_elements, " ", 6, {
        {"id", From::number, 0},
        {"class_id", From::argument, 0},
        {"appname", From::text, 2},
        {"appname_en", From::text, 3},
        {"features", From::text, 4},
        {"mark", From::text, 5},
    }};
// clang-format on

}  // namespace routerdb
