// The five operations of a client on a rule table. Each is one request to the SQL service.
#pragma once

#include "rules/rule_table.h"

namespace routerdb {

void list_items(const RuleTable &table, void *list);
void get_item(const RuleTable &table, int id, void *record);
void add_item(const RuleTable &table, const void *record);
void modify_item(const RuleTable &table, const void *record);
void delete_items(const RuleTable &table, const char *condition);

}  // namespace routerdb
