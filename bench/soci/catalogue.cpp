// The application catalogue and the groups with SOCI.
#include "harness/json_lists.h"
#include "harness/variants.h"
#include "soci/reading.h"

namespace bench::soci_users {

using Rows = soci::rowset<soci::row>;

void print_classes() {
    soci::session sql(soci::sqlite3, catalogue_database());
    int id = 0;
    std::string name;
    std::string name_en;
    std::string feature;
    soci::statement applications = (sql.prepare << "select Name, Name_En, Features from App_Info where Class_Id = :id",
                                    soci::use(id), soci::into(name), soci::into(name_en), soci::into(feature));
    const Rows classes = (sql.prepare << "select * from App_Class order by Id");
    std::printf("{\"ItemList\":{\"data\":[");
    int count = 0;
    for (const soci::row &row : classes) {
        std::string names;
        std::string names_en;
        std::string features;
        id = row.get<int>(0);
        applications.execute();
        while (applications.fetch()) {
            names += name + '/';
            names_en += name_en + '/';
            features += feature + '/';
        }
        print_class({std::to_string(id).c_str(), text(row, 1).c_str(), text(row, 2).c_str(), text(row, 4).c_str(),
                     names.c_str(), names_en.c_str(), features.c_str()});
        ++count;
    }
    print_classes_end(count);
}

void print_groups() {
    soci::session sql(soci::sqlite3, main_database());
    const Rows groups = (sql.prepare << groups_sql);
    std::printf("{\"WlanGroupList\":{\"data\":[");
    int count = 0;
    for (const soci::row &row : groups) {
        std::string value;
        print_group([&](int column) {
            const auto position = static_cast<std::size_t>(column);
            value = column == 0 ? std::to_string(row.get<int>(position)) : text(row, position);
            return value.c_str();
        });
        ++count;
    }
    print_groups_end(count);
}

}  // namespace bench::soci_users
