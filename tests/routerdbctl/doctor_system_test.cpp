// What the doctor says of the lock file, of the service, and of the system.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "doctor.h"
#include "holder.h"
#include "run.h"
#include "support/database.h"
#include "support/fake_service.h"
#include "support/profile.h"
#include "support/service.h"

namespace {

using support::doctor_line;
using support::lock_file;
using support::service_socket;
using Lines = std::vector<std::string>;

TEST(DoctorLockFile, open_to_everybody) {
    for (const mode_t mode : {0644U, 0662U}) {
        chmod(lock_file, mode);
        EXPECT_EQ(doctor_line("lock-file"), "warn  lock-file      everybody may open /var/databaselock, mode " +
                                                std::string(mode == 0644 ? "0644" : "0662") +
                                                ", and stop all writers by locking it -> \"chmod o-rw\" it");
    }
}

TEST(DoctorLockFile, missing_or_something_else) {
    unlink(lock_file);
    EXPECT_EQ(support::doctor_lines({"lock-file", "lock"}),
              (Lines{"FAIL  lock-file      /var/databaselock: No such file or directory -> \"touch\" makes it, and the "
                     "router should when it starts",
                     "warn  lock           not looked at: No such file or directory -> mend what is said of lock-file "
                     "first"}));
    EXPECT_FALSE(support::file_exists(lock_file));
    mkdir(lock_file, 0700);
    EXPECT_EQ(doctor_line("lock-file"),
              "FAIL  lock-file      /var/databaselock is no file -> put an empty file in its place");
}

TEST(DoctorLock, held) {
    const support::Holder holder(support::LockKind::of_open_file);
    EXPECT_EQ(doctor_line("lock"), "warn  lock           held by " + support::named(holder.id()) +
                                       " -> if it stays so, end that process: nobody can change anything meanwhile");
}

TEST(DoctorLock, held_by_somebody_who_cannot_be_seen) {
    const support::Holder holder(support::LockKind::of_open_file, support::Visible::no);
    EXPECT_EQ(doctor_line("lock"),
              "warn  lock           held, by whom only root can see -> \"routerdbctl lock\" as root says more");
}

TEST(DoctorService, that_has_been_killed) {
    support::Service service;
    service.signal(SIGKILL);
    service.wait();
    EXPECT_EQ(doctor_line("service"),
              "FAIL  service        nobody listens on /var/sqlserver_socket: Connection refused -> start "
              "routerdb-sqld; the system log says why it has ended");
}

TEST(DoctorService, that_is_stopped_keeps_nobody_waiting) {
    const support::Service service;
    service.signal(SIGSTOP);
    EXPECT_EQ(doctor_line("service", {"--timeout", "5", "doctor"}),
              "FAIL  service        process " + std::to_string(service.id()) +
                  " does not answer within 5 seconds -> start routerdb-sqld again; the system log says what it is at");
    service.signal(SIGCONT);
}

TEST(DoctorService, that_answers_something_else) {
    for (const std::string &data : {std::string("2\0", 2), std::string("12\0", 3), std::string()}) {
        const support::FakeService service(support::reply_of(data));
        EXPECT_EQ(doctor_line("service", {"--timeout", "60", "doctor"}),
                  "FAIL  service        process " + std::to_string(getpid()) +
                      " does not answer as a service does -> start routerdb-sqld again; the system log says what it is "
                      "at");
        unlink(service_socket);
    }
}

TEST(DoctorService, that_everybody_may_connect_to) {
    const support::FakeService service(support::reply_of(std::string("1\0", 2)));
    chmod(service_socket, 0660);
    EXPECT_EQ(doctor_line("service"), "ok    service        answers; " + support::named(getpid()));
    chmod(service_socket, 0666);
    EXPECT_EQ(doctor_line("service"),
              "warn  service        everybody may connect to /var/sqlserver_socket, and change everything -> \"chmod "
              "o-w\" it");
}

TEST(DoctorConverter, that_is_missing) {
    ASSERT_EQ(mkdir("/tmp/converters", 0755), 0);
    support::write_file("/tmp/converters/gconv-modules", "module GB2312// INTERNAL nowhere 1\n");
    setenv("GCONV_PATH", "/tmp/converters", 1);
    EXPECT_EQ(
        doctor_line("converter"),
        "warn  converter      GB2312 is not converted: names of networks stay as they are -> install the converter "
        "of the C library, such as its gconv modules");
}

TEST(DoctorPrograms, that_are_missing_are_named) {
    unlink("/bin/send_event");
    EXPECT_EQ(doctor_line("programs"),
              "warn  programs       there is no /bin/send_event, for upgrades -> install them");
    unlink("/bin/capwapmanage");
    setenv("PATH", "/nowhere:/rom", 1);
    EXPECT_EQ(doctor_line("programs"),
              support::build_profile.copies_through_sqlite
                  ? "FAIL  programs       there is no mkdir, for backups -> install them"
                  : "FAIL  programs       there is no cp, for backups; there is no mkdir, for backups; there is no rm, "
                    "for resetting -> install them");
    unlink("/bin/sh");
    setenv("PATH", "/nowhere::/usr/bin", 1);
    EXPECT_EQ(doctor_line("programs"),
              "FAIL  programs       there is no /bin/sh, for all other programs -> install them");
}

}  // namespace
