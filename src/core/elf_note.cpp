// What the library says of itself without being called: a note in its file, which is mapped with it. `readelf -n` lists
// it, `routerdb-sqld --version` prints it.
#include <cstdint>

namespace routerdb {

namespace {

#define TEXT_OF(word) #word
#define TEXT_OF_VALUE(macro) TEXT_OF(macro)
#define OWNER "routerdb"
#define PROFILE_AND_VERSION TEXT_OF_VALUE(ROUTERDB_PROFILE) " " ROUTERDB_VERSION

/// A note as it stands in a file: three words, then two texts, each of which begins at a word.
struct ElfNote {
    std::uint32_t owner_size;
    std::uint32_t text_size;
    std::uint32_t type;
    alignas(std::uint32_t) char owner[sizeof(OWNER)];
    alignas(std::uint32_t) char text[sizeof(PROFILE_AND_VERSION)];
};

constexpr std::uint32_t version = 1;

/// Nothing refers to it: its section alone is looked for. Compilers would begin a constant of its size elsewhere than
/// at the next word.
[[gnu::section(".note.routerdb"), gnu::used]] alignas(std::uint32_t) constexpr ElfNote note = {
    sizeof(OWNER), sizeof(PROFILE_AND_VERSION), version, OWNER, PROFILE_AND_VERSION};

}  // namespace

}  // namespace routerdb
