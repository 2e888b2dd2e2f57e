#include "upgrade_lines.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "output.h"

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

void UpgradeLines::print() const {
    const char *line = text_.text();
    while (*line != '\0') {
        const std::size_t length = std::strcspn(line, "\n");
        print_shown({line, length});
        std::putchar('\n');
        line += length + 1;
    }
}

}  // namespace ctl
