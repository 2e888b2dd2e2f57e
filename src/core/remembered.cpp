#include "core/remembered.h"

#include "text/text.h"

namespace routerdb {

std::size_t room_for(const std::string_view *texts, std::size_t count) {
    std::size_t room = count;  // for the terminators
    for (std::size_t index = 0; index < count; ++index) {
        room += texts[index].size();
    }
    return room;
}

void copy_texts(const std::string_view *texts, std::size_t count, char *place, const char **copies) {
    for (std::size_t index = 0; index < count; ++index) {
        const std::size_t width = texts[index].size() + 1;
        if (texts[index].data() != nullptr) {
            copy_cut(texts[index], place, width);
            copies[index] = place;
        }
        place += width;
    }
}

}  // namespace routerdb
