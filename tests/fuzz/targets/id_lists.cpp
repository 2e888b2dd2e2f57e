// Lists of identifiers, and the conditions made of them.
#include <cstring>

#include "fuzz/fuzz.h"
#include "routerdb.h"

const char fuzz::what[] = "id lists: no byte beyond a buffer, no condition that is none";

void fuzz::prepare() {}

namespace {

using fuzz::require;

/// Whether a condition is what the header says, with whatever it is cut to.
bool is_condition(std::string_view text, const std::string &column) {
    while (!text.empty()) {
        const std::string start = column + "='";
        const std::size_t given = std::min(start.size(), text.size());
        if (text.substr(0, given) != start.substr(0, given)) {
            return false;
        }
        text.remove_prefix(given);
        text.remove_prefix(std::min(text.find_first_not_of("-0123456789"), text.size()));
        const std::string end = "' or ";
        const std::size_t left = std::min(end.size(), text.size());
        if (text.substr(0, left) != end.substr(0, left)) {
            return false;
        }
        text.remove_prefix(left);
    }
    return true;
}

void read_ids(const std::string &list) {
    fuzz::Argument text(list);
    fuzz::Room ids(sizeof(int) * ROUTERDB_MAX_IDS);
    const int count = muti_id_convert_int_array(text.text(), ids.as<int>());
    const bool alone = list.find('#') == std::string::npos;
    require(alone ? count == 1 : count >= 0 && count <= ROUTERDB_MAX_IDS, "a count that cannot be");
}

void append_condition(const std::string &list, std::size_t size, unsigned column) {
    static const std::string columns[] = {"id", "ipgroup_id", "timegroup_id", ""};
    fuzz::Argument text(list);
    fuzz::Room out(size);
    *out.text() = '\0';
    const std::size_t length =
        generate_db_params(text.text(), out.text(), static_cast<unsigned>(size), static_cast<int>(column));
    require(length < size && strnlen(out.text(), size) == length, "a length that is none");
    require(column < 3 ? is_condition(out.text(), columns[column]) : length == 0,
            std::string("no condition: ") + out.text());
}

}  // namespace

void fuzz::run(Input input) {
    const unsigned column = input.take_number(4);
    const std::size_t size = 1 + std::size_t{input.take_number(256)} * 8;
    const std::string list = input.take_rest();
    const std::string text = list.substr(0, list.find('\0'));
    read_ids(text);
    append_condition(text, size, column);
}
