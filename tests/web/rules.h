// Forms that change rules, and what comes back.
#pragma once

#include <string>

#include "web/cgi.h"

namespace web {

/// A form that adds a URL filter with times of its own.
inline constexpr char filter_form[] =
    "action=add&name=No+videos&url=video.example&mark=&status=1&days=1111100&from=20:30&to=23:59";

/// One that adds a time group.
inline constexpr char group_form[] = "action=add&name=School+nights&mark=&days=1111100&from=20:30&to=23:59";

/// The version of a row, as the answer to a GET gives it: "" if there is no such row.
inline std::string version_of(const std::string &list, int id) {
    const std::string text = answer("url-filters", "");
    const std::string mark = "\"id\":" + std::to_string(id) + ",\"version\":\"";
    const std::size_t start = text.find(mark, text.find("\"" + list + "\":"));
    return start == std::string::npos ? "" : text.substr(start + mark.size(), 16);
}

/// What a form has to say to change a row as it is now.
inline std::string row(const std::string &list, int id) {
    return "id=" + std::to_string(id) + "&version=" + version_of(list, id) + "&";
}

}  // namespace web
