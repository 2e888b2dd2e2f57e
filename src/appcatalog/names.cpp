#include "appcatalog/names.h"

#include <cstring>
#include <iterator>

#include "appcatalog/catalogue_text.h"
#include "core/call_errno.h"
#include "core/enum_order.h"
#include "core/statement.h"
#include "routerdb.h"
#include "text/text.h"

namespace routerdb {

namespace {

/// Appends a name and its "/" if both fit.
bool append_name(char *out, std::size_t &length, std::string_view name) {
    if (length + name.size() + 1 >= ROUTERDB_JOINED_NAMES) {
        return false;
    }
    std::memcpy(out + length, name.data(), name.size());
    length += name.size();
    out[length++] = '/';
    out[length] = '\0';
    return true;
}

struct Column {
    Joined joined;
    char name[9];
};

constexpr Column columns[] = {
    {Joined::names, "Name"},
    {Joined::names_en, "Name_En"},
    {Joined::features, "Features"},
};
static_assert(std::size(columns) == joined_columns && follows_enum(columns, &Column::joined));

}  // namespace

void join_names(Joined column, int class_id, char *out, sqlite3 *db) {
    StackText<80> sql;
    sql.append("select ").append(columns[static_cast<unsigned>(column)].name);
    sql.append(" from App_Info where Class_Id=").append_quoted(long{class_id}).append(";");
    CallErrno call;
    Backoff backoff(FirstDelay::microseconds_50);
    Statement statement;
    if (!statement.prepare(db, sql.c_str(), backoff, webserver_on_output)) {
        call.fail(errno_of(statement.code()));
        return;
    }
    bool more = statement.next_row(backoff);  // while it waits, what stood there stays
    out[0] = '\0';
    std::size_t length = 0;
    while (more) {
        more = append_name(out, length, catalogue_text(statement.row(), 0)) && statement.next_row(backoff);
    }
    if (!statement.ended_well()) {
        call.fail(errno_of(statement.code()));
    }
}

void NameJoiner::join(Joined column, int class_id, char *out) {
    if (state_ == State::not_read) {
        state_ = read_applications() ? State::known : State::not_knowable;
    }
    if (state_ == State::not_knowable) {
        return join_names(column, class_id, out, db_);
    }
    out[0] = '\0';
    Class *const owner = known_class(class_id);
    if (owner == nullptr) {
        return;
    }
    std::size_t length = 0;
    // Ends at the first name that does not fit.
    owner->applications.find([&](const Application &application) {
        return !append_name(out, length, application.texts[static_cast<unsigned>(column)]);
    });
}

NameJoiner::Class *NameJoiner::known_class(int id) const {
    return classes_.find(static_cast<std::uint32_t>(id), [id](const Class &known) { return known.id == id; });
}

/// @return whether all of them are there, their classes as numbers: others compare in ways of their own
bool NameJoiner::read_applications() {
    if (!classes_.enabled) {
        return false;
    }
    Backoff backoff(FirstDelay::microseconds_50);
    Statement statement;
    if (!statement.prepare(db_, every_application, backoff, no_message)) {
        return false;
    }
    while (statement.next_row(backoff)) {
        if (!remember(statement.row())) {
            return false;
        }
    }
    return statement.ended_well();
}

bool NameJoiner::remember(const Row &row) {
    if (!row.is_int(0)) {
        return false;
    }
    const int id = row.number(0);
    Class *owner = known_class(id);
    if (owner == nullptr) {
        owner = classes_.add(static_cast<std::uint32_t>(id));
        if (owner == nullptr) {
            return false;
        }
        owner->id = id;
    }
    return owner->applications.add({catalogue_text(row, 1), catalogue_text(row, 2), catalogue_text(row, 3)}) != nullptr;
}

}  // namespace routerdb
