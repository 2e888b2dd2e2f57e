// One call of a CGI program, as a web server makes it.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string>

#include "support/database.h"
#include "support/process.h"

namespace web {

/// The header lines of every answer.
inline constexpr char headers[] = "Content-Type: application/json; charset=utf-8\r\nCache-Control: no-store\r\n\r\n";

using Variables = std::map<std::string, std::string>;

/// Starts a program whose answer goes to a file; for use in a process of its own. Returns only without a program.
inline bool become_program(const std::string &program, const Variables &variables, const std::string &answer,
                           const std::string &form = "") {
    const std::string input = answer + ".form";
    support::write_file(input, form);
    for (const auto &[name, value] : variables) {
        setenv(name.c_str(), value.c_str(), 1);
    }
    dup2(open(input.c_str(), O_RDONLY | O_CLOEXEC), STDIN_FILENO);
    dup2(open(answer.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600), STDOUT_FILENO);
    return support::become({CGI_PROGRAMS "/" + program});
}

/// What a program answers; throws if its exit status is not 0.
inline std::string call(const std::string &program, const Variables &variables, const std::string &form = "") {
    static constexpr char file[] = "/tmp/answer";
    support::Process process([&] { return become_program(program, variables, file, form); });
    if (process.wait() != 0) {
        throw std::runtime_error(program + " failed");
    }
    return support::file_content(file);
}

inline std::string answer(const std::string &program, const std::string &query, const char *method = "GET") {
    return call(program, {{"REQUEST_METHOD", method}, {"QUERY_STRING", query}});
}

/// What the server and the browser say when the page sends a form.
inline Variables own_page() {
    static constexpr char token[] = "0123456789abcdef0123456789abcdef";
    return {{"REQUEST_METHOD", "POST"},
            {"HTTP_HOST", "192.168.1.1:8080"},
            {"HTTP_ORIGIN", "http://192.168.1.1:8080"},
            {"PAGE_TOKEN", token},
            {"HTTP_X_PAGE_TOKEN", token}};
}

inline std::string post(const std::string &program, const std::string &form) {
    return call(program, own_page(), form);
}

/// An answer that says why there is none.
inline std::string failure(const std::string &status, const std::string &error) {
    return "Status: " + status + "\r\n" + headers + "{\"error\":\"" + error + "\"}\n";
}

}  // namespace web
