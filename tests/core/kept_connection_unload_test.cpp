// What is kept goes with the library.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "routerdb.h"
#include "support/database.h"

namespace {

TEST(KeptConnection, is_closed_when_the_library_is_unloaded) {
    const int before = support::open_descriptors();
    for (int round = 0; round < 20; ++round) {
        void *const library = dlopen(LIBRARY, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(library, nullptr) << dlerror();
        const auto read = reinterpret_cast<decltype(&DB_getinfo)>(dlsym(library, "DB_getinfo"));
        DevInfo device{};
        for (int call = 0; call < 3; ++call) {
            read(&device, 7, 0);
        }
        EXPECT_EQ(support::open_descriptors(), before + 1);
        ASSERT_EQ(dlclose(library), 0);
        EXPECT_EQ(support::open_descriptors(), before);
        ASSERT_EQ(dlopen(LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr);
    }
}

}  // namespace
