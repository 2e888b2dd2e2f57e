// A question to the service that is easy to answer.
#pragma once

#include <string>

#include "support/peer.h"
#include "support/record.h"

inline std::string question() {
    return support::request(100, 1, "select 'answer';");
}

inline std::string answer() {
    return support::words({100, 1, 7}) + std::string("answer\0", 7);
}

/// A question without end.
constexpr char endless[] = "with recursive n(i) as (select 1 union all select i+1 from n) select count(*) from n;";

/// More rows than one connection holds at a time.
constexpr char url_rows[] =
    "with recursive numbers(n) as (select 1 union all select n + 1 from numbers where n < 128)"
    "insert into filter_url(name) select n from numbers;";

inline std::string url_list() {
    return support::request(2, 1, "select * from filter_url;");
}
