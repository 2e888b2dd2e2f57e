#include "core/json_list.h"

#include <cstdio>

namespace routerdb::json {

void print(const char *piece) {
    std::fputs(piece, stdout);
}

void open_object(const char *name) {
    std::printf("{\"%s\":", name);
}

void print_no_list() {
    print("{\"count\":\"0\"}}");
}

void open_list(const char *name) {
    std::printf("{\"%s\":[", name);
}

void Element::open_member(const char *key) {
    json::print(separator_);
    json::print("\"");
    json::print(key);
    json::print("\":\"");
    separator_ = ",";
}

void Element::print(const char *key, const char *value) {
    print(key, std::string_view(value));
}

void Element::print(const char *key, std::string_view value) {
    open_member(key);
    if (!value.empty()) {  // an empty one may have no address, which fwrite does not take
        std::fwrite(value.data(), 1, value.size(), stdout);
    }
    json::print("\"");
}

void Element::print(const char *key, long value) {
    open_member(key);
    std::printf("%ld\"", value);
}

void Element::print(const char *key, unsigned long value) {
    open_member(key);
    std::printf("%lu\"", value);
}

void close_element() {
    print("},");
}

void close_list(int count, const char *blank) {
    print(blank);
    std::printf("}],\"count\":\"%d\"", count);
}

void print_total(const char *key, int value) {
    std::printf(",\"%s\":\"%d\"", key, value);
}

void close_object() {
    print("}}");
}

}  // namespace routerdb::json
