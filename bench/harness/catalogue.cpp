#include "harness/catalogue.h"

#include <algorithm>

#include "harness/json_lists.h"
#include "harness/texts.h"

namespace bench {

namespace {

/// Two texts that grow side by side.
struct Names {
    std::string name;
    std::string name_en;

    template <typename Entry>
    void append(const char *separator, const Entry &entry) {
        name += separator + entry.name;
        name_en += separator + entry.name_en;
    }
};

void append_class(const Class &found, const std::string &features, Names &all) {
    all.append(all.name.empty() ? "" : "AND", found);
    const char *separator = ":";
    for (std::size_t start = 0; start < features.size(); separator = "?") {
        const std::size_t end = std::min(features.find('?', start), features.size());
        const auto application = std::find_if(
            found.applications.begin(), found.applications.end(),
            [&](const Application &one) { return features.compare(start, end - start, one.feature) == 0; });
        if (application != found.applications.end()) {
            all.append(separator, *application);
        }
        start = end + 1;
    }
}

void print_class(int id, const Class &printed) {
    std::string names;
    std::string names_en;
    std::string features;
    for (const Application &application : printed.applications) {
        names += application.name + '/';
        names_en += application.name_en + '/';
        features += application.feature + '/';
    }
    const std::string number = std::to_string(id);
    const std::array<std::string_view, class_keys.size()> values{
        number, printed.name, printed.name_en, printed.mark, "0", "0", names, names_en, features};
    print_element(class_keys, [&values](int key) { return values[static_cast<std::size_t>(key)]; });
}

}  // namespace

void write_names(const Catalogue &catalogue, BehaviorItem &rule) {
    const std::string info = rule.behavior_info;
    Names all;
    for (std::size_t start = 0; start < info.size();) {
        const std::size_t end = std::min(info.find("AND", start), info.size());
        const std::size_t colon = info.find(':', start);
        const auto found = catalogue.find(std::stoi(info.substr(start, colon - start)));
        if (found != catalogue.end()) {
            append_class(found->second, info.substr(colon + 1, end - colon - 1), all);
        }
        start = end + 3;
    }
    copy_text(all.name, rule.behavior_names);
    copy_text(all.name_en, rule.behavior_names_en);
}

void print_catalogue(const Catalogue &catalogue) {
    std::fputs(classes_head, stdout);
    for (const auto &[id, printed] : catalogue) {
        print_class(id, printed);
    }
    print_closing(class_keys, static_cast<int>(catalogue.size()));
    std::fputs("}}", stdout);
}

}  // namespace bench
