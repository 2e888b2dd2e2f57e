// What the library needs of the system.
#include <iconv.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "checks.h"
#include "core/paths.h"
#include "shared/library_note.h"

namespace ctl {

namespace {

/// A program that the library runs.
struct Program {
    char name[16];
    bool for_both;  // profiles, rather than for the exact one alone
    Health without;
    char use[24];
};

constexpr Program programs[] = {
    {"/bin/sh", true, Health::bad, "for all other programs"},
    {"cp", false, Health::bad, "for backups"},
    {"mkdir", true, Health::bad, "for backups"},
    {"rm", false, Health::bad, "for resetting"},
    {"/bin/send_event", true, Health::doubtful, "for upgrades"},
    {"capwapmanage", true, Health::doubtful, "for lists of stations"},
};

/// Looks for a program as a shell does.
bool is_there(const char *name) {
    if (*name == '/') {
        return access(name, X_OK) == 0;
    }
    const char *rest = std::getenv("PATH");
    rest = rest != nullptr ? rest : "/usr/local/bin:/bin:/usr/bin";
    while (*rest != '\0') {
        const std::size_t length = std::strcspn(rest, ":");
        char path[512];
        std::snprintf(path, sizeof(path), "%.*s/%s", static_cast<int>(length), rest, name);
        if (access(path, X_OK) == 0) {
            return true;
        }
        rest += length + (rest[length] == ':' ? 1 : 0);
    }
    return false;
}

bool has_converter(const char *to, const char *from) {
    const iconv_t converter = iconv_open(to, from);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): what iconv_open returns on failure
    const bool is_open = converter != reinterpret_cast<iconv_t>(-1);
    if (is_open) {
        iconv_close(converter);
    }
    return is_open;
}

}  // namespace

void look_at_library(Examination &examination) {
    const char *const note = tools::library_note();
    const char *const version = note != nullptr ? std::strrchr(note, ' ') : nullptr;
    if (version == nullptr) {
        examination.report.warn("install it again", "it does not say what it is");
    } else if (std::strcmp(version + 1, ROUTERDB_VERSION) != 0) {
        examination.report.warn("install both from one release", "%s, but routerdbctl is " ROUTERDB_VERSION, note);
    } else {
        examination.report.ok("%s, as routerdbctl", note);
    }
}

void look_at_programs(Examination &examination) {
    Report &report = examination.report;
    for (const Program &program : programs) {
        if ((!program.for_both && !examination.is_exact) || is_there(program.name)) {
            continue;
        }
        if (program.without == Health::bad) {
            report.fail("install them", "there is no %s, %s", program.name, program.use);
        } else {
            report.warn("install them", "there is no %s, %s", program.name, program.use);
        }
    }
    report.ok("those that the library runs are there");
}

void look_at_converter(Examination &examination) {
    if (has_converter("GB2312", "UTF-8") && has_converter("UTF-8", "GB2312")) {
        examination.report.ok("GB2312 and UTF-8 are converted");
    } else {
        examination.report.warn("install the converter of the C library, such as its gconv modules",
                                "GB2312 is not converted: names of networks stay as they are");
    }
}

}  // namespace ctl
