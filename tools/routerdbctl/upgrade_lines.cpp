#include "upgrade_lines.h"

#include <cstdarg>

namespace ctl {

void UpgradeLines::add(const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    char *const line = sqlite3_vmprintf(format, arguments);
    va_end(arguments);
    text_.add("%s: %s\n", name_, line);
    sqlite3_free(line);
    ++count_;
}

}  // namespace ctl
