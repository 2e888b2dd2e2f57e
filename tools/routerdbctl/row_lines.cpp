#include "row_lines.h"

#include <cstdio>

#include "output.h"

namespace ctl {

Status print_set_lines(const Table &table, Query &query) {
    while (query.next()) {
        std::printf("routerdbctl rule add --force %s", table.name);
        for (int i = 0; i < query.columns(); ++i) {
            if (query.type(i) == SQLITE_NULL) {
                continue;
            }
            std::printf(" %s=", query.name(i));
            const bool is_number = query.type(i) == SQLITE_INTEGER;
            const std::string_view text = query.text(i);
            if (is_number) {
                std::printf("%.*s", static_cast<int>(text.size()), text.data());
            } else {
                print_quoted(text);
            }
        }
        std::putchar('\n');
    }
    return query.status();
}

}  // namespace ctl
