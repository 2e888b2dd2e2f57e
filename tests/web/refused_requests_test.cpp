// Requests that the CGI programs do not let through to the library.
#include <gtest/gtest.h>

#include "web/cgi.h"

namespace {

using web::answer;
using web::failure;
using web::post;

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
    EXPECT_EQ(answer(program, query), failure("400 Bad Request", error)) << program << "?" << query;
}

void expect_refused_form(const char *program, const std::string &form, const std::string &error) {
    EXPECT_EQ(post(program, form), failure("400 Bad Request", error)) << program << ": " << form;
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
        expect_refused_form("stations", std::string("ap=") + value,
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
        {"catalogue", "id=1", "query: unknown parameter"},
        {"zero-config-groups", "page=1", "query: unknown parameter"},
        {"url-filters", "page=1", "query: unknown parameter"},
        {"token", "page=1", "query: unknown parameter"},
    };
    for (const Refused &refused : cases) {
        expect_refusal(refused.program, refused.query, refused.error);
    }
    expect_refused_form("stations", "", "ap: missing");
    expect_refused_form("stations", "ip=1.2.3.4", "query: unknown parameter");
}

TEST(CgiRefuses, texts_of_any_length) {
    const std::string endless(100000, '1');
    expect_refusal("access-points", "ip=" + endless, "ip: digits and dots, 15 at most");
    expect_refusal("access-points", endless + "=1", "query: unknown parameter");
    expect_refused_form("stations", "ap=" + std::string(8000, '1'),
                        "ap: the address of an access point, such as 192.168.1.2");
    expect_refused_form("stations", "ap=" + endless, "form: longer than any, or no text");
    expect_refused_form("stations", std::string("ap=1.2.3.4\0", 11), "form: longer than any, or no text");
}

TEST(CgiRefuses, other_methods) {
    for (const char *program : {"access-points", "catalogue", "token", "zero-config-groups"}) {
        EXPECT_EQ(answer(program, "", "POST"),
                  failure("405 Method Not Allowed", "method: only GET and HEAD are answered"));
    }
    EXPECT_EQ(answer("url-filters", "", "PUT"),
              failure("405 Method Not Allowed", "method: only GET and HEAD are answered"));
    EXPECT_EQ(answer("stations", "ap=1.2.3.4"), failure("405 Method Not Allowed", "method: only POST is answered"));
}

// What a page of another origin can make a browser send.
TEST(CgiRefuses, forms_of_other_pages) {
    for (const char *origin : {"", "null", "http://elsewhere.example", "http://192.168.1.1", "http://192.168.1.1:80",
                               "http://192.168.1.1:8080.elsewhere.example", "192.168.1.1:8080",
                               "ftp://192.168.1.1:8080", "http://192.168.1.1:8080/"}) {
        for (const char *program : {"stations", "url-filters", "time-groups"}) {
            web::Variables variables = web::own_page();
            variables["HTTP_ORIGIN"] = origin;
            EXPECT_EQ(web::call(program, variables, "ap=1.2.3.4"), failure("403 Forbidden", "origin: another page"))
                << program << " from " << origin;
        }
    }
    web::Variables without_host = web::own_page();
    without_host["HTTP_HOST"] = "";
    without_host["HTTP_ORIGIN"] = "http://";
    EXPECT_EQ(web::call("stations", without_host, "ap=1.2.3.4"), failure("403 Forbidden", "origin: another page"));
    EXPECT_FALSE(support::file_exists("/var/calls"));
}

TEST(CgiRefuses, forms_without_the_token_of_this_server) {
    const std::string token = web::own_page()["PAGE_TOKEN"];
    for (const std::string &shown :
         {std::string(), token.substr(1), token + "0", "1" + token.substr(1), token.substr(0, 31) + "0"}) {
        web::Variables variables = web::own_page();
        variables["HTTP_X_PAGE_TOKEN"] = shown;
        EXPECT_EQ(web::call("stations", variables, "ap=1.2.3.4"),
                  failure("403 Forbidden", "token: not that of this server"))
            << shown;
    }
    web::Variables without_one = web::own_page();
    without_one["PAGE_TOKEN"] = without_one["HTTP_X_PAGE_TOKEN"] = "";
    EXPECT_EQ(web::call("stations", without_one, "ap=1.2.3.4"),
              failure("403 Forbidden", "token: not that of this server"));
    EXPECT_FALSE(support::file_exists("/var/calls"));
}

}  // namespace
