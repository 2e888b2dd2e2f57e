// The list builder of behaviour rules by hand: a connection for each name, a signal and a millisecond for each host.
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "bare/by_hand.h"
#include "bare/connection.h"
#include "harness/desk.h"
#include "harness/reading.h"
#include "harness/texts.h"

namespace bench::bare {

namespace {

void ask_server_to_write() {
    FILE *const stream = std::fopen(paths::dhcp_server_pid, "r");
    char line[100] = "";
    if (std::fgets(line, sizeof(line), stream) != nullptr) {
        kill(std::atoi(line), SIGUSR1);
    }
    std::fclose(stream);
    usleep(1000);
}

void to_upper_case(char *text) {
    for (; *text != '\0'; ++text) {
        if (*text >= 'a' && *text <= 'z') {
            *text = static_cast<char>(*text - 'a' + 'A');
        }
    }
}

void find_host_name(const char *mac, char *host_name) {
    [[maybe_unused]] FILE *const left_open = std::fopen(paths::text_leases, "r");
    ask_server_to_write();
    FILE *const leases = std::fopen(paths::text_leases, "r");
    char line[257];
    while (std::fgets(line, sizeof(line), leases) != nullptr) {
        int expiry = 0;
        char lease_mac[257] = "";
        char ip[257] = "";
        char name[257] = "";
        std::sscanf(line, "%d %256s %256s %256s", &expiry, lease_mac, ip, name);
        to_upper_case(lease_mac);
        if (std::strcmp(lease_mac, mac) == 0) {
            copy_text(name, host_name, 128);
            break;
        }
    }
    std::fclose(leases);
}

void append(char (&field)[2048], const char *piece) {
    const std::size_t length = std::strlen(field);
    copy_text(piece, field + length, sizeof(field) - length);
}

void append_both(BehaviorItem &rule, const char *piece) {
    append(rule.behavior_names, piece);
    append(rule.behavior_names_en, piece);
}

/// Appends both names that a query of the catalogue finds, behind a separator.
void append_names(BehaviorItem &rule, const char *sql, const char *separator) {
    draw_delay();
    for_first(Connection(paths::catalogue_database), sql, [&rule, separator](const Row &row) {
        append_both(rule, separator);
        append(rule.behavior_names, row.text(0));
        append(rule.behavior_names_en, row.text(1));
    });
}

/// Takes the text before a separator off another one.
char *take(char *&rest, const char *separator) {
    char *const taken = rest;
    char *const end = std::strstr(rest, separator);
    rest = end != nullptr ? end + std::strlen(separator) : rest + std::strlen(rest);
    if (end != nullptr) {
        *end = '\0';
    }
    return taken;
}

void append_group(BehaviorItem &rule, char *group) {
    char sql[128];
    const int class_id = std::atoi(take(group, ":"));
    std::snprintf(sql, sizeof(sql), "select  Name,Name_En from App_Class where Id='%d';", class_id);
    append_names(rule, sql, rule.behavior_names[0] != '\0' ? "AND" : "");
    append_both(rule, ":");
    for (const char *separator = ""; *group != '\0'; separator = "?") {
        std::snprintf(sql, sizeof(sql), "select Name,Name_En from App_Info where Class_Id='%d' and Features='%s';",
                      class_id, take(group, "?"));
        append_names(rule, sql, separator);
    }
}

void append_all_names(BehaviorItem &rule) {
    char info[sizeof(rule.behavior_info)];
    std::strcpy(info, rule.behavior_info);
    for (char *rest = info; *rest != '\0';) {
        append_group(rule, take(rest, "AND"));
    }
}

}  // namespace

void list_behavior_rules() {
    std::memset(&desk.behavior_rules, 0, sizeof(desk.behavior_rules));
    const Lock lock(Lock::Draw::before_opening);
    for_each(Connection(paths::main_database), "select * from behavior_rule order by id;", [](const Row &row) {
        BehaviorItem &rule = desk.behavior_rules.items[desk.behavior_rules.count++];
        read_behavior_rule(row, rule);
        find_host_name(rule.devmac, rule.hostname);
        append_all_names(rule);
    });
}

}  // namespace bench::bare
