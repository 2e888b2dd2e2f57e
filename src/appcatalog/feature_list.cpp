#include "appcatalog/feature_list.h"

#include <cstring>
#include <iterator>

#include "appcatalog/catalogue_text.h"
#include "core/list_room.h"
#include "core/reading.h"

namespace routerdb {

namespace {

using namespace profiles;

constexpr ReadProfile features = unguarded
                                     .under(Guard::lock_file_if_there)  // the lock file need not be there
                                     .when_not_locked(Stream::standard_output)
                                     .when_not_opened(error_on_output)
                                     .when_not_prepared(error_on_output);

constexpr std::size_t slot_size = sizeof(AppFeatureList::features[0]);

}  // namespace

void read_features(AppFeatureList &list, int class_id) {
    std::memset(&list, 0, sizeof(list));
    StackText<80> sql;
    sql.append("select Features from App_Info where Class_Id=").append_quoted(long{class_id}).append(" ;");
    Reading reading(features);
    if (reading.start(sql) != Start::ready) {
        return;
    }
    char *slot = list.features[0];
    std::uint32_t count = 0;
    while (reading.next_row() && list_takes(count, std::size(list.features), "App_Info", reading.call())) {
        const std::string_view feature = catalogue_text(reading.row(), 0);
        std::memcpy(slot, feature.data(), feature.size());
        slot[feature.size()] = '\0';
        slot += slot_size;
        ++count;
    }
    list.count = count;
}

}  // namespace routerdb
