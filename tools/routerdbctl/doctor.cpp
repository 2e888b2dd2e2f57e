// Looks at everything: each check in a process of its own, so that none of them keeps the others waiting.
#include <sys/mman.h>

#include <cstdio>
#include <cstring>

#include "change.h"
#include "checks.h"
#include "commands.h"
#include "output.h"
#include "shared/library_note.h"

namespace ctl {

namespace {

// What others count on comes first.
// clang-format off
constexpr Check checks[] = {
    {"main-database", look_at_main_database},
    {"content",       look_at_content},
    {"rule-tables",   look_at_rule_tables},
    {"ap-tables",     look_at_access_point_tables},
    {"app-tables",    look_at_application_tables},
    {"catalogue",     look_at_catalogue},
    {"factory",       look_at_factory},
    {"backup",        look_at_backup},
    {"space",         look_at_space},
    {"lock-file",     look_at_lock_file},
    {"lock",          look_at_lock},
    {"service",       look_at_service},
    {"capacities",    look_at_capacities},
    {"access-points", look_at_access_points},
    {"groups",        look_at_groups},
    {"bindings",      look_at_bindings},
    {"apostrophes",   look_for_apostrophes},
    {"json",          look_for_json_breakers},
    {"utf-8",         look_for_broken_characters},
    {"library",       look_at_library},
    {"programs",      look_at_programs},
    {"converter",     look_at_converter},
};
// clang-format on

/// Owns what the checks' processes share with this one.
class SharedExamination {
public:
    SharedExamination()
        : place_(mmap(nullptr, sizeof(Examination), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {}
    SharedExamination(const SharedExamination &) = delete;
    SharedExamination &operator=(const SharedExamination &) = delete;
    ~SharedExamination() {
        if (is_there()) {
            munmap(place_, sizeof(Examination));
        }
    }

    bool is_there() const { return place_ != MAP_FAILED; }  // NOLINT(performance-no-int-to-ptr)
    Examination &get() const { return *static_cast<Examination *>(place_); }

private:
    void *place_;
};

struct Call {
    const Check &check;
    Examination &examination;
};

int look(void *context) {
    const Call &call = *static_cast<Call *>(context);
    call.check.look(call.examination);
    return 0;
}

void run(const Check &check, Examination &examination) {
    examination.report.begin("try again with a longer --timeout", "no end within %u seconds", examination.seconds);
    Call call{check, examination};
    Sql message;
    if (call_apart(look, &call, examination.seconds, WhenOverdue::end, message) == Outcome::failed) {
        examination.report.fail("please report it", "the check broke off");
    }
}

struct Appearance {
    char word[5];
    Look look;
};

constexpr Appearance appearances[] = {{"ok", Look::good}, {"warn", Look::doubtful}, {"FAIL", Look::bad}};

void print_line(const Check &check, const Report &report) {
    const Appearance &appearance = appearances[static_cast<unsigned>(report.health())];
    const bool has_advice = *report.advice() != '\0';
    std::printf("%s%-4s%s  %-13s  %s%s%s\n", begin_look(appearance.look), appearance.word, end_look(), check.name,
                report.found(), has_advice ? " -> " : "", report.advice());
}

void add_row(Sql &rows, const Check &check, const Report &report) {
    rows.add("%sSELECT %Q AS \"check\", %Q AS state, %Q AS found, %Q AS advice", rows.is_empty() ? "" : " UNION ALL ",
             check.name, appearances[static_cast<unsigned>(report.health())].word, report.found(), report.advice());
}

Status print_rows_of(const Invocation &invocation, const Sql &rows) {
    Database values;
    const Status status = values.open_in_memory();
    if (status != Status::done) {
        return status;
    }
    Query query(values, rows.text());
    return print_rows(invocation, query);
}

}  // namespace

Status examine(Invocation &invocation) {
    Options &options = invocation.options;
    options.format = options.has(option_json) ? Format::json : options.format;
    const bool is_for_people = options.format == Format::standard || options.format == Format::table;
    const SharedExamination shared;
    if (!shared.is_there()) {
        return fail(Status::unreachable, "out of memory");
    }
    Examination &examination = shared.get();
    const char *const note = tools::library_note();
    examination.seconds = invocation.seconds();
    examination.is_exact = note == nullptr || std::strncmp(note, "exact", sizeof("exact") - 1) == 0;
    Sql rows;
    Status result = Status::done;
    for (const Check &check : checks) {
        run(check, examination);
        result = examination.report.health() == Health::bad ? Status::refused : result;
        if (is_for_people) {
            print_line(check, examination.report);
        } else {
            add_row(rows, check, examination.report);
        }
    }
    const Status status = is_for_people ? Status::done : print_rows_of(invocation, rows);
    return status != Status::done ? status : result;
}

}  // namespace ctl
