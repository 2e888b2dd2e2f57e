// The application catalogue during one call.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/remembered.h"
#include "core/shared_connection.h"

namespace routerdb {

/// The two names of an entry; null without an entry.
struct Names {
    const char *name;
    const char *name_en;
};

/// Its connection, and what has been read of it. The applications of a class are read at once when the first of them is
/// asked for: a list of rules asks for most of them.
class Catalogue {
public:
    SharedConnection connection;

    /// Null for a class that has to be looked up.
    const Names *find_class(int class_id);

    /// Remembers what a lookup gave.
    void remember_class(int class_id, Names names);

    /// Null for an application that has to be looked up.
    const Names *find_application(int class_id, std::string_view feature);

private:
    struct Application {
        const char *feature;
        Names names;
    };
    enum class State : std::uint8_t { not_read, known, not_knowable };
    struct Class {
        int id;
        Names names;
        State state;  // of the applications
        Remembered<Application> applications;

        bool remember(const char *feature, Names application);
    };

    Class *find(int class_id);
    bool read_applications(Class &owner);

    Remembered<Class> classes_;
};

}  // namespace routerdb
