#include "rules/catalogue.h"

#include <cstring>

#include "core/reading.h"
#include "core/text.h"

namespace routerdb {

namespace {

constexpr Names no_names{nullptr, nullptr};

// Nothing is said here: an application that is not known afterwards is looked up by itself, and that lookup says it.
// clang-format off
constexpr ReadProfile silent_catalogue{
    {Database::catalogue, Guard::none, FirstDelay::random, Draw::after_opening_lock_file, 1,
     Stream::nowhere, Stream::nowhere, no_message, FailedHandle::closed},
    no_message};
// clang-format on

std::size_t size_of(const char *text) {
    return text != nullptr ? std::strlen(text) + 1 : 0;
}

/// Copies a text, which may be null, to where the last one ended.
const char *keep(const char *text, char *&place) {
    const std::size_t size = size_of(text);
    if (size == 0) {
        return nullptr;
    }
    const char *const kept = static_cast<const char *>(std::memcpy(place, text, size));
    place += size;
    return kept;
}

/// Whether comparing its bytes finds a feature as the statement does: a quote in it would be part of the statement.
bool is_plain(std::string_view feature) {
    return std::memchr(feature.data(), '\'', feature.size()) == nullptr;
}

}  // namespace

/// @return false without memory
bool Catalogue::Class::remember(const char *feature, Names application) {
    Application *const entry =
        applications.add(size_of(feature) + size_of(application.name) + size_of(application.name_en));
    if (entry != nullptr) {
        char *place = reinterpret_cast<char *>(entry + 1);
        *entry = {keep(feature, place), {keep(application.name, place), keep(application.name_en, place)}};
    }
    return entry != nullptr;
}

Catalogue::Class *Catalogue::find(int class_id) {
    return classes_.find([class_id](const Class &known) { return known.id == class_id; });
}

const Names *Catalogue::find_class(int class_id) {
    const Class *const known = find(class_id);
    return known != nullptr ? &known->names : nullptr;
}

void Catalogue::remember_class(int class_id, Names names) {
    if (Class *const entry = classes_.add(size_of(names.name) + size_of(names.name_en))) {
        char *place = reinterpret_cast<char *>(entry + 1);
        entry->id = class_id;
        entry->names = {keep(names.name, place), keep(names.name_en, place)};
    }
}

const Names *Catalogue::find_application(int class_id, std::string_view feature) {
    Class *const owner = find(class_id);
    if (owner == nullptr || !is_plain(feature)) {
        return nullptr;
    }
    if (owner->state == State::not_read) {
        owner->state = read_applications(*owner) ? State::known : State::not_knowable;
    }
    if (owner->state == State::not_knowable) {
        return nullptr;
    }
    const Application *const found =
        owner->applications.find([feature](const Application &known) { return known.feature == feature; });
    return found != nullptr ? &found->names : &no_names;
}

/// @return whether all of them are there, their features as texts: others compare in ways of their own
bool Catalogue::read_applications(Class &owner) {
    StackText<96> sql;
    sql.append("select Features,Name,Name_En from App_Info where Class_Id=").append_quoted(long{owner.id}).append(";");
    Reading reading(silent_catalogue, &connection);
    if (!reading.open() || !reading.prepare(sql.c_str())) {
        return false;
    }
    for (bool more = reading.first_row(); more; more = reading.next_row()) {
        const Row row = reading.row();
        if (!row.is_text(0) || !owner.remember(row.text(0), {row.text(1), row.text(2)})) {
            return false;
        }
    }
    return reading.ended_well();
}

}  // namespace routerdb
