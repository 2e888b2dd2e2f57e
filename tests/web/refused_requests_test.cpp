// Requests that the CGI programs do not let through to the library.
#include <gtest/gtest.h>

#include "web/cgi.h"

namespace {

using web::answer;
using web::headers;

struct Refused {
    const char *program;
    const char *query;
    const char *error;
};

constexpr char number[] = "a number from 1 to 9999";
constexpr char mac_part[] = "hexadecimal digits and colons, 17 at most";

std::string of(const char *parameter, const char *expected) {
    return std::string(parameter) + ": " + expected;
}

void expect_refusal(const char *program, const std::string &query, const std::string &error) {
    EXPECT_EQ(answer(program, query), "Status: 400 Bad Request\r\n" + (headers + ("{\"error\":\"" + error) + "\"}\n"))
        << program << "?" << query;
}

TEST(CgiRefuses, numbers_that_are_none_or_out_of_range) {
    for (const char *value : {"", "0", "0000", "-1", "+1", "%2B1", "1x", "x", "1.5", "0x10", "%201", "1%20", "1+",
                              "10000", "99999999999999999999", "1'", "1%00", "1%0a", "1;"}) {
        expect_refusal("access-points", std::string("page=") + value, of("page", number));
        expect_refusal("access-points", std::string("size=") + value, of("size", number));
        expect_refusal("catalogue", std::string("class=") + value, of("class", number));
    }
}

TEST(CgiRefuses, search_texts_with_anything_but_their_characters) {
    for (const char *value : {"", "%", "%25", "_", "a", "1'", "1%27", "1%22", "1 or 1", "1+or+1", "1%2", "1%zz", "1%00",
                              "1%0a", "1%0", "%2", "192.168.100.2000", "\xe5\xa4\xa7"}) {
        expect_refusal("access-points", std::string("ip=") + value, "ip: digits and dots, 15 at most");
    }
    for (const char *value : {"", "g", "%25", "a'", "a%27--", "a.b", "a b", "a%", "a%4", "00:11:22:33:44:556"}) {
        expect_refusal("access-points", std::string("mac=") + value, of("mac", mac_part));
    }
}

TEST(CgiRefuses, addresses_that_are_not_plain_and_whole) {
    for (const char *value :
         {"",           "1",          "1.2.3",          "1.2.3.4.5",        "256.1.1.1", "1.2.3.",
          "01.2.3.4",   "1..2.3",     "1.2.3.4;reboot", "1.2.3.4%3Breboot", "1.2.3.4+x", "1.2.3.4%0Areboot",
          "1.2.3.4%00", "$(reboot)",  "%60reboot%60",   "|reboot",          "::1",       "router",
          "1.2.3.4%20", "%201.2.3.4", "1.2.3.4/24",     "0x1.2.3.4"}) {
        expect_refusal("stations", std::string("ap=") + value,
                       "ap: the address of an access point, such as 192.168.1.2");
    }
    EXPECT_FALSE(support::file_exists("/var/calls"));
}

TEST(CgiRefuses, what_is_unknown_missing_or_given_twice) {
    static constexpr Refused cases[] = {
        {"access-points", "sort=name", "query: unknown parameter"},
        {"access-points", "page", "query: unknown parameter"},
        {"access-points", "=1", "query: unknown parameter"},
        {"access-points", "Page=1", "query: unknown parameter"},
        {"access-points", "pag%65%00=1", "query: unknown parameter"},
        {"access-points", "page%3D1", "query: unknown parameter"},
        {"access-points", "%=1", "query: unknown parameter"},
        {"access-points", "page=1&page=1", "page: given twice"},
        {"access-points", "page=1&p%61ge=2", "page: given twice"},
        {"access-points", "filter=", "filter: all, online or offline"},
        {"access-points", "filter=3", "filter: all, online or offline"},
        {"access-points", "filter=Online", "filter: all, online or offline"},
        {"access-points", "filter=online&ip=1", "filter: a search is among all access points"},
        {"access-points", "mac=1&filter=offline", "filter: a search is among all access points"},
        {"stations", "", "ap: missing"},
        {"stations", "ip=1.2.3.4", "query: unknown parameter"},
        {"catalogue", "id=1", "query: unknown parameter"},
        {"zero-config-groups", "page=1", "query: unknown parameter"},
    };
    for (const Refused &refused : cases) {
        expect_refusal(refused.program, refused.query, refused.error);
    }
}

TEST(CgiRefuses, texts_of_any_length) {
    const std::string endless(100000, '1');
    expect_refusal("access-points", "ip=" + endless, "ip: digits and dots, 15 at most");
    expect_refusal("access-points", endless + "=1", "query: unknown parameter");
    expect_refusal("stations", "ap=" + endless, "ap: the address of an access point, such as 192.168.1.2");
}

TEST(CgiRefuses, other_methods) {
    for (const char *program : {"access-points", "catalogue", "stations", "zero-config-groups"}) {
        EXPECT_EQ(answer(program, "", "POST"), std::string("Status: 405 Method Not Allowed\r\n") + headers +
                                                   "{\"error\":\"method: only GET and HEAD are answered\"}\n");
    }
}

}  // namespace
