#include "doctor.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <regex>

#include "run.h"
#include "support/database.h"

namespace support {

std::string without_sizes(const std::string &text) {
    return std::regex_replace(text, std::regex("[0-9]+ (bytes|KiB)"), "N $1");
}

std::vector<std::string> doctor_lines(const std::vector<std::string> &checks,
                                      const std::vector<std::string> &arguments) {
    std::vector<std::string> found;
    for (const std::string &line : lines_of(run(arguments).output)) {
        const std::string check = line.substr(6, line.find(' ', 6) - 6);
        if (std::find(checks.begin(), checks.end(), check) != checks.end()) {
            found.push_back(without_sizes(line));
        }
    }
    return found;
}

std::string doctor_line(const std::string &check, const std::vector<std::string> &arguments) {
    const std::vector<std::string> lines = doctor_lines({check}, arguments);
    return lines.size() == 1 ? lines.front() : "there is no such line";
}

std::string own_user() {
    const passwd *const entry = getpwuid(geteuid());
    return entry != nullptr ? entry->pw_name : std::to_string(geteuid());
}

std::string named(pid_t process) {
    const std::string id = std::to_string(process);
    const std::string name = file_content("/proc/" + id + "/comm");
    return "process " + id + " (" + name.substr(0, name.size() - 1) + ") of " + own_user();
}

}  // namespace support
