// What the application catalogue says of a class or an application.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/reading.h"
#include "core/remembered.h"
#include "text/text.h"

namespace routerdb {

/// The catalogue during one call: its connection, and what has been read of it where the build profile remembers
/// lookups. The applications are read at once when the first of them is asked for: there is no index, so that looking
/// one up passes all of them.
class Catalogue {
public:
    class Entry;

    /// Looks up a class, or an application of a class. Failures are written to standard output.
    Entry of_class(int id);
    Entry of_application(int class_id, std::string_view feature);

private:
    struct Class {
        int id;
        const char *texts[2];  // name, name in English; null for a class that is not there
    };
    struct Application {
        int class_id;
        const char *texts[3];  // feature, name, name in English
    };
    enum class State : std::uint8_t { not_read, known, not_knowable };

    const Class *known_class(int id) const;
    void remember_class(int id, const char *name, const char *name_en);
    const char *const *known_names(int class_id, std::string_view feature);
    bool read_applications();
    bool remember_application(const Row &row);
    const Application *known_application(int class_id, std::string_view feature) const;

    SharedConnection connection_;
    RememberedByKey<Class> classes_;
    RememberedByKey<Application> applications_;
    State state_ = State::not_read;  // of the applications
};

/// The two names of an entry, there as long as this and the catalogue live.
class Catalogue::Entry {
public:
    /// Whether there is one.
    bool found() const { return name_ != nullptr; }

    /// Whether there is one that has both names.
    bool complete() const { return found() && *name_ != '\0' && *name_en_ != '\0'; }

    const char *name() const { return name_; }
    const char *name_en() const { return name_en_; }

private:
    friend class Catalogue;

    Entry(Catalogue &catalogue, int class_id);
    Entry(Catalogue &catalogue, int class_id, std::string_view feature);

    bool look_up(const Text &sql);
    void take(const char *const *names);

    Reading reading_;
    const char *name_ = nullptr;
    const char *name_en_ = nullptr;
};

}  // namespace routerdb
