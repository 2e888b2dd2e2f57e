// One library of several.
#pragma once

// The exported function of a library that has a name.
#define LIBRARY_FUNCTION(library, name) (library).get<decltype(name)>(#name)

namespace profiles {

/// A library that is loaded by its path.
class Library {
public:
    explicit Library(const char *path);

    /// An exported function; throws std::runtime_error without it.
    template <typename Function>
    Function *get(const char *name) const {
        return reinterpret_cast<Function *>(find(name));
    }

private:
    void *find(const char *name) const;

    void *handle_;
};

}  // namespace profiles
