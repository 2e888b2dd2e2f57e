// The catalogue, and what is printed as JSON.
#include "soak/calls/calls.h"

namespace soak {

#define SOAK_JOINED(function)                  \
    SOAK_CALL(#function, {                     \
        char names[ROUTERDB_JOINED_NAMES];     \
        function(3, names, callers.catalogue); \
    })

Calls list_calls() {
    return {
        SOAK_JOINED(GetAppinfosByClassId),
        SOAK_JOINED(GetAppinfosEnByClassId),
        SOAK_JOINED(GetAppFeaturesByClassId),
        leaves_without_databases(a_connection, SOAK_CALL("GetAppClassItemList", { GetAppClassItemList(); })),
        leaves_without_databases(a_connection, SOAK_CALL("GetAppClassItem", { GetAppClassItem("3"); })),
        leaves_without_databases(a_connection, SOAK_CALL("GetAppInfoItem", { GetAppInfoItem("1"); })),
        leaves_without_databases(a_connection,
                                 SOAK_CALL("GetAppInfoItemListByClassid", { GetAppInfoItemListByClassid("3"); })),
        SOAK_CALL("GetAppItemListByClassId",
                  {
                      static AppFeatureList list;
                      GetAppItemListByClassId(&list, 3);
                  }),
        leaves_without_databases({0, 0, 3},
                                 SOAK_CALL("GetApDevList_cgi", { GetApDevList_cgi(1, 3, 0, 0, "10.", "", 17); })),
        SOAK_CALL("GetWlanZeroCfgGroupList", { GetWlanZeroCfgGroupList(); }),
        slow(SOAK_CALL("GetApDevStaList", { GetApDevStaList("10.0.0.1"); })),
    };
}

}  // namespace soak
