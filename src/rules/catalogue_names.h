// Names of application classes and applications.
#pragma once

#include <string_view>

#include "core/reading.h"
#include "core/text.h"
#include "rules/catalogue.h"

namespace routerdb {

/// The two names of an entry of the application catalogue, there as long as this lives. Failures are written to
/// standard output.
class CatalogueNames {
public:
    /// Looks up a class.
    CatalogueNames(Catalogue &catalogue, int class_id);

    /// Looks up an application of a class.
    CatalogueNames(Catalogue &catalogue, int class_id, std::string_view feature);

    /// Whether there is an entry.
    bool found() const { return names_.name != nullptr; }

    /// Whether there is an entry that has both names.
    bool complete() const { return found() && *name() != '\0' && *name_en() != '\0'; }

    const char *name() const { return names_.name; }
    const char *name_en() const { return names_.name_en; }

private:
    bool look_up(const Text &sql);

    Reading reading_;
    Names names_{nullptr, nullptr};
};

}  // namespace routerdb
