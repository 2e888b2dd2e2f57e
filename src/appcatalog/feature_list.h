// The feature texts of a class.
#pragma once

#include "routerdb.h"

namespace routerdb {

/// Clears the list and reads the feature texts of a class into it, from the main database.
void read_features(AppFeatureList &list, int class_id);

}  // namespace routerdb
