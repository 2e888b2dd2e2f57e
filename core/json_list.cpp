#include "core/json_list.h"

#include <cstdio>

namespace routerdb::json {

void print(std::string_view piece) {
    if (!piece.empty()) {  // an empty one may have no address, which fwrite does not take
        std::fwrite(piece.data(), 1, piece.size(), stdout);
    }
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

void Element::open_member(std::string_view key) {
    json::print(separator_);
    json::print("\"");
    json::print(key);
    json::print("\":\"");
    separator_ = ",";
}

void Element::print(std::string_view key, std::string_view value) {
    open_member(key);
    json::print(value);
    json::print("\"");
}

void Element::print(std::string_view key, long value) {
    open_member(key);
    std::printf("%ld\"", value);
}

void Element::print(std::string_view key, unsigned long value) {
    open_member(key);
    std::printf("%lu\"", value);
}

void close_element() {
    print("},");
}

void close_list(int count, std::string_view blank) {
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
