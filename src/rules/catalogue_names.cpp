#include "rules/catalogue_names.h"

namespace routerdb {

namespace {

constexpr Message error_on_output{Stream::standard_output, Wording::error};

// clang-format off
constexpr ReadProfile entries{
    {Database::catalogue, Guard::none, FirstDelay::random, Draw::after_opening_lock_file, 1,
     Stream::nowhere, Stream::nowhere, error_on_output, FailedHandle::closed},
    error_on_output};
// clang-format on

}  // namespace

CatalogueNames::CatalogueNames(Catalogue &catalogue, int class_id) : reading_(entries, &catalogue.connection) {
    if (const Names *known = catalogue.find_class(class_id)) {
        names_ = *known;
        return;
    }
    SqlText sql;
    sql.append("select  Name,Name_En from App_Class where Id=").append_quoted(long{class_id}).append(";");
    if (look_up(sql)) {
        catalogue.remember_class(class_id, names_);
    }
}

CatalogueNames::CatalogueNames(Catalogue &catalogue, int class_id, std::string_view feature)
    : reading_(entries, &catalogue.connection) {
    if (const Names *known = catalogue.find_application(class_id, feature)) {
        names_ = *known;
        return;
    }
    SqlText sql;
    sql.append("select Name,Name_En from App_Info where Class_Id=").append_quoted(long{class_id});
    sql.append(" and Features=").append_quoted(feature).append(";");
    look_up(sql);
}

/// @return whether the lookup went well, with or without an entry
bool CatalogueNames::look_up(const Text &sql) {
    if (!sql.complete() || !reading_.open() || !reading_.prepare(sql.c_str())) {
        return false;
    }
    if (reading_.first_row()) {
        names_ = {reading_.row().text(0), reading_.row().text(1)};
    }
    return reading_.ended_well();
}

}  // namespace routerdb
