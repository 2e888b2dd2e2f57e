// The application catalogue, which peers read once for a list.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "harness/desk.h"
#include "routerdb.h"

namespace bench {

struct Application {
    std::string feature;
    std::string name;
    std::string name_en;
};

struct Class {
    std::string name;
    std::string name_en;
    std::string mark;
    std::vector<Application> applications;
};

/// Classes by number.
using Catalogue = std::map<int, Class>;

/// Reads all of it: one statement for all classes, one for the applications of all.
template <typename Database>
Catalogue read_catalogue() {
    Catalogue catalogue;
    Database(paths::catalogue_database)
        .for_each(
            {"select 1, Id, Name, Name_En, Mark from App_Class",
             "select 0, Class_Id, Name, Name_En, Features from App_Info order by Id"},
            [&catalogue](const auto &row) {
                const int id = row.number(1);
                if (row.number(0) == 1) {
                    catalogue[id] = {std::string(row.text(2)), std::string(row.text(3)), std::string(row.text(4)), {}};
                } else if (const auto found = catalogue.find(id); found != catalogue.end()) {
                    found->second.applications.push_back(
                        {std::string(row.text(4)), std::string(row.text(2)), std::string(row.text(3))});
                }
            });
    return catalogue;
}

/// Writes the names of "1:f1?f2AND2:f3" into both texts of a rule.
void write_names(const Catalogue &catalogue, BehaviorItem &rule);

/// Prints it as a list in JSON.
void print_catalogue(const Catalogue &catalogue);

}  // namespace bench
