#include "text/id_list.h"

#include <cstdio>
#include <cstring>

#include "routerdb.h"
#include "text/number.h"

namespace routerdb {

namespace {

constexpr char column_names[][13] = {"id", "ipgroup_id", "timegroup_id"};
constexpr int column_count = sizeof(column_names) / sizeof(column_names[0]);

}  // namespace

int read_ids(char *text, int *ids) {
    if (text == nullptr) {
        return 0;
    }
    if (std::strchr(text, '#') == nullptr) {
        ids[0] = to_number(text);
        return 1;
    }
    int count = 0;
    char *rest = nullptr;
    for (char *field = strtok_r(text, "#", &rest); field != nullptr; field = strtok_r(nullptr, "#", &rest)) {
        ids[count++] = to_number(field);
        if (count == ROUTERDB_MAX_IDS) {
            break;
        }
    }
    return count;
}

void append_id_condition(char *text, char *out, std::size_t size, int column) {
    int ids[ROUTERDB_MAX_IDS];
    const int count = read_ids(text, ids);
    if (column < 0 || column >= column_count) {
        return;
    }
    std::size_t length = std::strlen(out);
    for (int i = 0; i < count && length < size; ++i) {
        std::snprintf(out + length, size - length, "%s%s='%d'", i == 0 ? "" : " or ", column_names[column], ids[i]);
        length += std::strlen(out + length);
    }
}

}  // namespace routerdb
