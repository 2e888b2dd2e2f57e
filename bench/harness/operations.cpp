#include <cstdio>

#include "bare/by_hand.h"
#include "harness/desk.h"
#include "harness/operation.h"
#include "harness/outcomes.h"
#include "harness/requests.h"
#include "harness/spawn.h"
#include "peers/by_peer.h"
#include "peers/kept.h"
#include "peers/name.h"
#include "peers/program.h"
#include "peers/soci.h"
#include "peers/sqlitecpp.h"

namespace bench {

Desk desk;

namespace {

using namespace outcomes;

#define PEERS(function) peers::function<peers::SqliteCpp>, peers::function<peers::Soci>, peers::function<peers::Program>
#define VARIANTS(function) \
    { bare::function, PEERS(function), peers::function<peers::KeptSqlite>, peers::function<peers::KeptSqliteCpp> }
#define NONE_KEPT(function) \
    { bare::function, PEERS(function), nullptr, nullptr }
#define BARE_ONLY(function) \
    { bare::function }
#define KEPT_ONLY(function)                                                            \
    {                                                                                  \
        bare::function, nullptr, nullptr, nullptr, peers::function<peers::KeptSqlite>, \
            peers::function<peers::KeptSqliteCpp>                                      \
    }

// Name, preparation, outcome, rounds, clock, library, other variants.
constexpr Operation table[] = {
    {"DB_getinfo", nullptr, device, 400, Clock::processor,
     [](const Library &library) { library.DB_getinfo(&desk.device, known_device, 0); }, VARIANTS(get_device)},
    {"DB_getinfo, after a write", write_elsewhere, device, 400, Clock::processor,
     [](const Library &library) { library.DB_getinfo(&desk.device, known_device, 0); }, KEPT_ONLY(get_device)},
    {"DB_getinfo, converted", nullptr, device, 400, Clock::processor,
     [](const Library &library) { library.DB_getinfo(&desk.device, known_device, 1); }, VARIANTS(get_device_converted)},
    {"GetApDevList", free_devices, devices, 200, Clock::processor,
     [](const Library &library) { library.GetApDevList(&desk.devices, 0); }, VARIANTS(list_devices)},
    {"GetUrlFilterItemListInServer", nullptr, url_filters, 200, Clock::processor,
     [](const Library &library) {
         library.GetUrlFilterItemListInServer(&desk.url_filters, "select * from filter_url order by Id;");
     },
     VARIANTS(list_url_filters)},
    {"GetBehaviorItemListInServer", close_left_open, behavior_rules, 8, Clock::processor,
     [](const Library &library) {
         library.GetBehaviorItemListInServer(&desk.behavior_rules, "select * from behavior_rule order by id;");
     },
     VARIANTS(list_behavior_rules)},
    {"DB_EXEC_SQL_CHAR", restore, device_rows, 200, Clock::processor,
     [](const Library &library) { library.DB_EXEC_SQL_CHAR(update_sql); }, NONE_KEPT(execute_update)},
    {"DB_UpdateInfo", restore_for_update, device_rows, 200, Clock::processor,
     [](const Library &library) { library.DB_UpdateInfo(desk.device); }, NONE_KEPT(configure_device)},
    {"DB_addinfo, new", restore_for_registration, device_rows, 50, Clock::processor,
     [](const Library &library) { library.DB_addinfo(desk.device); }, NONE_KEPT(register_device)},
    {"DB_addinfo, known", restore_for_report, device_rows, 100, Clock::processor,
     [](const Library &library) { library.DB_addinfo(desk.device); }, BARE_ONLY(register_device)},
    {"GetApDevList_cgi", forget_printed, printed, 200, Clock::processor,
     [](const Library &library) { library.GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17); },
     VARIANTS(print_device_page)},
    {"GetApDevList_cgi, after a write", write_elsewhere, printed, 200, Clock::processor,
     [](const Library &library) { library.GetApDevList_cgi(1, 0, 0, 0, nullptr, nullptr, 17); },
     KEPT_ONLY(print_device_page)},
    {"GetAppClassItemList", forget_printed, printed, 100, Clock::processor,
     [](const Library &library) { library.GetAppClassItemList(); }, VARIANTS(print_classes)},
    {"GetWlanZeroCfgGroupList", forget_printed, printed, 200, Clock::processor,
     [](const Library &library) { library.GetWlanZeroCfgGroupList(); }, VARIANTS(print_groups)},
    {"sqlclient_cmd, 1 record", choose_service, reply, 400, Clock::processor,
     [](const Library &library) { library.sqlclient_cmd(&one_filter, &desk.reply); }, BARE_ONLY(request_one)},
    {"sqlclient_cmd, 128 records", choose_service, reply, 400, Clock::processor,
     [](const Library &library) { library.sqlclient_cmd(&all_filters, &desk.reply); }, BARE_ONLY(request_all)},
    {"GetUrlFilterItemList", choose_service, url_filters, 200, Clock::elapsed,
     [](const Library &library) { library.GetUrlFilterItemList(&desk.url_filters); }, BARE_ONLY(fetch_url_filters)},
    {"process start",
     forget_printed,
     printed,
     100,
     Clock::processor,
     [](const Library &library) { spawn({library.start_program}); },
     {[] { spawn({beside("start-bare")}); }, [] { spawn({beside("start-sqlitecpp")}); },
      [] { spawn({beside("start-soci")}); }, peers::print_name<peers::Program>}},
};

#undef KEPT_ONLY
#undef BARE_ONLY
#undef NONE_KEPT
#undef VARIANTS
#undef PEERS

}  // namespace

OperationTable operations() {
    return {std::begin(table), std::end(table)};
}

bool has(const Operation &operation, Variant variant) {
    return variant < Variant::bare ||
           operation.others[static_cast<std::size_t>(variant) - static_cast<std::size_t>(Variant::bare)] != nullptr;
}

void run(const Profiles &profiles, const Operation &operation, Variant variant) {
    if (variant < Variant::bare) {
        operation.library(variant == Variant::exact ? profiles.exact : profiles.modern);
    } else {
        operation.others[static_cast<std::size_t>(variant) - static_cast<std::size_t>(Variant::bare)]();
    }
    std::fflush(stdout);
}

}  // namespace bench
