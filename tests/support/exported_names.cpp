#include "support/exported_names.h"

#include <regex>

#include "support/database.h"

namespace support {

std::vector<std::string> exported_names(const std::string &expression) {
    const std::string list = file_content(EXPORT_LIST);
    const std::regex wanted("(?:^|\\s)(" + expression + ");");
    std::vector<std::string> names;
    for (std::sregex_iterator match(list.begin(), list.end(), wanted); match != std::sregex_iterator(); ++match) {
        names.push_back(match->str(1));
    }
    return names;
}

}  // namespace support
