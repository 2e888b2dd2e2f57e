#include "apinventory/fragments.h"

#include <cstring>

#include "apinventory/device_fields.h"
#include "apinventory/numbers.h"

namespace routerdb {

namespace {

constexpr char tails[][4] = {"',", "', ", "' "};  // in the order of Tail

constexpr int least_power = 10;
constexpr int most_power = 100;

void append_text(Text &sql, std::string_view text, const Scope &scope) {
    if (scope.doubles_quotes) {
        sql.append_escaped(text);
    } else {
        sql.append(text);
    }
}

void append_converted(Text &sql, std::string_view ssid, const Scope &scope) {
    char in[sizeof(DevWlanEntry::Ssid) + 1];
    copy_cut(ssid, in, sizeof(in));
    char out[ROUTERDB_CONVERSION_ROOM];
    // Deliberate: an SSID that cannot be converted is written empty.
    if (convert(*scope.converter, in, ssid.size(), out, sizeof(out)) == 0) {
        append_text(sql, out, scope);
    }
}

void append_value(Text &sql, Value value, std::string_view member, const Scope &scope) {
    switch (value) {
        case Value::text:
        case Value::power:
            append_text(sql, member, scope);
            return;
        case Value::address_number:
            sql.append(address_in_host_order(member));
            return;
        case Value::reported_ssid:
            if (leads_its_radio(scope.wlan - 1)) {
                append_text(sql, member, scope);
            } else {
                append_converted(sql, member, scope);
            }
            return;
    }
}

bool is_left_out(Value value, std::string_view member) {
    const int number = value == Value::power ? number_in(member) : most_power;
    return number < least_power || number > most_power;
}

}  // namespace

void append_fragment(Text &sql, const char *column, Content content, const Scope &scope) {
    const std::string_view member = field_text(static_cast<const char *>(scope.base) + content.offset, content.width);
    if (is_left_out(content.value, member)) {
        return;
    }
    sql.append(content.lead == Lead::blank ? " " : "").append(scope.prefix);
    if (scope.wlan != 0) {
        sql.append(static_cast<unsigned long>(scope.wlan)).append("_");
    }
    sql.append(column).append(scope.suffix).append("='");
    append_value(sql, content.value, member, scope);
    sql.append(tails[static_cast<unsigned>(content.tail)]);
}

void append_fragments(Text &sql, const FragmentList &fragments, const Scope &scope) {
    const char *column = fragments.first;
    for (unsigned row = 0; row < fragments.count; ++row) {
        Content content;
        std::memcpy(&content, column + fragments.room, sizeof(content));
        append_fragment(sql, column, content, scope);
        column += fragments.room + sizeof(content);
    }
}

Scope scope_of(const DevInfo &record, const char *prefix, bool doubles_quotes) {
    return {&record, prefix, 0, "", doubles_quotes, nullptr};
}

Scope scope_of_wlan(const DevInfo &record, const char *prefix, unsigned number, bool doubles_quotes,
                    Gb2312ToUtf8 *converter) {
    return {&record.wlan[number], prefix, number + 1, "", doubles_quotes, converter};
}

Scope scope_of_radio(const DevInfo &record, const char *prefix, bool second, bool doubles_quotes) {
    const char *base = reinterpret_cast<const char *>(&record);
    return {second ? base + second_radio : base, prefix, 0, second ? "_sec" : "", doubles_quotes, nullptr};
}

}  // namespace routerdb
