// What users of SQLiteCpp write once.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include "harness/device_columns.h"
#include "harness/texts.h"

namespace bench::sqlitecpp {

inline void copy(const SQLite::Column &column, char *field, std::size_t width) {
    const char *text = column.getText();
    copy_text(text, std::strlen(text), field, width);
}

template <std::size_t width>
void copy(const SQLite::Column &column, char (&field)[width]) {
    copy(column, field, width);
}

inline void read_device(SQLite::Statement &query, DevInfo &device) {
    device.Dev_Sn = query.getColumn(0).getUInt();
    for (const Place &place : device_columns) {
        copy(query.getColumn(place.column), reinterpret_cast<char *>(&device) + place.offset, place.width);
    }
}

inline void read_weekdays(SQLite::Statement &query, int first, int32_t (&weekday)[7]) {
    for (int day = 0; day < 7; ++day) {
        weekday[day] = query.getColumn(first + day).getInt();
    }
}

}  // namespace bench::sqlitecpp
