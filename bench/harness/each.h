// Walking operations and variants.
#pragma once

#include <vector>

#include "harness/operation.h"

namespace bench {

inline std::vector<Variant> variants_of(const Operation &operation) {
    std::vector<Variant> variants;
    for (std::size_t number = 0; number < variant_names.size(); ++number) {
        if (has(operation, static_cast<Variant>(number))) {
            variants.push_back(static_cast<Variant>(number));
        }
    }
    return variants;
}

}  // namespace bench
