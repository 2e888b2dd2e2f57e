#include "meaning.h"

#include <arpa/inet.h>

#include <cctype>
#include <cstdio>
#include <cstring>

#include "utf8.h"

namespace ctl {

namespace {

struct Named {
    char column[14];
    Meaning meaning;
};

constexpr Named named[] = {
    {"mac", Meaning::mac},
    {"devmac", Meaning::mac},
    {"ip", Meaning::address},
    {"devip", Meaning::address},
    {"devstartip", Meaning::address},
    {"devendip", Meaning::address},
    {"startip", Meaning::address},
    {"endip", Meaning::address},
    {"start_time", Meaning::time},
    {"end_time", Meaning::time},
    {"status", Meaning::flag},
    {"timegroup_id", Meaning::reference},
    {"ipgroup_id", Meaning::reference},
    {"timecontrol", Meaning::control},
    {"ipcontrol", Meaning::control},
};

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

bool is_mac(std::string_view text) {
    if (text.size() != 17) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool fits = i % 3 == 2 ? text[i] == ':' : std::isxdigit(static_cast<unsigned char>(text[i])) != 0;
        if (!fits) {
            return false;
        }
    }
    return true;
}

bool is_address(std::string_view text) {
    char address[INET_ADDRSTRLEN];
    in_addr number{};
    std::snprintf(address, sizeof(address), "%.*s", static_cast<int>(text.size()), text.data());
    return text.size() < sizeof(address) && inet_pton(AF_INET, address, &number) == 1;
}

const char *fault_of_number(Meaning meaning, std::string_view value) {
    std::int32_t number = 0;
    if (!read_number(value, number)) {
        return "is no number of 32 bits";
    }
    return meaning == Meaning::flag && number != 0 && number != 1 ? "is neither 0 nor 1" : nullptr;
}

const char *fault_of_text(Meaning meaning, std::string_view value) {
    if (value.empty()) {
        return nullptr;  // it says nothing
    }
    switch (meaning) {
        case Meaning::mac:
            return is_mac(value) ? nullptr : "is no MAC address, such as 02:00:5e:10:00:01";
        case Meaning::address:
            return is_address(value) ? nullptr : "is no IPv4 address, such as 192.168.1.20";
        case Meaning::time:
            return is_time(value) ? nullptr : "is no time of day, such as 20:30";
        default:
            return is_utf8(value) ? nullptr : "is no UTF-8";
    }
}

}  // namespace

bool is_time(std::string_view text) {
    return text.size() == 5 && is_digit(text[0]) && is_digit(text[1]) && text[2] == ':' && is_digit(text[3]) &&
           is_digit(text[4]) && (text[0] < '2' || (text[0] == '2' && text[1] < '4')) && text[3] < '6';
}

bool read_number(std::string_view text, std::int32_t &number) {
    const bool is_negative = !text.empty() && text[0] == '-';
    text.remove_prefix(is_negative ? 1 : 0);
    if (text.empty() || text.size() > 10) {
        return false;
    }
    std::int64_t value = 0;
    for (const char c : text) {
        if (!is_digit(c)) {
            return false;
        }
        value = value * 10 + (c - '0');
    }
    value = is_negative ? -value : value;
    number = static_cast<std::int32_t>(value);
    return number == value;
}

Meaning meaning_of(const Field &field) {
    for (const Named &one : named) {
        if (std::strcmp(one.column, field.column) == 0) {
            return one.meaning;
        }
    }
    return field.kind == Kind::text ? Meaning::text : field.kind == Kind::weekdays ? Meaning::flag : Meaning::number;
}

const char *name_of(Meaning meaning) {
    constexpr const char *names[] = {"a number",        "a text", "0 or 1", "a MAC address",
                                     "an IPv4 address", "HH:MM",  "an id",  "1 its own, 2 the group's"};
    return names[static_cast<unsigned>(meaning)];
}

const char *fault_of(const Field &field, std::string_view value, Sql &words) {
    const Meaning meaning = meaning_of(field);
    if (field.kind != Kind::text) {
        return fault_of_number(meaning, value);
    }
    if (value.size() >= field.width) {
        words.add("has %d bytes, of which %d fit", static_cast<int>(value.size()), field.width - 1);
        return words.text();
    }
    return fault_of_text(meaning, value);
}

}  // namespace ctl
