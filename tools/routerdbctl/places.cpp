#include "places.h"

namespace ctl {

bool has_table(const Database &database, const char *name) {
    Query query(database, "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?1 COLLATE NOCASE");
    return query.bind(1, name).next();
}

Places::Places(Examination &examination, const Database &database, const char *table)
    : examination_(examination), database_(database), table_(table), is_there_(has_table(database, table)) {
    if (!is_there_) {
        examination.report.fail(mend_tables, "there is no table %s", table);
    }
}

void Places::expect(unsigned place, const char *column) {
    Query query(database_, "SELECT name, name = ?3 COLLATE NOCASE FROM pragma_table_info(?1) WHERE cid = ?2");
    query.bind(1, table_).bind(2, std::int64_t{place}).bind(3, column);
    if (!query.next()) {
        examination_.report.fail(mend_tables, "%s has no column %u, which should be %s", table_, place, column);
    } else if (query.number(1) == 0) {
        examination_.report.fail(mend_tables, "column %u of %s is %s instead of %s", place, table_,
                                 query.text(0).data(), column);
    }
}

void Places::expect(const char *column) {
    Query query(database_, "SELECT 1 FROM pragma_table_info(?1) WHERE name = ?2 COLLATE NOCASE");
    if (!query.bind(1, table_).bind(2, column).next()) {
        examination_.report.fail(mend_tables, "%s has no column %s", table_, column);
    }
}

}  // namespace ctl
