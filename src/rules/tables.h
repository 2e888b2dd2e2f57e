// Descriptors that more than one file needs. Every other table keeps its own to itself.
#pragma once

#include "rules/rule_table.h"

namespace routerdb::tables {

extern const RuleTable user_timegroup;

}  // namespace routerdb::tables
