#include "lines.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace ctl {

Lines::~Lines() {
    std::free(text_);
}

Status Lines::load(const char *path) {
    const bool is_standard_input = std::strcmp(path, "-") == 0;
    std::FILE *const file = is_standard_input ? stdin : std::fopen(path, "re");
    if (file == nullptr) {
        return fail(Status::not_found, "cannot read %s: %s", path, std::strerror(errno));
    }
    std::size_t room = 0;
    const ssize_t size = getdelim(&text_, &room, '\0', file);  // a text has none: this is all of it
    const bool failed = std::ferror(file) != 0;
    if (!is_standard_input) {
        std::fclose(file);
    }
    if (failed) {
        return fail(Status::not_found, "cannot read %s: %s", path, std::strerror(errno));
    }
    size_ = size > 0 ? static_cast<std::size_t>(size) : 0;
    rest_ = size_ != 0 ? text_ : nullptr;
    return Status::done;
}

char *Lines::next() {
    return rest_ != nullptr && *rest_ != '\0' ? strsep(&rest_, "\n") : nullptr;
}

}  // namespace ctl
