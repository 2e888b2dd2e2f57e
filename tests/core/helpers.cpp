#include "core/helpers.h"

#include <fcntl.h>
#include <unistd.h>

#include <stdexcept>

bool operator==(const Outcome &left, const Outcome &right) {
    return left.result == right.result && left.destination == right.destination;
}

std::ostream &operator<<(std::ostream &out, const Outcome &outcome) {
    return out << outcome.result << " and \"" << outcome.destination << '"';
}

bool operator==(const Traces &left, const Traces &right) {
    return left.outcome == right.outcome && left.output == right.output && left.error == right.error &&
           left.log == right.log;
}

std::ostream &operator<<(std::ostream &out, const Traces &traces) {
    out << traces.outcome << "\noutput: " << traces.output << "\nerror: " << traces.error;
    for (const std::string &line : traces.log) {
        out << "\n" << line;
    }
    return out;
}

std::ostream &operator<<(std::ostream &out, const Callable &callable) {
    return out << callable.name;
}

const Helper &helper(const std::string &name) {
    for (const Helper &helper : helpers()) {
        if (helper.name == name) {
            return helper;
        }
    }
    throw std::out_of_range("no helper " + name);
}

CallersConnection open_callers_connection(const char *database) {
    sqlite3 *db = nullptr;
    if (sqlite3_open_v2(database, &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        throw std::runtime_error("cannot open the caller's connection");
    }
    return CallersConnection(db);
}

void open_standard_input() {
    // The lowest free number is the one that is wanted, unless it is taken.
    const int null = open("/dev/null", O_RDONLY);
    if (null != STDIN_FILENO) {
        close(null);
    }
}
