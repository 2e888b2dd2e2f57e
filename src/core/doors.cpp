// The exported functions of the database core. Each converts its arguments, calls, and converts the result.
#include <fcntl.h>

#include "core/call_errno.h"
#include "core/execute.h"
#include "core/lock_file.h"
#include "core/maintenance.h"
#include "core/paths.h"
#include "core/profiles.h"
#include "core/query.h"
#include "routerdb.h"
#include "text/text.h"

using namespace routerdb;
using profiles::for_callers;

pthread_mutex_t db_mutex = PTHREAD_MUTEX_INITIALIZER;

int lock_reg(int fd, int cmd, int type, off_t offset, int whence, off_t len) {
    const int result = set_record_lock(fd, own_command(cmd), type, offset, whence, len);
    if (result == 0 && type == F_UNLCK && offset == 0 && len == 0) {
        LockFile::unlock(fd);
    }
    return result;
}

int get_db_lock() {
    CallErrno call;
    LockFile lock_file;
    if (!lock_file.open()) {
        call.fail(errno);
        report({Stream::standard_error, Wording::cannot_open}, {paths::lock_file, 0, nullptr});
        return -1;
    }
    lock_file.lock();
    return lock_file.hand_over();
}

int free_db_lock(int fd) {
    LockFile(fd).release();
    return 0;
}

int DbSqlExec(char *sql) {
    return execute_with_copy(or_empty(sql));
}

int backup_sqlite_db() {
    return backup_main_database();
}

int restore_sqlite_db() {
    return restore_main_database();
}

int reset_sqlite_db() {
    return reset_main_database();
}

int DB_EXEC_SQL_CHAR(const char *sql) {
    return execute(for_callers<profiles::exec_char>, or_empty(sql));
}

int DB_EXEC_SQL_CHAR_INT(const char *sql, unsigned int *count) {
    return routerdb::count(for_callers<profiles::exec_char_int>, or_empty(sql), *count);
}

int DB_EXEC_SQL_CHAR_LONG(const char *sql, unsigned long *value) {
    return read(for_callers<profiles::exec_char_long>, or_empty(sql), *value);
}

int DB_EXEC_SQL_CHAR_CHAR(const char *sql, char *out) {
    return read(for_callers<profiles::exec_char_char>, or_empty(sql), unlimited_room(out));
}

int GET_DB_SQL_INT_COUNT(const char *sql) {
    return sum_diagonal(for_callers<profiles::sql_int>, or_empty(sql));
}

int GET_DB_SQL_INT(const char *sql) {
    return count(for_callers<profiles::sql_int>, or_empty(sql));
}

int GET_DB_SQL_INT_COUNT_ROUTE(const char *sql) {
    return first_number(for_callers<profiles::sql_int_count_route>, or_empty(sql));
}

int GET_DB_SQL_INT_COUNT_DPI(const char *sql) {
    return first_number(for_callers<profiles::sql_int_count_dpi>, or_empty(sql));
}

int GET_DB_SQLITE_SQL_INT(const char *sql) {
    return first_number_closing_input(for_callers<profiles::sql_int_count_dpi>, or_empty(sql));
}

unsigned int GET_DB_SQLITE_SQL_STR_N(const char *sql, char *out, sqlite3 *db) {
    return static_cast<unsigned int>(read_first(db, or_empty(sql), out));
}
