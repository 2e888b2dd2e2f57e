#include "profiles/library.h"

#include <dlfcn.h>

#include <stdexcept>

namespace profiles {

Library::Library(const char *path) : handle_(dlopen(path, RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) {
        throw std::runtime_error(dlerror());
    }
}

void *Library::find(const char *name) const {
    void *const function = dlsym(handle_, name);
    if (function == nullptr) {
        throw std::runtime_error(dlerror());
    }
    return function;
}

}  // namespace profiles
