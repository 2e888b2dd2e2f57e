// The statements of the client operations, made from a table's fields.
#pragma once

#include "rules/rule_table.h"
#include "text/text.h"

namespace routerdb {

/// "weekday3"; the name of column `index` of a field
void append_column_name(Text &text, const Field &field, unsigned index);

/// "select * from filter_url order by Id;"
void append_list_query(Text &sql, const RuleTable &table);

/// "select * from filter_url where id='7';"
void append_select(Text &sql, const RuleTable &table, int id);

/// "insert into filter_url(name,url,...) values('...','...',...);"
void append_insert(Text &sql, const RuleTable &table, const void *record);

/// "update filter_url set name='...',url='...',... where id='7';"
void append_update(Text &sql, const RuleTable &table, const void *record);

/// "delete from filter_url;"
void append_delete_all(Text &sql, const RuleTable &table);

/// "delete from filter_url where ", the condition and ";" being the caller's
void append_delete(Text &sql, const RuleTable &table);

}  // namespace routerdb
