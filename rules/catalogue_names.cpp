#include "rules/catalogue_names.h"

namespace routerdb {

namespace {

constexpr Message error_on_output{Stream::standard_output, Wording::error};

// clang-format off
constexpr AccessProfile catalogue{
    Database::catalogue, Guard::none, FirstDelay::random, Draw::after_opening_lock_file, 1,
    Stream::nowhere, Stream::nowhere, error_on_output, FailedHandle::closed};
// clang-format on

}  // namespace

CatalogueNames::CatalogueNames(int class_id) : access_(catalogue) {
    SqlText sql;
    sql.append("select  Name,Name_En from App_Class where Id=").append_quoted(long{class_id}).append(";");
    find(sql);
}

CatalogueNames::CatalogueNames(int class_id, std::string_view feature) : access_(catalogue) {
    SqlText sql;
    sql.append("select Name,Name_En from App_Info where Class_Id=").append_quoted(long{class_id});
    sql.append(" and Features=").append_quoted(feature).append(";");
    find(sql);
}

void CatalogueNames::find(const Text &sql) {
    if (!sql.complete() || !access_.open()) {
        return;
    }
    const int code = statement_.prepare(access_.db(), sql.c_str(), access_.backoff());
    if (code != SQLITE_OK) {
        report(error_on_output, {nullptr, code, sqlite3_errmsg(access_.db())});
        return;
    }
    found_ = statement_.first_row(access_.backoff());
}

}  // namespace routerdb
