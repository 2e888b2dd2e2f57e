// Parameters of tests that bear a name.
#pragma once

#include <ostream>
#include <string>
#include <utility>

namespace support {

/// Base of a parameter: its name is shown instead of its bytes.
struct Named {
    Named(const char *text) : name(text) {}
    Named(std::string text) : name(std::move(text)) {}

    std::string name;
};

inline std::ostream &operator<<(std::ostream &stream, const Named &parameter) {
    return stream << parameter.name;
}

}  // namespace support
