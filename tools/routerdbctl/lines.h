// The lines of a file.
#pragma once

#include <cstddef>
#include <string_view>

#include "status.h"

namespace ctl {

/// Reads a file as a whole, and keeps it.
class Lines {
public:
    Lines() = default;
    Lines(const Lines &) = delete;
    Lines &operator=(const Lines &) = delete;
    ~Lines();

    /// Calls take() for each line that is neither empty nor a remark after "#". The lines stay where they are.
    /// @param path  "-" for standard input, null for no lines at all
    /// @return done, or the first status of take() that is not, or what fail() has said
    template <typename Take>
    Status read(const char *path, Take take) {
        Status status = path != nullptr ? load(path) : Status::done;
        for (char *line = next(); status == Status::done && line != nullptr; line = next()) {
            if (*line != '\0' && *line != '#') {
                status = take(line);
            }
        }
        return status;
    }

    /// Reads all of it.
    Status load(const char *path);
    std::string_view text() const { return {text_, size_}; }

private:
    char *next();

    char *text_ = nullptr;
    char *rest_ = nullptr;
    std::size_t size_ = 0;
};

}  // namespace ctl
