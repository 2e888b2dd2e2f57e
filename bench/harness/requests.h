// The requests to the SQL service.
#pragma once

#include "routerdb.h"

namespace bench {

namespace texts {

inline constexpr char one[] = "select * from filter_url where id='1';";
inline constexpr char all[] = "select * from filter_url order by Id;";

}  // namespace texts

inline constexpr SqlRequest one_filter{ROUTERDB_TABLE_URL_FILTER, ROUTERDB_QUERY, sizeof(texts::one) - 1, texts::one};
inline constexpr SqlRequest all_filters{ROUTERDB_TABLE_URL_FILTER, ROUTERDB_QUERY, sizeof(texts::all) - 1, texts::all};

}  // namespace bench
