#include "appcatalog/catalogue.h"

#include <cstring>

#include "appcatalog/catalogue_text.h"

namespace routerdb {

namespace {

using namespace profiles;

constexpr ReadProfile entries =
    unguarded.on(Database::catalogue).when_not_opened(error_on_output).when_not_prepared(error_on_output);

// Nothing is said here: an application that is not known afterwards is looked up by itself, and that lookup says it.
constexpr ReadProfile all_applications = unguarded.on(Database::catalogue).when_not_prepared(no_message);

/// The names of what is known not to be there.
constexpr const char *no_names[2] = {nullptr, nullptr};

/// Whether comparing its bytes finds a feature as the statement does: a quote in it would be part of the statement.
bool is_plain(std::string_view feature) {
    return std::memchr(feature.data(), '\'', feature.size()) == nullptr;
}

/// The same feature may be in many classes.
std::uint32_t key_of(int class_id, std::string_view feature) {
    return routerdb::key_of(feature) ^ static_cast<std::uint32_t>(class_id);
}

/// A text that may not be there.
std::string_view view_of(const char *text) {
    return text != nullptr ? std::string_view(text) : std::string_view();
}

}  // namespace

Catalogue::Entry Catalogue::of_class(int id) {
    return Entry(*this, id);
}

Catalogue::Entry Catalogue::of_application(int class_id, std::string_view feature) {
    return Entry(*this, class_id, feature);
}

const Catalogue::Class *Catalogue::known_class(int id) const {
    return classes_.find(static_cast<std::uint32_t>(id), [id](const Class &known) { return known.id == id; });
}

const Catalogue::Application *Catalogue::known_application(int class_id, std::string_view feature) const {
    return applications_.find(key_of(class_id, feature), [class_id, feature](const Application &known) {
        return known.class_id == class_id && known.texts[0] == feature;
    });
}

void Catalogue::remember_class(int id, const char *name, const char *name_en) {
    if (Class *const known = classes_.add(static_cast<std::uint32_t>(id), {view_of(name), view_of(name_en)})) {
        known->id = id;
    }
}

/// Of applications with the same feature the first one counts.
bool Catalogue::remember_application(const Row &row) {
    const int class_id = row.number(0);
    const std::string_view feature = row.text(3);
    if (known_application(class_id, feature) != nullptr) {
        return true;
    }
    Application *const added = applications_.add(key_of(class_id, feature), {feature, row.text(1), row.text(2)});
    if (added != nullptr) {
        added->class_id = class_id;
    }
    return added != nullptr;
}

/// @return both names, null ones for an application that is not there; null for one that has to be looked up
const char *const *Catalogue::known_names(int class_id, std::string_view feature) {
    // Who asks for one application alone has not asked for its class.
    if (known_class(class_id) == nullptr || !is_plain(feature)) {
        return nullptr;
    }
    if (state_ == State::not_read) {
        state_ = read_applications() ? State::known : State::not_knowable;
    }
    if (state_ == State::not_knowable) {
        return nullptr;
    }
    const Application *const found = known_application(class_id, feature);
    return found != nullptr ? found->texts + 1 : no_names;
}

/// @return whether all of them are there, their classes as numbers and their features as texts: others compare in ways
///         of their own
bool Catalogue::read_applications() {
    const CallErrno untold;  // the lookup by itself tells
    Reading reading(all_applications, &connection_);
    if (reading.start(every_application) != Start::ready) {
        return false;
    }
    while (reading.next_row()) {
        const Row row = reading.row();
        if (!row.is_int(0) || !row.is_text(3) || !remember_application(row)) {
            return false;
        }
    }
    return reading.ended_well();
}

Catalogue::Entry::Entry(Catalogue &catalogue, int class_id) : reading_(entries, &catalogue.connection_) {
    if (const Class *const known = catalogue.known_class(class_id)) {
        take(known->texts);
        return;
    }
    SqlText sql;
    sql.append("select  Name,Name_En from App_Class where Id=").append_quoted(long{class_id}).append(";");
    if (look_up(sql)) {
        catalogue.remember_class(class_id, name_, name_en_);
    }
}

Catalogue::Entry::Entry(Catalogue &catalogue, int class_id, std::string_view feature)
    : reading_(entries, &catalogue.connection_) {
    if (const char *const *const known = catalogue.known_names(class_id, feature)) {
        take(known);
        return;
    }
    SqlText sql;
    sql.append("select Name,Name_En from App_Info where Class_Id=").append_quoted(long{class_id});
    sql.append(" and Features=").append_quoted(feature).append(";");
    look_up(sql);
}

void Catalogue::Entry::take(const char *const *names) {
    name_ = names[0];
    name_en_ = names[1];
}

/// @return whether the lookup went well, with or without an entry
bool Catalogue::Entry::look_up(const Text &sql) {
    if (reading_.start(sql) != Start::ready) {
        return false;
    }
    if (reading_.next_row()) {
        name_ = reading_.row().text(0);
        name_en_ = reading_.row().text(1);
    }
    return reading_.ended_well();
}

}  // namespace routerdb
