#include "shared/library_note.h"

#include <elf.h>
#include <link.h>

#include <cstddef>
#include <cstring>

namespace tools {

namespace {

constexpr char owner[] = "routerdb";
constexpr ElfW(Word) version = 1;

/// In the notes of a file names and texts begin at multiples of four.
constexpr std::size_t padded(std::size_t size) {
    return (size + 3) & ~std::size_t{3};
}

/// Looks through the notes of one segment.
const char *find_note(const char *place, std::size_t left) {
    ElfW(Nhdr) header;
    while (left >= sizeof(header)) {
        std::memcpy(&header, place, sizeof(header));
        const char *const name = place + sizeof(header);
        const std::size_t size = sizeof(header) + padded(header.n_namesz) + padded(header.n_descsz);
        if (size > left) {
            break;
        }
        const char *const text = name + padded(header.n_namesz);
        if (header.n_namesz == sizeof(owner) && std::memcmp(name, owner, sizeof(owner)) == 0 &&
            header.n_type == version && header.n_descsz != 0 && text[header.n_descsz - 1] == '\0') {
            return text;
        }
        place += size;
        left -= size;
    }
    return nullptr;
}

/// Looks through what one loaded file has mapped. Files come in the order in which their functions are found, so that
/// the first note is that of the library that is called.
int find_in_file(dl_phdr_info *file, std::size_t /*size*/, void *found) {
    for (int index = 0; index < file->dlpi_phnum; ++index) {
        const ElfW(Phdr) &segment = file->dlpi_phdr[index];
        if (segment.p_type != PT_NOTE) {
            continue;
        }
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the platform has addresses as numbers here
        const auto *const first = reinterpret_cast<const char *>(file->dlpi_addr + segment.p_vaddr);
        if (const char *const text = find_note(first, segment.p_memsz)) {
            *static_cast<const char **>(found) = text;
            return 1;
        }
    }
    return 0;
}

}  // namespace

const char *library_note() {
    const char *text = nullptr;
    dl_iterate_phdr(find_in_file, &text);
    return text;
}

}  // namespace tools
