// One call of a CGI program, as a web server makes it.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

#include "support/database.h"
#include "support/process.h"

namespace web {

/// The header lines of every answer.
inline constexpr char headers[] = "Content-Type: application/json; charset=utf-8\r\nCache-Control: no-store\r\n\r\n";

/// What the program answers; throws if its exit status is not 0.
inline std::string answer(const std::string &program, const std::string &query, const char *method = "GET") {
    static constexpr char file[] = "/tmp/answer";
    support::Process process([&] {
        setenv("REQUEST_METHOD", method, 1);
        setenv("QUERY_STRING", query.c_str(), 1);
        dup2(open(file, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600), STDOUT_FILENO);
        return support::become({CGI_PROGRAMS "/" + program});
    });
    if (process.wait() != 0) {
        throw std::runtime_error(program + " failed");
    }
    return support::file_content(file);
}

}  // namespace web
