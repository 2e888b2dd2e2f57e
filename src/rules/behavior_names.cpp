#include "rules/behavior_names.h"

#include <cstring>
#include <string_view>
#include <utility>

#include "text/number.h"

namespace routerdb {

namespace {

constexpr char group_separator[] = "AND";
constexpr char feature_separator[] = "?";
constexpr char class_separator[] = ":";

void append(const NameField &field, std::string_view piece) {
    const std::size_t length = std::strlen(field.text);
    const std::size_t room = field.width - 1 - length;
    const std::size_t size = piece.size() < room ? piece.size() : room;
    std::memcpy(field.text + length, piece.data(), size);
    field.text[length + size] = '\0';
}

/// Takes what stands before a separator off a text; all of it if there is none.
std::string_view take_until(std::string_view &text, const char *separator) {
    const std::size_t length = std::strlen(separator);
    const void *found = memmem(text.data(), text.size(), separator, length);
    if (found == nullptr) {
        return std::exchange(text, std::string_view());
    }
    // substr would do, but it may throw, and so needs the C++ runtime.
    const std::string_view taken(text.data(), static_cast<std::size_t>(static_cast<const char *>(found) - text.data()));
    text.remove_prefix(taken.size() + length);
    return taken;
}

/// The names of one behaviour rule on their way into its two texts.
class Writer {
public:
    Writer(Catalogue &catalogue, NameField names, NameField names_en)
        : catalogue_(catalogue), names_(names), names_en_(names_en) {}

    /// Writes a group, such as "3:f1?f2". One without a class id is skipped.
    void write_group(std::string_view group);

private:
    void write_class(int class_id);
    void write_application(int class_id, std::string_view feature, bool &first);
    void write_both(const char *piece) {
        append(names_, piece);
        append(names_en_, piece);
    }

    Catalogue &catalogue_;
    NameField names_;
    NameField names_en_;
    bool written_ = false;  // something of an earlier group
};

void Writer::write_group(std::string_view group) {
    const std::string_view id = take_until(group, class_separator);
    if (group.data() == nullptr) {
        return;
    }
    const int class_id = to_number(id.data());  // the separator, which is no digit, ends it
    write_class(class_id);
    bool first = true;
    while (!group.empty()) {
        write_application(class_id, take_until(group, feature_separator), first);
    }
}

void Writer::write_class(int class_id) {
    const Catalogue::Entry names = catalogue_.of_class(class_id);
    if (!names.complete()) {
        return;
    }
    if (written_) {
        write_both(group_separator);
    }
    append(names_, names.name());
    append(names_en_, names.name_en());
    write_both(class_separator);
    written_ = true;
}

void Writer::write_application(int class_id, std::string_view feature, bool &first) {
    const Catalogue::Entry names = catalogue_.of_application(class_id, feature);
    if (!names.complete()) {
        return;
    }
    if (!first) {
        write_both(feature_separator);
    }
    append(names_, names.name());
    append(names_en_, names.name_en());
    first = false;
    written_ = true;
}

}  // namespace

void append_behavior_names(Catalogue &catalogue, const char *info, NameField names, NameField names_en) {
    std::string_view rest = info;
    Writer writer(catalogue, names, names_en);
    while (!rest.empty()) {
        writer.write_group(take_until(rest, group_separator));
    }
}

}  // namespace routerdb
