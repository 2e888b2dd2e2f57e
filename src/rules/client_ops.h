// The operations of a client on a rule table. Each is one request to the SQL service.
#pragma once

#include "rules/rule_table.h"

namespace routerdb {

/// In place of a table id: nothing is sent, and what is read comes back cleared.
inline constexpr std::uint8_t no_table = 0;

void list_items(const RuleTable &table, void *list);
void get_item(const RuleTable &table, int id, void *record);
void add_item(const RuleTable &table, const void *record);
void modify_item(const RuleTable &table, const void *record);
void delete_items(const RuleTable &table, const char *condition);
void delete_item(const RuleTable &table, int id);
void delete_items_of(const RuleTable &table, const char *mac);
void delete_all_items(const RuleTable &table);

}  // namespace routerdb
