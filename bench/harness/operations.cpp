#include <cstdio>

#include "harness/operation.h"
#include "harness/outcomes.h"
#include "harness/places.h"
#include "harness/variants.h"

namespace bench {

Places places;

namespace {

#define VARIANTS(function) \
    { bare::function, nullptr, nullptr, nullptr }

constexpr Operation table[] = {
    {"DB_getinfo", nullptr, outcomes::device, 400,
     [](const Library &library) { library.DB_getinfo(&places.device, known_device, 0); }, VARIANTS(get_device)},
    {"DB_getinfo, converted", nullptr, outcomes::device, 400,
     [](const Library &library) { library.DB_getinfo(&places.device, known_device, 1); },
     VARIANTS(get_device_converted)},
    {"GetApDevList", outcomes::free_devices, outcomes::devices, 200,
     [](const Library &library) { library.GetApDevList(&places.devices, 0); }, VARIANTS(list_devices)},
    {"GetUrlFilterItemListInServer", nullptr, outcomes::url_filters, 200,
     [](const Library &library) {
         library.GetUrlFilterItemListInServer(&places.url_filters, "select * from filter_url order by Id;");
     },
     VARIANTS(list_url_filters)},
    {"DB_EXEC_SQL_CHAR", outcomes::restore, outcomes::device_rows, 200,
     [](const Library &library) { library.DB_EXEC_SQL_CHAR(update_sql); }, VARIANTS(execute_update)},
    {"DB_UpdateInfo", outcomes::restore_for_update, outcomes::device_rows, 200,
     [](const Library &library) { library.DB_UpdateInfo(places.device); }, VARIANTS(configure_device)},
    {"GetApDevList_cgi", outcomes::forget_printed, outcomes::printed, 200,
     [](const Library &library) { library.GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17); },
     VARIANTS(print_device_page)},
    {"GetAppClassItemList", outcomes::forget_printed, outcomes::printed, 200,
     [](const Library &library) { library.GetAppClassItemList(); }, VARIANTS(print_classes)},
    {"GetWlanZeroCfgGroupList", outcomes::forget_printed, outcomes::printed, 200,
     [](const Library &library) { library.GetWlanZeroCfgGroupList(); }, VARIANTS(print_groups)},
};

#undef VARIANTS

}  // namespace

OperationTable operations() {
    return {std::begin(table), std::end(table)};
}

bool has(const Operation &operation, Variant variant) {
    return variant < Variant::bare || operation.others[static_cast<std::size_t>(variant) - static_cast<std::size_t>(Variant::bare)] != nullptr;
}

void run(const Profiles &profiles, const Operation &operation, Variant variant) {
    if (variant == Variant::exact || variant == Variant::modern) {
        operation.library(variant == Variant::exact ? profiles.exact : profiles.modern);
    } else {
        operation.others[static_cast<std::size_t>(variant) - static_cast<std::size_t>(Variant::bare)]();
    }
    std::fflush(stdout);
}

}  // namespace bench
