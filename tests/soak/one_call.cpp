// Makes one call of an exported function between two marks in the trace of its system calls, and says what it left
// over.

#include <cstdio>

#include "core/helpers.h"
#include "soak/calls/calls.h"
#include "soak/left_over.h"
#include "soak/system_calls.h"

namespace {

std::string make(const soak::Call &call) {
    const soak::Held before = soak::held_now();
    {
        const CallersConnection main = open_callers_connection();
        const CallersConnection catalogue = open_callers_connection(support::catalogue_database);
        soak::mark();
        call.make({main.get(), catalogue.get()});
        std::fflush(stdout);
        soak::mark();
    }
    return soak::left_over(call, before, soak::held_now());
}

}  // namespace

int main(int count, char **arguments) {
    for (const soak::Call &call : soak::calls()) {
        if (count == 2 && call.name == arguments[1]) {
            const std::string complaint = make(call);
            std::fprintf(stderr, "%s\n", complaint.c_str());
            return complaint.empty() ? 0 : 1;
        }
    }
    return 2;
}
