// Names of application classes and applications.
#pragma once

#include <string_view>

#include "core/reading.h"
#include "core/text.h"

namespace routerdb {

/// The two names of an entry of the application catalogue, there as long as this lives. Failures are written to
/// standard output.
class CatalogueNames {
public:
    /// Looks up a class.
    explicit CatalogueNames(int class_id);

    /// Looks up an application of a class.
    CatalogueNames(int class_id, std::string_view feature);

    /// Whether there is an entry.
    bool found() const { return found_; }

    /// Whether there is an entry that has both names.
    bool complete() const { return found_ && *name() != '\0' && *name_en() != '\0'; }

    const char *name() const { return reading_.row().text(0); }
    const char *name_en() const { return reading_.row().text(1); }

private:
    void find(const Text &sql);

    Reading reading_;
    bool found_ = false;
};

}  // namespace routerdb
