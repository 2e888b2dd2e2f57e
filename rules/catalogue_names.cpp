#include "rules/catalogue_names.h"

namespace routerdb {

namespace {

constexpr Message error_on_output{Stream::standard_output, Wording::error};

// clang-format off
constexpr ReadProfile catalogue{
    {Database::catalogue, Guard::none, FirstDelay::random, Draw::after_opening_lock_file, 1,
     Stream::nowhere, Stream::nowhere, error_on_output, FailedHandle::closed},
    error_on_output};
// clang-format on

}  // namespace

CatalogueNames::CatalogueNames(int class_id) : reading_(catalogue) {
    SqlText sql;
    sql.append("select  Name,Name_En from App_Class where Id=").append_quoted(long{class_id}).append(";");
    find(sql);
}

CatalogueNames::CatalogueNames(int class_id, std::string_view feature) : reading_(catalogue) {
    SqlText sql;
    sql.append("select Name,Name_En from App_Info where Class_Id=").append_quoted(long{class_id});
    sql.append(" and Features=").append_quoted(feature).append(";");
    find(sql);
}

void CatalogueNames::find(const Text &sql) {
    found_ = sql.complete() && reading_.open() && reading_.prepare(sql.c_str()) && reading_.first_row();
}

}  // namespace routerdb
