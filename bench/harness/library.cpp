#include "harness/library.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace bench {

namespace {

void *must_find(void *found) {
    if (found == nullptr) {
        std::fprintf(stderr, "bench: %s\n", dlerror());
        std::exit(1);
    }
    return found;
}

}  // namespace

Library load_library(const char *path, std::string start_program) {
    void *const handle = must_find(dlopen(path, RTLD_NOW | RTLD_LOCAL));
    Library library{};
#define LOAD(function) \
    library.function = reinterpret_cast<decltype(library.function)>(must_find(dlsym(handle, #function)));
    BENCH_LIBRARY_FUNCTIONS(LOAD)
#undef LOAD
    library.start_program = std::move(start_program);
    return library;
}

}  // namespace bench
