// The exported functions of the application catalogue.
#include "appcatalog/feature_list.h"
#include "appcatalog/json_lists.h"
#include "appcatalog/names.h"
#include "routerdb.h"
#include "text/text.h"

using namespace routerdb;

void GetAppinfosByClassId(int classId, char *out, sqlite3 *db) {
    join_names(Joined::names, classId, out, db);
}

void GetAppinfosEnByClassId(int classId, char *out, sqlite3 *db) {
    join_names(Joined::names_en, classId, out, db);
}

void GetAppFeaturesByClassId(int classId, char *out, sqlite3 *db) {
    join_names(Joined::features, classId, out, db);
}

int GetAppClassItemList() {
    print_all_classes();
    return 0;
}

int GetAppClassItem(const char *id) {
    print_class(or_empty(id));
    return 0;
}

int GetAppInfoItem(const char *id) {
    print_application(or_empty(id));
    return 0;
}

int GetAppInfoItemListByClassid(const char *classId) {
    print_applications_of_class(or_empty(classId));
    return 0;
}

int GetAppItemListByClassId(AppFeatureList *list, int classId) {
    read_features(*list, classId);
    return 0;
}
