// Walking operations and variants.
#pragma once

#include <vector>

#include "harness/operation.h"

namespace bench {

inline std::string_view name_of(Variant variant) {
    return variant_names[static_cast<std::size_t>(variant)];
}

inline std::vector<Variant> variants_of(const Operation &operation) {
    std::vector<Variant> variants;
    for (std::size_t number = 0; number < variant_names.size(); ++number) {
        if (has(operation, static_cast<Variant>(number))) {
            variants.push_back(static_cast<Variant>(number));
        }
    }
    return variants;
}

inline void prepare(const Operation &operation) {
    if (operation.prepare != nullptr) {
        operation.prepare();
    }
}

}  // namespace bench
