// Query strings of web pages: what the CGI programs take of them.
#include <csetjmp>
#include <cstdlib>

#include "fuzz/fuzz.h"

// The header is C's, and C++ has another word for that. NOLINTNEXTLINE(bugprone-reserved-identifier)
#define _Noreturn [[noreturn]]
extern "C" {
#include "web/cgi/checks.h"
#include "web/cgi/request.h"
}

const char fuzz::what[] = "query strings: what is accepted is what a parameter may be, and a refusal is JSON";

namespace {

using fuzz::require;

thread_local bool running = false;
std::jmp_buf after_refusal;

bool consists_of(const std::string &value, const char *characters) {
    return value.find_first_not_of(characters) == std::string::npos && value.size() < 32;
}

/// @return whether it was refused
bool read(Parameter *parameters, std::size_t count) {
    running = true;
    const bool refused = setjmp(after_refusal) != 0;  // NOLINT(cert-err52-cpp): in place of the program's end
    if (!refused) {
        read_request(parameters, count);
    }
    running = false;
    return refused;
}

void expect_refusal() {
    const std::string page = fuzz::printed();
    const std::size_t end = page.find("\r\n\r\n");
    require(page.rfind("Status: 40", 0) == 0 && end != std::string::npos, "a refusal without its status");
    require(fuzz::is_json(page.substr(end + 4)), "no JSON: " + page);
}

}  // namespace

extern "C" {

// The name is the linker's. NOLINTBEGIN(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)
[[noreturn]] void __real_exit(int status);
[[noreturn]] void __wrap_exit(int status);

void __wrap_exit(int status) {
    if (running) {
        std::longjmp(after_refusal, 1);  // NOLINT(cert-err52-cpp)
    }
    __real_exit(status);
}
// NOLINTEND(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)
}

void fuzz::prepare() {}

void fuzz::run(Input input) {
    const std::string text = input.take_rest();
    setenv("QUERY_STRING", text.substr(0, text.find('\0')).c_str(), 1);
    Parameter parameters[] = {
        {"page", is_number, "1 to 9999", "1", 0},
        {"filter", is_filter, "all, online or offline", "all", 0},
        {"part", is_address_part, "part of an address", "", 0},
        {"mac", is_mac_part, "part of a MAC address", "", 0},
        {"ip", is_address, "an address", "10.0.0.1", 0},
    };
    if (read(parameters, sizeof(parameters) / sizeof(*parameters))) {
        expect_refusal();
        return;
    }
    const int page = number_in(parameters[0].value);
    const std::string filter = parameters[1].value;
    require(page >= 1 && page <= 9999, "a page that there is not");
    require(filter == "all" || filter == "online" || filter == "offline", "a filter that there is not");
    require(consists_of(parameters[2].value, "0123456789."), "no part of an address");
    require(consists_of(parameters[3].value, "0123456789abcdefABCDEF:"), "no part of a MAC address");
    require(consists_of(parameters[4].value, "0123456789."), "no address");
}
