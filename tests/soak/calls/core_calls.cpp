// The database core, texts, the SQL service and the leases.
#include <fcntl.h>

#include "dhcp/leases.h"
#include "soak/calls/calls.h"

namespace soak {

namespace {

constexpr char query[] = "select Dev_Sn from DevInfo;";
constexpr char write[] = "update DevInfo set Dev_Name = 'a';";

Calls maintenance_calls() {
    return {
        slow(SOAK_CALL("backup_sqlite_db", { backup_sqlite_db(); })),
        slow(SOAK_CALL("restore_sqlite_db", { restore_sqlite_db(); })),
        slow(SOAK_CALL("reset_sqlite_db", { reset_sqlite_db(); })),
    };
}

Calls statement_calls() {
    return {
        slow(leaves_without_databases(a_connection, SOAK_CALL("DbSqlExec",
                                                              {
                                                                  char sql[sizeof(write)];
                                                                  DbSqlExec(std::strcpy(sql, write));
                                                              }))),
        SOAK_CALL("DB_EXEC_SQL_CHAR", { DB_EXEC_SQL_CHAR(write); }),
        leaves_without_databases(a_connection, SOAK_CALL("DB_EXEC_SQL_CHAR_INT",
                                                         {
                                                             unsigned count = 0;
                                                             DB_EXEC_SQL_CHAR_INT(query, &count);
                                                         })),
        SOAK_CALL("DB_EXEC_SQL_CHAR_LONG",
                  {
                      unsigned long value = 0;
                      DB_EXEC_SQL_CHAR_LONG(query, &value);
                  }),
        SOAK_CALL("DB_EXEC_SQL_CHAR_CHAR",
                  {
                      char text[256];
                      DB_EXEC_SQL_CHAR_CHAR(query, text);
                  }),
        SOAK_CALL("GET_DB_SQL_INT_COUNT", { GET_DB_SQL_INT_COUNT(query); }),
        SOAK_CALL("GET_DB_SQL_INT", { GET_DB_SQL_INT(query); }),
        leaves_without_databases(a_connection,
                                 SOAK_CALL("GET_DB_SQL_INT_COUNT_ROUTE", { GET_DB_SQL_INT_COUNT_ROUTE(query); })),
        leaves_without_databases(
            a_connection,
            SOAK_CALL("GET_DB_SQL_INT_COUNT_DPI", { GET_DB_SQL_INT_COUNT_DPI("select count(*) from App_Class;"); })),
        leaves_without_databases(
            a_connection,
            SOAK_CALL("GET_DB_SQLITE_SQL_INT", { GET_DB_SQLITE_SQL_INT("select count(*) from App_Class;"); })),
        SOAK_CALL("GET_DB_SQLITE_SQL_STR_N",
                  {
                      char text[256];
                      GET_DB_SQLITE_SQL_STR_N(query, text, callers.main);
                  }),
        SOAK_CALL("get_db_lock free_db_lock",
                  {
                      const int handle = get_db_lock();
                      if (handle >= 0) {
                          lock_reg(handle, F_SETLK, F_WRLCK, 0, SEEK_SET, 0);
                          free_db_lock(handle);
                      }
                  }),
    };
}

Calls text_calls() {
    return {
        SOAK_CALL("muti_id_convert_int_array",
                  {
                      char text[] = "3#7#12";
                      int ids[ROUTERDB_MAX_IDS];
                      muti_id_convert_int_array(text, ids);
                  }),
        SOAK_CALL("generate_db_params",
                  {
                      char text[] = "3#7#12";
                      char out[256] = "";
                      generate_db_params(text, out, sizeof(out), ROUTERDB_COLUMN_ID);
                  }),
        SOAK_CALL("utf8togb2312",
                  {
                      char out[ROUTERDB_CONVERSION_ROOM];
                      utf8togb2312("\xe4\xb8\xad", 3, out, sizeof(out));
                  }),
        SOAK_CALL("gb2312toutf8",
                  {
                      char out[ROUTERDB_CONVERSION_ROOM];
                      gb2312toutf8("\xd6\xd0", 2, out, sizeof(out));
                  }),
        leaves(a_converter, SOAK_CALL("utf8togb2312 of no UTF-8",
                                      {
                                          char out[ROUTERDB_CONVERSION_ROOM];
                                          utf8togb2312("\xff", 1, out, sizeof(out));
                                      })),
        leaves(a_converter, SOAK_CALL("gb2312toutf8 of no GB2312",
                                      {
                                          char out[ROUTERDB_CONVERSION_ROOM];
                                          gb2312toutf8("\xff", 1, out, sizeof(out));
                                      })),
        SOAK_CALL("change_time_to_int", { change_time_to_int("07:45"); }),
        SOAK_CALL("check_time_one_day", { check_time_one_day("07:45", "08:00"); }),
    };
}

Calls service_calls() {
    return {
        SOAK_CALL("sqlclient_cmd",
                  {
                      const SqlRequest request{ROUTERDB_TABLE_SCALAR, ROUTERDB_QUERY, sizeof(query) - 1, query};
                      SqlReply reply{};
                      if (sqlclient_cmd(&request, &reply) == 0) {
                          free(reply.data);
                      }
                  }),
    };
}

Calls lease_calls() {
    return {
        SOAK_CALL("getPid_sql", { getPid_sql(leases::pid_file); }),
        SOAK_CALL("get_buffer_sql free_buffer_sql", { free_buffer_sql(get_buffer_sql(100), 100); }),
        SOAK_CALL("get_addrserver_leases_sql free_leaselist_sql",
                  {
                      LeaseNode *head = nullptr;
                      get_addrserver_leases_sql(&head, leases::binary_file, leases::pid_file);
                      free_leaselist_sql(&head);
                  }),
        SOAK_CALL("add_addrserverlease_sql",
                  {
                      LeaseNode node{};
                      const LeaseRecord lease{};
                      add_addrserverlease_sql(&node, &lease);
                  }),
        leaves(a_stream, SOAK_CALL("get_hostname_by_mac_from_lease",
                                   {
                                       char name[128];
                                       get_hostname_by_mac_from_lease("00:11:22:33:44:55", name, leases::text_file,
                                                                      leases::pid_file);
                                   })),
        leaves(a_stream, SOAK_CALL("get_hostname_by_mac",
                                   {
                                       char name[128];
                                       get_hostname_by_mac("00:11:22:33:44:55", name, 0);
                                   })),
    };
}

}  // namespace

Calls core_calls() {
    return joined({maintenance_calls, statement_calls, text_calls, service_calls, lease_calls});
}

}  // namespace soak
