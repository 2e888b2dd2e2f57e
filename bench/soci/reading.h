// What users of SOCI write once.
#pragma once

#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <string>

#include "harness/desk.h"
#include "harness/device_columns.h"
#include "harness/texts.h"

namespace bench::soci_users {

inline std::string main_database() {
    return std::string("db=") + paths::main_database;
}

inline std::string catalogue_database() {
    return std::string("db=") + paths::catalogue_database;
}

inline std::string text(const soci::row &row, std::size_t column) {
    return row.get<std::string>(column, "");
}

template <std::size_t width>
void copy(const soci::row &row, std::size_t column, char (&field)[width]) {
    copy_text(text(row, column).c_str(), field);
}

inline void read_device(const soci::row &row, DevInfo &device) {
    device.Dev_Sn = static_cast<std::uint32_t>(row.get<int>(0));
    for (const Place &place : device_columns) {
        const std::string value = text(row, place.column);
        copy_text(value.data(), value.size(), reinterpret_cast<char *>(&device) + place.offset, place.width);
    }
}

inline void read_weekdays(const soci::row &row, std::size_t first, std::int32_t (&weekday)[7]) {
    for (std::size_t day = 0; day < 7; ++day) {
        weekday[day] = row.get<int>(first + day);
    }
}

}  // namespace bench::soci_users
