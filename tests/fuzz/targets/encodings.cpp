// Both encodings, there and back.
#include <algorithm>
#include <cstring>

#include "fuzz/fuzz.h"
#include "routerdb.h"

const char fuzz::what[] = "texts in both encodings: no byte beyond a buffer, and what is converted comes back";

void fuzz::prepare() {}

namespace {

using Convert = int(const char *, size_t, char *, size_t);

/// @return whether it went well; `out` has the text then
bool convert(Convert *function, const std::string &in, std::string &out) {
    fuzz::Argument text(in);
    // The room that is taken for granted, or room for the whole input.
    const std::size_t size = std::max<std::size_t>(ROUTERDB_CONVERSION_ROOM, in.size() + 1);
    fuzz::Room room(size);
    const bool converted = function(text.text(), in.size(), room.text(), size) == 0;
    out.assign(room.text(), strnlen(room.text(), size));
    return converted;
}

}  // namespace

void fuzz::run(Input input) {
    const bool from_utf8 = input.take_number(2) == 0;
    const std::string rest = input.take_rest();
    const std::string text = rest.substr(0, rest.find('\0'));
    std::string there;
    if (!convert(from_utf8 ? utf8togb2312 : gb2312toutf8, text, there)) {
        require(from_utf8 || there == text, "a text that cannot be converted is not given back");
        return;
    }
    std::string back;
    require(there.size() > ROUTERDB_CONVERSION_ROOM || convert(from_utf8 ? gb2312toutf8 : utf8togb2312, there, back),
            "no way back");
    require(there.size() > ROUTERDB_CONVERSION_ROOM || back == text, "another text comes back");
}
