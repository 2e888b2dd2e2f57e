/// @file
/// routerdb: access to the configuration databases of the router.
///
/// The library works over two SQLite files, the main database (rule tables, static DHCP bindings, access points,
/// WLAN groups) and the application catalogue. Two roads lead there. On the direct road a function opens the file
/// itself and retries while SQLite reports it busy; writers hold the database lock file meanwhile. On the service
/// road a function sends one SQL statement to the SQL service over a local socket and gets records back.
///
/// What holds for every function, unless its own comment says otherwise:
///
/// 1. Results. 0 is success and -1 is failure. Functions that return nothing report nothing to the caller.
/// 2. Ownership. The caller owns every buffer that it passes, and the library keeps no pointer to it after the call.
///    Sizes are stated here and not checked there: a buffer must have the size that the comment gives.
/// 3. Texts. Character arrays hold NUL-terminated UTF-8; a width counts the terminator. A value from the database
///    that is longer than its field is cut at the field's width, be it inside a character. A null pointer where SQL
///    or a text that goes into it is expected is read as the empty text; every other pointer must be valid.
/// 4. SQL. Values are put between single quotes as they stand: callers keep apostrophes out of them. In the modern
///    profile each apostrophe is doubled on its way, so that any value stays one; callers double none themselves.
/// 5. Messages. They go to standard output, standard error or the system log (LOG_ERR), as each function says. None
///    of them is meant for the caller's program.
/// 6. Busy databases. While SQLite answers 5 (busy), 6 (locked) or 10 (I/O error) a call sleeps and tries again,
///    without limit. Each sleep is 5 microseconds longer than the one before (500 in DB_EXEC_SQL_CHAR()). Once a
///    row has come nothing is tried again: any other answer ends the rows. A text of several statements is tried
///    again from its start: those before the one that was busy may be applied twice. The lock file is waited for
///    without limit too, and on after a signal. In modern a call that has slept for 60 seconds in all because of 5 and
///    6, or for 30 because of 10, fails; and a text of several statements goes on with the one that was busy, or with
///    the "begin" of the transaction that it was in: what had gone through before is not applied again.
/// 7. Threads. Any thread may call any function. The lock file keeps processes apart, not threads: closing any
///    descriptor of it drops the whole process's lock. Threads of one process that write must take turns on their
///    own, or write through DB_EXEC_SQL_CHAR(), which takes db_mutex. In modern it keeps threads apart as well: the
///    lock is the thread's that took it, whose further calls join it, until the last of its handles is released, by
///    whichever thread; closing another descriptor of the file drops nothing, and a child of fork() has to wait for its
///    parent's. Functions with a random first delay, and GetApDevStaList(), reseed the process-wide generator of rand()
///    in the exact profile.
/// 8. State. Nothing outlives a call except what a comment names: no connection, handle, thread or cache. In modern a
///    connection to each database stays open for later readings, on a descriptor that reads alone and is closed on
///    exec, with statements of the library's own. It holds no lock, no transaction and no content of the file in
///    between. A child of fork() leaves it alone; programs may close its descriptor, and delete, replace or overwrite
///    the file, whose content at the time is what is read. It is closed with the library.
/// 9. Own functions in front. Calls of the platform and of SQLite are made under their plain names, so that a
///    program may put its own usleep, system, syslog, sqlite3_open and so on in front of them.
/// 10. Missing databases. A function that opens a database, be it only to read, leaves an empty file behind where
///     there was none; backup, restore and reset do not. A script that copies the factory file "if there is none" does
///     so before the first call.
/// 11. Profiles. The library is built in one of two: `exact`, whose behaviour these comments tell, and `modern`, which
///     does the same for callers and data that mean well and refuses the rest. What they say of modern holds there
///     alone.
/// 12. errno, in modern. A call that failed leaves the reason there, also where its result tells nothing, and one
///     that did not leaves what was there: set it to 0 before, as for strtol. The last remark on each function says
///     which reasons there are. EINVAL stands for what is refused, EOVERFLOW for more or longer than fits, ENOSPC for a
///     disk that is full, EPROTO for a reply that is none, ETIMEDOUT for what took too long, which any call may meet
///     that opens a database, EACCES for a service that may not be asked and a database that may not be written, be it
///     to undo what a killed writer left, EIO for the rest, such as a database that cannot be opened and a statement
///     that fails; ENOENT, ECONNREFUSED and their like come as the system gave them. That nothing is found is no
///     failure, nor is what becomes of messages, of output and of commands. In exact errno means nothing where a remark
///     does not say so.
/// 13. Texts of callers, in modern. They attach no file with a name, VACUUM INTO included, and do not edit the schema
///     directly; functions and virtual tables that only a file's own schema calls are not run unless they are harmless.
///     The library's own readings read tables, not views of the same name.
/// 14. Power losses. After a power loss the next call that opens the database finds each statement whole or not at all,
///     and all that had succeeded but perhaps the last one: the journal that SQLite deletes in the end may be there
///     again. In exact DB_EXEC_SQL_CHAR() has a journal synced once: in that moment a disk that writes in an order of
///     its own may lose the database with the power, which reset_sqlite_db() brings up. Backup, restore and reset say
///     themselves what they leave.
#ifndef ROUTERDB_H
#define ROUTERDB_H

#include <pthread.h>
#include <stddef.h>
#include <stdint.h>
#include <sys/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Marks what the library exports. SWIG stops at attributes.
#ifdef SWIG
#define ROUTERDB_API
#else
#define ROUTERDB_API __attribute__((visibility("default")))
#endif

/// A place in a file, as wide as the library takes it: the default off_t of the C library, also in a 32-bit program
/// that has a wider one through _FILE_OFFSET_BITS=64.
#ifdef __GLIBC__
typedef __off_t routerdb_off_t;
#else
typedef off_t routerdb_off_t;
#endif

/// An SQLite connection, as <sqlite3.h> declares it.
typedef struct sqlite3 sqlite3;

/// @defgroup guarded_execution Database core: lock file, guarded execution, maintenance
/// @{

/// The mutex that DB_EXEC_SQL_CHAR() holds, before the lock file, for its whole duration (in modern not while it waits
/// for the lock file). A program that holds it keeps its own threads from writing that way.
extern ROUTERDB_API pthread_mutex_t db_mutex;

/// Applies a record lock to a descriptor with fcntl.
/// @param fd      an open descriptor
/// @param cmd     F_SETLK or F_SETLKW; what F_GETLK finds out is not handed on
/// @param type    F_RDLCK, F_WRLCK or F_UNLCK
/// @param offset  first byte, relative to `whence`
/// @param whence  SEEK_SET, SEEK_CUR or SEEK_END
/// @param len     length in bytes; 0 means up to the end of the file, however long it grows
/// @return the result of fcntl: -1, with EINTR in errno, when a signal ended the wait of F_SETLKW
/// @note Thread-safe; the lock belongs to the process. In modern, calls of the library go on when their own process has
///       locked the lock file so; and unlocking the whole of a handle from get_db_lock() releases the handle's lock.
/// @remark errno, in exact too: as fcntl left it
ROUTERDB_API int lock_reg(int fd, int cmd, int type, routerdb_off_t offset, int whence, routerdb_off_t len);

/// Opens the database lock file, which must exist, and waits for a write lock on the whole of it, without limit and
/// whatever signals arrive.
/// @return the lock handle, a descriptor to be given to free_db_lock(); -1 if the file cannot be opened, after
///         "cannot open %s!\n" on standard error
/// @note Any thread may call it, yet two threads of one process do not exclude each other in the exact profile. In
///       modern they do; a thread that has the lock gets a further handle at once, and the handle does not get into
///       programs that are executed.
/// @remark errno: what open gave for the lock file, such as ENOENT
ROUTERDB_API int get_db_lock(void);

/// Releases a lock handle and closes it.
/// @param fd  a handle from get_db_lock()
/// @return 0
/// @note Thread-safe. It releases every other lock that the process holds on the lock file, in modern only those of
///       lock_reg().
/// @remark errno, in exact too: as fcntl and close left it, such as EBADF for a descriptor that is not open
ROUTERDB_API int free_db_lock(int fd);

/// Executes SQL on the main database under the lock file and discards any rows.
///
/// After a text that does not contain "select" (in lower case, anywhere) a background shell command copies the
/// database file, whether the statement succeeded or not; an insert whose value contains "select" gets no copy.
///
/// A text of several statements that was busy part way is applied again from its start, with those that had gone
/// through (not in modern). A transaction that the busy attempt left open is rolled back first.
///
/// After a power loss each statement is there whole or not at all, and perhaps not the last one that had succeeded.
/// @param sql  one or more statements; only read
/// @return 0, or -1 if the lock file or the database cannot be opened or a statement fails
/// @note Errors: "cannot open %s!\n" and "cannot open %s, ErrorCode: %d!\n" on standard error, "cannot exec sql
///       cmdline, Error: %s\n" on standard output. The first delay is random, 51 to 150 microseconds. A connection
///       that SQLite could not open stays allocated in the exact profile.
/// @note Does not take db_mutex: threads of one process must take turns, but in modern.
/// @remark errno: what open gave for the lock file, such as ENOENT; EINVAL for a text that attaches a named file;
///         EOVERFLOW for a text or a value that is too long for SQLite; EACCES, ENOSPC, ENOMEM, EIO
ROUTERDB_API int DbSqlExec(char *sql);

/// Copies the main database to its backup under "/var/tmpconfig/database", making that directory first. The copy is on
/// disk when the call returns. It replaces the earlier backup whatever the main database is, a damaged one included.
///
/// What a killed writer left in the main database is rolled back first. While the database is busy, or gives I/O
/// errors, this is tried again: for 60 seconds, or 1 second, of sleeping. If it has not succeeded by then, the copy may
/// be in the middle of a change; the main database keeps its journal. After a power loss during the call the backup may
/// be missing, or part the one and part the other; the main database is as it was.
///
/// In modern SQLite copies, into a new file that takes the backup's name when it is on disk: 0 means that the backup is
/// what the main database was. A main database that is missing, damaged or without a table is refused. The earlier
/// backup stays whatever happens, a kill and a power loss included, until the new one is complete.
/// @return 0, whatever became of the copy; -1 if the lock file cannot be opened ("cannot open %s!\n" on standard
///         error); in modern also -1 if the copy was not made, which changes nothing ("%s is not copied to %s: %s\n" in
///         the system log)
/// @note Holds the lock file meanwhile, not db_mutex: threads of one process must take turns, but in modern. In exact a
///       caller that is killed alone loses the lock while the "cp" that it started goes on.
/// @remark errno: as get_db_lock(); ENOENT for a source that is missing, EINVAL for one that is refused, ETIMEDOUT
///         beside somebody who does not let go for 60 seconds of sleeping, EACCES, ENOSPC, ENOMEM, EIO
ROUTERDB_API int backup_sqlite_db(void);

/// Copies the backup over the main database. Without a backup the main database stays as it is. The restored database
/// is on disk when the call returns.
///
/// Rolls back first as backup_sqlite_db() does; a journal that is still there afterwards is removed, since it would
/// destroy the restored database. A kill or a power loss during the call may leave a main database that is part the one
/// and part the other: a call of reset_sqlite_db() mends it.
///
/// In modern SQLite copies, in one transaction into the main database, whose readers see the one or the other and never
/// nothing; a kill or a power loss leaves the one or the other, too. 0 means that the main database is what the backup
/// was. A backup is refused that is missing, damaged or without a table, and one that lacks a table of the main
/// database or has a column in another place; further ones are welcome. A main database that is none is replaced by a
/// new file.
/// @return as backup_sqlite_db()
/// @note Locks as backup_sqlite_db().
/// @remark errno: as backup_sqlite_db()
ROUTERDB_API int restore_sqlite_db(void);

/// Replaces the main database with the factory copy on the read-only file system. The new database is on disk when the
/// call returns.
///
/// Rolls back, and removes a journal, as restore_sqlite_db() does. A kill or a power loss during the call may leave no
/// main database, or part of one: another call mends it.
///
/// In modern the factory copy takes the main database's place as a backup does in restore_sqlite_db(), and is refused
/// as one.
/// @return as backup_sqlite_db()
/// @note Locks as backup_sqlite_db().
/// @remark errno: as backup_sqlite_db()
ROUTERDB_API int reset_sqlite_db(void);

/// @}
/// @defgroup statement_helpers Database core: statement helpers
///
/// Each runs one SQL text on a connection of its own (GET_DB_SQLITE_SQL_STR_N() on the caller's). Database, lock,
/// messages and the meaning of the rows differ from one to the next and are stated with each. In exact only
/// DB_EXEC_SQL_CHAR() excludes other threads, in modern whatever takes the lock file. The others may run in any thread:
/// they share nothing but, where they take it, the lock file.
/// @{

/// Executes SQL on the main database under db_mutex and the lock file, and discards any rows. No copy follows. What is
/// busy part way may be applied again as in DbSqlExec().
///
/// After a power loss each statement is there as after DbSqlExec(), in the exact profile but for what is said of power
/// losses above.
/// @param sql  one or more statements
/// @return 0, or -1 if the lock file or the database cannot be opened or a statement fails
/// @note Errors: as DbSqlExec(). The sleeps of a busy call are hundred times as long: 5,600 to 15,500 microseconds
///       for the first one, 500 more for each next one.
/// @note Excludes the other threads that call it, and other processes.
/// @remark errno: as DbSqlExec()
ROUTERDB_API int DB_EXEC_SQL_CHAR(const char *sql);

/// Counts the rows of a query on the main database.
/// @param         sql    the query
/// @param[in,out] count  increased by one for each row; set it first
/// @return 0, also when the query cannot be prepared; -1 if the database cannot be opened
/// @note Errors: "cannot open %s, ErrorCode: %d!\n" and "cannot prepare sql cmdline, Error: %s\n" in the system log,
///       there also "sql busy/locked cmdline, Error: %s\n" after each sleep. First sleep 155 microseconds. A
///       connection that SQLite could not open stays allocated in the exact profile.
/// @note Thread-safe; takes no lock.
/// @remark errno: as DbSqlExec() but for the lock file, and ETIMEDOUT for a database that is busy behind a row
ROUTERDB_API int DB_EXEC_SQL_CHAR_INT(const char *sql, unsigned int *count);

/// Reads a number from a query on the main database. Row k is read at its column k, both counted from 0, and the
/// last row wins: a query with one row gives its first column.
/// @param      sql    the query
/// @param[out] value  receives the number, as strtoul reads the column's text, 0 for a column that is NULL or does
///                    not exist; untouched without a row
/// @return 0, also when the query cannot be prepared; -1 if the database cannot be opened
/// @note Errors: "cannot open %s, ErrorCode: %d!\n" and "cannot prepare sql cmdline, Error: %s\n" in the system log.
///       First sleep 55 microseconds.
/// @note Thread-safe; takes no lock.
/// @remark errno: as DB_EXEC_SQL_CHAR_INT()
ROUTERDB_API int DB_EXEC_SQL_CHAR_LONG(const char *sql, unsigned long *value);

/// Reads the first column of a query on the main database as text; the last row wins in which it is not NULL.
/// @param      sql  the query
/// @param[out] out  receives the text with its terminator, whatever its length; untouched without such a row
/// @return 0, also when the query cannot be prepared; -1 if the database cannot be opened
/// @note Errors: "cannot open %s, ErrorCode: %d!\n" on standard error, "cannot prepare sql cmdline, Error: %s\n" on
///       standard output. First sleep 55 microseconds.
/// @note Thread-safe; takes no lock.
/// @remark errno: as DB_EXEC_SQL_CHAR_INT()
ROUTERDB_API int DB_EXEC_SQL_CHAR_CHAR(const char *sql, char *out);

/// Adds up numbers from a query on the main database, under the lock file. Row k is read at its column k, both
/// counted from 0; a column that is NULL or does not exist counts 0.
/// @param sql  the query
/// @return the sum; -1 if the lock file or the database cannot be opened or the query cannot be prepared
/// @note Errors: "cannot open %s!\n" and "cannot open %s, ErrorCode: %d!\n" on standard error, "cannot exec sql
///       cmdline, Error: (null)\n" on standard output. Random first delay.
/// @note Takes the lock file, not db_mutex: a thread that returns drops the lock of the others, but in modern.
/// @remark errno: as DbSqlExec(), and ETIMEDOUT for a database that is busy behind a row
ROUTERDB_API int GET_DB_SQL_INT_COUNT(const char *sql);

/// Counts the rows of a query on the main database, under the lock file.
/// @param sql  the query
/// @return the number of rows; -1, messages and locks as GET_DB_SQL_INT_COUNT()
/// @remark errno: as GET_DB_SQL_INT_COUNT()
ROUTERDB_API int GET_DB_SQL_INT(const char *sql);

/// Reads the first column of the first row of a query on the main database as a number.
/// @param sql  the query
/// @return the number, 0 for NULL and without a row; -1 if the database cannot be opened (without a message; in
///         the exact profile the connection stays allocated) or the query cannot be prepared ("Error: %s" on standard
///         output)
/// @note Random first delay. Thread-safe; takes no lock.
/// @remark errno: as DbSqlExec() but for the lock file
ROUTERDB_API int GET_DB_SQL_INT_COUNT_ROUTE(const char *sql);

/// As GET_DB_SQL_INT_COUNT_ROUTE(), on the application catalogue.
/// @param sql  the query
/// @return as GET_DB_SQL_INT_COUNT_ROUTE()
/// @remark errno: as GET_DB_SQL_INT_COUNT_ROUTE()
ROUTERDB_API int GET_DB_SQL_INT_COUNT_DPI(const char *sql);

/// As GET_DB_SQL_INT_COUNT_DPI(), and closes descriptor 0 in the exact profile before it returns, whatever the
/// result. A program that still wants its standard input reads it first.
/// @param sql  the query
/// @return as GET_DB_SQL_INT_COUNT_ROUTE()
/// @remark errno: as GET_DB_SQL_INT_COUNT_ROUTE()
ROUTERDB_API int GET_DB_SQLITE_SQL_INT(const char *sql);

/// Reads the first column of the first row of a query as text, on the caller's connection.
/// @param      sql  the query
/// @param[out] out  receives the text with its terminator, whatever its length; "0" for NULL; untouched without a row
/// @param      db   an open connection, left open
/// @return 0; all bits set if the query cannot be prepared ("Webserver Error: %s" on standard output)
/// @note Random first delay. As thread-safe as the connection.
/// @remark errno: EINVAL for what the authorizer of the connection refuses; EOVERFLOW for a text or a value that is too
///         long for SQLite; EACCES, ENOSPC, ENOMEM, EIO
ROUTERDB_API unsigned int GET_DB_SQLITE_SQL_STR_N(const char *sql, char *out, sqlite3 *db);

/// @}
/// @defgroup identifier_lists Database core: identifier lists
/// @{

/// Columns that generate_db_params() can test.
enum {
    ROUTERDB_COLUMN_ID = 0,           ///< "id"
    ROUTERDB_COLUMN_IPGROUP_ID = 1,   ///< "ipgroup_id"
    ROUTERDB_COLUMN_TIMEGROUP_ID = 2  ///< "timegroup_id"
};

/// Most identifiers that are read from one list.
#define ROUTERDB_MAX_IDS 128

/// Reads identifiers separated by '#', such as "3#7#12". Empty fields vanish; a field counts as the number that it
/// starts with, or as 0; a text without any '#' is one identifier, also when it is empty.
/// @param[in,out] text  the list; separators in it are overwritten. Null reads as no identifier
/// @param[out]    ids   room for ROUTERDB_MAX_IDS numbers
/// @return the number of identifiers stored, 0 to ROUTERDB_MAX_IDS; those behind are not read
/// @note Thread-safe.
/// @remark errno is left alone
ROUTERDB_API int muti_id_convert_int_array(char *text, int *ids);

/// Appends a condition such as "id='3' or id='7'" for the identifiers of a list. Nothing is appended for a list
/// without identifiers.
/// @param[in,out] text    the list, as muti_id_convert_int_array() takes it
/// @param[in,out] out     a text; the condition is appended and cut where the buffer ends
/// @param         size    size of the whole buffer `out` in bytes, the terminator included
/// @param         column  ROUTERDB_COLUMN_ID, _IPGROUP_ID or _TIMEGROUP_ID; nothing is appended for another value
/// @return the length of `out` afterwards, in bytes
/// @note Thread-safe.
/// @remark errno is left alone
ROUTERDB_API size_t generate_db_params(char *text, char *out, unsigned int size, int column);

/// @}
/// @defgroup encoding_and_time Database core: text encoding and time of day
/// @{

/// Room that either conversion takes for granted in its output, in bytes.
#define ROUTERDB_CONVERSION_ROOM 2048

/// Converts UTF-8 to GB2312.
/// @param      in      the text
/// @param      inlen   bytes of it to convert
/// @param[out] out     at least ROUTERDB_CONVERSION_ROOM bytes, or room for the result where that is known to be
///                     shorter
/// @param      outlen  bytes of `out` that are set to zero first; they supply the terminator
/// @return 0; -1 if the text cannot be converted or its conversion takes more than ROUTERDB_CONVERSION_ROOM bytes,
///         `out` then holding what was converted up to there. In the exact profile the converter of a failed
///         conversion stays allocated
/// @note Where the C library has no such converter, which it says by (iconv_t)-1, the conversion fails without a word.
///       A null converter is logged as "error1\n", `out` then being untouched. Thread-safe.
/// @remark errno, in exact too: as iconv_open or iconv left it, such as EILSEQ, EINVAL or E2BIG
ROUTERDB_API int utf8togb2312(const char *in, size_t inlen, char *out, size_t outlen);

/// Converts GB2312 to UTF-8.
/// @param      in      the text, NUL-terminated
/// @param      inlen   bytes of it to convert; of a longer text the rest stands unconverted behind the result, unless
///                     that has grown over it
/// @param[out] out     at least ROUTERDB_CONVERSION_ROOM bytes, or room for the result where that is known to be
///                     shorter, and room for the whole of `in`
/// @param      outlen  bytes of `out` that are set to zero first; they supply the terminator
/// @return 0; -1 if the text cannot be converted or its conversion takes more than ROUTERDB_CONVERSION_ROOM bytes,
///         `out` then holding the whole input. In the exact profile the converter of a failed conversion stays
///         allocated
/// @note Where the C library has no such converter, which it says by (iconv_t)-1, the conversion fails without a word.
///       A null converter is logged as "gb2312toutf8 error1\n", `out` then being untouched. Thread-safe.
/// @remark errno, in exact too: as utf8togb2312()
ROUTERDB_API int gb2312toutf8(const char *in, size_t inlen, char *out, size_t outlen);

/// Turns a time of day into a number, 745 for "07:45".
/// @param hhmm  a text of the form HH:MM; the character between is not looked at, nor is what follows
/// @return the number that atoi reads in HHMM: it skips leading blanks (" 7:45" gives 745), takes a sign, and stops at
///         the first other character that is not a digit ("9:30" gives 9)
/// @note Thread-safe.
/// @remark errno is left alone
ROUTERDB_API int change_time_to_int(const char *hhmm);

/// Compares two times of day of the form HH:MM.
/// @param a  a time of day
/// @param b  a time of day
/// @return 1 if `a` is later than `b`, else 0
/// @note Thread-safe.
/// @remark errno is left alone
ROUTERDB_API int check_time_one_day(const char *a, const char *b);

/// @}
/// @defgroup sql_service SQL service
/// @{

/// What a request asks for.
enum {
    ROUTERDB_QUERY = 1,   ///< rows are wanted
    ROUTERDB_EXECUTE = 2  ///< insert, update or delete
};

/// One request to the SQL service. Its first twelve bytes are what travels ahead of the text.
typedef struct SqlRequest {
    uint32_t table_id;   ///< one of ROUTERDB_TABLE_...
    uint32_t operation;  ///< ROUTERDB_QUERY or ROUTERDB_EXECUTE
    uint32_t length;     ///< bytes of SQL, the terminator not counted
    const char *text;    ///< the SQL, owned by the caller; the terminator is not sent
} SqlRequest;

/// One reply of the SQL service.
typedef struct SqlReply {
    uint32_t word0;  ///< as received; routerdb-sqld echoes the table id
    uint32_t word1;  ///< as received; routerdb-sqld echoes the operation
    int32_t size;    ///< bytes of data announced; below 1 there are none
    void *data;      ///< heap block of `size` bytes (4 if `size` is below 1), to be released with free
} SqlReply;

/// Sends one request to the SQL service and receives its reply.
///
/// Time-outs are 10 seconds for each send and receive. A signal that is handled meanwhile counts as a failure, with
/// SA_RESTART too; a text of which only a part could be sent does not. A service that closes early leaves a block of
/// the announced size whose missing part is zero, and the call succeeds all the same.
///
/// In modern the 10 seconds count for the whole exchange, and these are failures: a request that could not be sent
/// whole, a service that runs as neither root, nor the caller's user, nor the owner of the main database (to which
/// nothing is sent), a reply that ends early, announces less than nothing, more than 1 MiB, or more than 64 KiB for
/// ROUTERDB_TABLE_SCALAR.
/// @param      request  the request; only read
/// @param[out] reply    untouched while the request is on its way; cleared before the reply is read
/// @return 0, and the caller releases reply->data with free; -1 on failure, nothing being allocated
/// @note Each failure is written to standard error with perror and to the system log with "!\n" behind it: "cannot
///       create sql socket client", "cannot connect sql socket client", "send header to sql socket server fail",
///       "send data to sql socket server fail", "recv header from sql socket server fail", "sql client malloc data
///       buffer fail", "recv data from sql socket server fail". SIGPIPE is held back from the caller.
/// @note Thread-safe: each call has its own connection.
/// @remark errno: what the system gave, such as ENOENT, ECONNREFUSED or EINTR; EACCES for a service that runs as a
///         stranger; EIO for a request that could not be sent whole; EPROTO for a reply that is none; ETIMEDOUT, ENOMEM
ROUTERDB_API int sqlclient_cmd(const SqlRequest *request, SqlReply *reply);

/// @}
/// @defgroup rule_records Rule tables: identifiers and records
///
/// A record is one row. Numbers are 32 bits wide in host byte order, and every byte that carries nothing is zero. A
/// list is a count and that many records, as many as the query has rows or the reply has records. Its buffer has room
/// for ROUTERDB_LIST_CAPACITY of them, and in exact lists are not cut: one row more is written past the buffer, and
/// crashes the caller or worse. Whoever adds rows keeps the table within that size; no function refuses one. In modern
/// the list ends with its room, and the system log names the table. Members marked "derived" are filled by the list
/// builders and never written to a table. What a record says beyond its times and groups is carried and not acted on.
/// @{

/// Table ids, the first word of each request.
enum {
    ROUTERDB_TABLE_DHCP_STATIC = 1,     ///< DhcpStaticItem
    ROUTERDB_TABLE_URL_FILTER = 2,      ///< UrlFilterItem
    ROUTERDB_TABLE_MAC_FILTER = 3,      ///< MacFilterItem
    ROUTERDB_TABLE_IP_FILTER = 4,       ///< IpFilterItem
    ROUTERDB_TABLE_TIME_GROUP = 5,      ///< TimeGroupItem
    ROUTERDB_TABLE_IP_GROUP = 6,        ///< IpGroupItem
    ROUTERDB_TABLE_SMART_QOS = 7,       ///< SmartQosItem
    ROUTERDB_TABLE_USER_URL = 8,        ///< UserUrlItem
    ROUTERDB_TABLE_FAMLIY_MEMBER = 11,  ///< FamliyMemberItem
    ROUTERDB_TABLE_PORT_FORWARD = 12,   ///< PortFwItem
    ROUTERDB_TABLE_QOS = 13,            ///< QosItem
    ROUTERDB_TABLE_BEHAVIOR = 14,       ///< BehaviorItem
    ROUTERDB_TABLE_ACL0 = 15,           ///< AclItem, `wifi0acl`
    ROUTERDB_TABLE_ACL1 = 16,           ///< AclItem, `wifi1acl`
    ROUTERDB_TABLE_ACL2 = 17,           ///< AclItem, `wifi2acl`
    ROUTERDB_TABLE_DOMAIN_IP = 18,      ///< DomainIpItem
    ROUTERDB_TABLE_SCALAR = 100         ///< not a table: the reply is the first column of the first row as text
};

/// Table ids of the three Wi-Fi access lists, by their number.
extern ROUTERDB_API const uint32_t acl_wifi_id[3];

/// Records that fit a list buffer.
#define ROUTERDB_LIST_CAPACITY 128

/// Values of `timecontrol`.
enum {
    ROUTERDB_TIME_OWN = 1,   ///< the rule's own weekdays and times
    ROUTERDB_TIME_GROUP = 2  ///< those of the time group it references
};

/// Value of `ipcontrol` for a rule that takes its addresses from the IP group it references. With any other value it
/// has a range of its own.
#define ROUTERDB_IP_GROUP 2

/// A row of `dhcpserverstaticbind`.
typedef struct DhcpStaticItem {
    int32_t id;          ///< key of the row
    char reserved[152];  ///< carries nothing
    int32_t devtype;     ///< kind of device
    char mac[20];        ///< MAC address of the device
    char ip[20];         ///< address that the device gets
    char mark[152];      ///< what people call the device
} DhcpStaticItem;

/// A list of DhcpStaticItem records.
typedef struct DhcpStaticItemList {
    uint32_t count;                                ///< number of records
    DhcpStaticItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} DhcpStaticItemList;

/// A row of `user_timegroup`.
typedef struct TimeGroupItem {
    int32_t id;           ///< key of the row
    char name[152];       ///< what people call it
    int32_t weekday[7];   ///< `weekday1` to `weekday7`, each 0 or 1
    char start_time[20];  ///< HH:MM
    char end_time[20];    ///< HH:MM
    char mark[156];       ///< remark
} TimeGroupItem;

/// A list of TimeGroupItem records.
typedef struct TimeGroupItemList {
    uint32_t count;                               ///< number of records
    TimeGroupItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} TimeGroupItemList;

/// The first 376 bytes of a time group, as `filter_url` carries them.
typedef struct TimeGroupItemCut {
    int32_t id;           ///< key of the row
    char name[152];       ///< what people call it
    int32_t weekday[7];   ///< as in TimeGroupItem
    char start_time[20];  ///< as in TimeGroupItem
    char end_time[20];    ///< as in TimeGroupItem
    char mark[152];       ///< without a terminator when the group's own mark has more than 151 bytes
} TimeGroupItemCut;

/// A row of `user_ipgroup`.
typedef struct IpGroupItem {
    int32_t id;        ///< key of the row
    char name[150];    ///< what people call it
    char startip[30];  ///< first address
    char endip[30];    ///< last address
    char mark[154];    ///< remark
} IpGroupItem;

/// A list of IpGroupItem records.
typedef struct IpGroupItemList {
    uint32_t count;                             ///< number of records
    IpGroupItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} IpGroupItemList;

/// A row of `filter_url`.
typedef struct UrlFilterItem {
    int32_t id;                  ///< key of the row
    char name[150];              ///< what people call it
    char url[1030];              ///< address that the rule is about
    TimeGroupItemCut timegroup;  ///< derived: the referenced group
    int32_t time_valid;          ///< derived: 1 with times of its own or a group's, even one that is missing
    int32_t timecontrol;         ///< ROUTERDB_TIME_OWN or ROUTERDB_TIME_GROUP
    int32_t timegroup_id;        ///< of the time group; read with ROUTERDB_TIME_GROUP only
    char timegroup_name[152];    ///< derived: name of the referenced group
    int32_t weekday[7];          ///< as in TimeGroupItem, own or the group's
    char start_time[20];         ///< as in TimeGroupItem, own or the group's
    char end_time[20];           ///< as in TimeGroupItem, own or the group's
    int32_t status;              ///< whether it applies
    int32_t reserved;            ///< carries nothing
    char mark[152];              ///< remark
} UrlFilterItem;

/// A list of UrlFilterItem records.
typedef struct UrlFilterItemList {
    uint32_t count;                               ///< number of records
    UrlFilterItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} UrlFilterItemList;

/// A row of `filter_mac`.
typedef struct MacFilterItem {
    int32_t id;                ///< key of the row
    char name[150];            ///< what people call it
    char hostname[150];        ///< derived: host name of `devmac`
    char devmac[20];           ///< MAC address of the device
    int32_t timecontrol;       ///< ROUTERDB_TIME_OWN or ROUTERDB_TIME_GROUP
    int32_t timegroup_id;      ///< of the time group; read with ROUTERDB_TIME_GROUP only
    char timegroup_name[152];  ///< derived
    int32_t weekday[7];        ///< as in TimeGroupItem, own or the group's
    char start_time[20];       ///< as in TimeGroupItem, own or the group's
    char end_time[20];         ///< as in TimeGroupItem, own or the group's
    int32_t status;            ///< whether it applies
    char mark[152];            ///< remark
    TimeGroupItem timegroup;   ///< derived
} MacFilterItem;

/// A list of MacFilterItem records.
typedef struct MacFilterItemList {
    uint32_t count;                               ///< number of records
    MacFilterItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} MacFilterItemList;

/// A row of `filter_ipport`.
typedef struct IpFilterItem {
    int32_t id;                ///< key of the row
    char name[300];            ///< what people call it
    int32_t ipcontrol;         ///< ROUTERDB_IP_GROUP, or another number for a range of its own
    int32_t ipgroup_id;        ///< of the IP group; read with ROUTERDB_IP_GROUP only
    char ipgroup_name[152];    ///< derived
    int32_t timecontrol;       ///< ROUTERDB_TIME_OWN or ROUTERDB_TIME_GROUP
    int32_t timegroup_id;      ///< of the time group; read with ROUTERDB_TIME_GROUP only
    char timegroup_name[152];  ///< derived
    TimeGroupItem timegroup;   ///< derived
    IpGroupItem ipgroup;       ///< derived: name and range
    int32_t weekday[7];        ///< as in TimeGroupItem, own or the group's
    char start_time[20];       ///< as in TimeGroupItem, own or the group's
    char end_time[20];         ///< as in TimeGroupItem, own or the group's
    char devstartip[20];       ///< first address, own or the group's
    char devendip[20];         ///< last address, own or the group's
    int32_t devfromport;       ///< first port
    int32_t devtoport;         ///< last port
    int32_t protocol;          ///< by number
    char mark[152];            ///< remark
    int32_t status;            ///< whether it applies
    int32_t reserved;          ///< carries nothing
} IpFilterItem;

/// A list of IpFilterItem records.
typedef struct IpFilterItemList {
    uint32_t count;                              ///< number of records
    IpFilterItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} IpFilterItemList;

/// A row of `smartqos_whitelist`.
typedef struct SmartQosItem {
    int32_t id;          ///< key of the row
    char reserved[150];  ///< carries nothing
    char devmac[20];     ///< MAC address of the device
    char mark[154];      ///< remark
} SmartQosItem;

/// A list of SmartQosItem records.
typedef struct SmartQosItemList {
    uint32_t count;                              ///< number of records
    SmartQosItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} SmartQosItemList;

/// A row of `user_urlinfo`.
typedef struct UserUrlItem {
    int32_t id;      ///< key of the row
    char name[150];  ///< what people call it
    char url[512];   ///< the address
    char mark[154];  ///< remark
} UserUrlItem;

/// A list of UserUrlItem records.
typedef struct UserUrlItemList {
    uint32_t count;                             ///< number of records
    UserUrlItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} UserUrlItemList;

/// A row of `famliymember`.
typedef struct FamliyMemberItem {
    int32_t id;        ///< key of the row
    char name[150];    ///< what people call it
    char mac[20];      ///< MAC address of the device
    char reserved[2];  ///< carries nothing
    int32_t devtype;   ///< kind of device
    char mark[156];    ///< remark
} FamliyMemberItem;

/// A list of FamliyMemberItem records.
typedef struct FamliyMemberItemList {
    uint32_t count;                                  ///< number of records
    FamliyMemberItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} FamliyMemberItemList;

/// A row of `forword_ipport`. The order of the members is not that of the columns.
typedef struct PortFwItem {
    int32_t id;                 ///< key of the row
    char name[300];             ///< what people call it
    int32_t protocol;           ///< by number
    char devip[20];             ///< address of the device inside
    int32_t devexternfromport;  ///< first port outside
    int32_t devexterntoport;    ///< last port outside
    int32_t devinnerfromport;   ///< first port inside
    int32_t devinnertoport;     ///< last port inside
    int32_t status;             ///< whether it applies
    char mark[152];             ///< remark
    int32_t wanid;              ///< number of the WAN interface
    int32_t reserved;           ///< carries nothing
} PortFwItem;

/// A list of PortFwItem records.
typedef struct PortFwItemList {
    uint32_t count;                            ///< number of records
    PortFwItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} PortFwItemList;

/// A row of `qos_rule`.
typedef struct QosItem {
    int32_t id;                ///< key of the row
    char name[300];            ///< what people call it
    int32_t control_type;      ///< kind of control
    int32_t ipcontrol;         ///< ROUTERDB_IP_GROUP, or another number for a range of its own
    int32_t ipgroup_id;        ///< of the IP group; read with ROUTERDB_IP_GROUP only
    char ipgroup_name[152];    ///< derived
    IpGroupItem ipgroup;       ///< derived: name and range
    int32_t timecontrol;       ///< ROUTERDB_TIME_OWN or ROUTERDB_TIME_GROUP
    int32_t timegroup_id;      ///< of the time group; read with ROUTERDB_TIME_GROUP only
    char timegroup_name[152];  ///< derived
    TimeGroupItem timegroup;   ///< derived
    char devmac[20];           ///< MAC address of the device
    char devstartip[20];       ///< first address of its own range
    char devendip[20];         ///< last address of its own range
    int32_t bw_up;             ///< bandwidth upwards
    int32_t bw_down;           ///< bandwidth downwards
    int32_t bw_shared_mode;    ///< how the bandwidth is shared
    int32_t weekday[7];        ///< as in TimeGroupItem, own or the group's
    char start_time[20];       ///< as in TimeGroupItem, own or the group's
    char end_time[20];         ///< as in TimeGroupItem, own or the group's
    int32_t status;            ///< whether it applies
    int32_t reserved;          ///< carries nothing
    char mark[152];            ///< remark
} QosItem;

/// A list of QosItem records.
typedef struct QosItemList {
    uint32_t count;                         ///< number of records
    QosItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} QosItemList;

/// A row of `behavior_rule`. The column `behavior_type` is always written as 0 and not carried here.
typedef struct BehaviorItem {
    int32_t id;                    ///< key of the row
    int32_t control_type;          ///< kind of control
    char hostname[152];            ///< derived: host name of `devmac`
    int32_t ipcontrol;             ///< ROUTERDB_IP_GROUP, or another number for a range of its own
    int32_t ipgroup_id;            ///< of the IP group; read with ROUTERDB_IP_GROUP only
    IpGroupItem ipgroup;           ///< derived: name and range
    char ipgroup_name[152];        ///< derived
    int32_t timecontrol;           ///< ROUTERDB_TIME_OWN or ROUTERDB_TIME_GROUP
    int32_t timegroup_id;          ///< of the time group; read with ROUTERDB_TIME_GROUP only
    char timegroup_name[152];      ///< derived
    TimeGroupItem timegroup;       ///< derived
    char devmac[20];               ///< MAC address of the device
    char devstartip[30];           ///< first address, own or the group's
    char devendip[30];             ///< last address, own or the group's
    char behavior_info[2048];      ///< classes and features by number, such as "3:f1?f2AND7:f9"
    char behavior_names[2048];     ///< derived: the same as names
    char behavior_names_en[2048];  ///< derived: the same as English names
    int32_t weekday[7];            ///< as in TimeGroupItem, own or the group's
    char start_time[20];           ///< as in TimeGroupItem, own or the group's
    char end_time[20];             ///< as in TimeGroupItem, own or the group's
    char mark[152];                ///< remark
    int32_t status;                ///< whether it applies
    int32_t reserved;              ///< carries nothing
} BehaviorItem;

/// A list of BehaviorItem records.
typedef struct BehaviorItemList {
    uint32_t count;                              ///< number of records
    BehaviorItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} BehaviorItemList;

/// A row of one of the Wi-Fi access lists `wifi0acl`, `wifi1acl` and `wifi2acl`.
typedef struct AclItem {
    int32_t id;      ///< key of the row
    char name[300];  ///< what people call it
    char mac[20];    ///< MAC address of the device
    char mark[152];  ///< remark
    int32_t status;  ///< whether it applies
} AclItem;

/// A list of AclItem records.
typedef struct AclItemList {
    uint32_t count;                         ///< number of records
    AclItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} AclItemList;

/// A row of `domain_ip`.
typedef struct DomainIpItem {
    int32_t id;        ///< key of the row
    char name[300];    ///< what people call it
    char domain[150];  ///< domain name
    char ip[64];       ///< address that it stands for
    char mark[150];    ///< remark
    int32_t status;    ///< whether it applies
    int32_t reserved;  ///< carries nothing
} DomainIpItem;

/// A list of DomainIpItem records.
typedef struct DomainIpItemList {
    uint32_t count;                              ///< number of records
    DomainIpItem items[ROUTERDB_LIST_CAPACITY];  ///< the records; zero behind the last one
} DomainIpItemList;

/// @}
/// @defgroup list_builders Rule tables: list builders
///
/// The SQL service calls a builder to answer a query. It runs the query on the main database under the lock file
/// and fills a list, the derived members included. The list is cleared first and its count set last; the result
/// has no meaning. A query without rows, and a failure before the first one, leaves the list cleared; a failure behind
/// a row ends the list there. Columns are read by position, where a comment does not say by name. Messages, unless
/// said otherwise: "cannot open %s!\n" (lock file) and "Error: %s" on standard output. A lookup that fails writes the
/// message of its own function and leaves its members clear; of the lookups errno tells of those of groups alone.
/// Random first delay. Threads of one process must take turns, since a builder that returns drops the process's lock,
/// but in modern.
/// @{

/// Builds the list of static DHCP bindings.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from dhcpserverstaticbind order by id;"
/// @return no meaning
/// @note Errors: "cannot open %s!\n" and "cannot open %s, ErrorCode: %d!\n" on standard error, "cannot prepare sql
///       cmdline, Error: %s\n" on standard output.
/// @remark errno: as GET_DB_SQL_INT_COUNT(), and EOVERFLOW for more rows than fit
ROUTERDB_API int GetDhcpStaticItemListInServer(DhcpStaticItemList *list, const char *sql);

/// Builds the list of URL filters. Looks the referenced time groups up.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from filter_url order by Id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetUrlFilterItemListInServer(UrlFilterItemList *list, const char *sql);

/// Builds the list of MAC filters. Looks up the referenced time groups, and each host name
/// with get_hostname_by_mac(), which in the exact profile leaves a stream of the lease file open.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from filter_mac order by id;"
/// @return no meaning
/// @note Errors: "cannot open %s!\n" and "cannot open %s, ErrorCode: %d!\n" on standard error, "cannot prepare sql
///       cmdline, Error: %s\n" on standard output.
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetMacFilterItemListInServer(MacFilterItemList *list, const char *sql);

/// Builds the list of IP and port filters. Looks the referenced time groups and IP groups up; the
/// range of an IP group replaces the rule's own.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from filter_ipport order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetIpFilterItemListInServer(IpFilterItemList *list, const char *sql);

/// Builds the list of time groups.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from user_timegroup order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetTimeGroupItemListInServer(TimeGroupItemList *list, const char *sql);

/// Builds the list of IP groups. Columns are found by name.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from user_ipgroup order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetIpGroupItemListInServer(IpGroupItemList *list, const char *sql);

/// Builds the list of entries of the smart-QoS white list. Columns are found by name.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from smartqos_whitelist order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetSmartQosItemListInServer(SmartQosItemList *list, const char *sql);

/// Builds the list of user URLs. Columns are found by name.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from user_urlinfo order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetUserUrlItemListInServer(UserUrlItemList *list, const char *sql);

/// Builds the list of family members.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from famliymember order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetFamliyMemberItemListInServer(FamliyMemberItemList *list, const char *sql);

/// Builds the list of port forwardings.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from forword_ipport order by Id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetPortFwItemListInServer(PortFwItemList *list, const char *sql);

/// Builds the list of QoS rules. Columns are found by name. Looks the referenced time groups and IP groups up; the
/// rule's own range stays.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from qos_rule order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetQosItemListInServer(QosItemList *list, const char *sql);

/// Builds the list of behaviour rules. Columns are found by name. Looks up the referenced time groups and IP groups
/// (whose range replaces the rule's own), each host name with get_hostname_by_mac(), which in the exact profile leaves
/// a stream of the lease file open, and the names of classes and applications with GetBehaviorItemInfoTypeName().
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from behavior_rule order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetBehaviorItemListInServer(BehaviorItemList *list, const char *sql);

/// Builds the list of entries of a Wi-Fi access list. The query names the list: any of the three will do.
/// @param[out] list  the list to fill
/// @param      sql   the query, such as "select * from wifi0acl order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int Get2GAclItemListInServer(AclItemList *list, const char *sql);

/// Builds the list of entries of a Wi-Fi access list. The query names the list: any of the three will do.
/// @param[out] list  the list to fill
/// @param      sql   the query, such as "select * from wifi0acl order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int Get5GAclItemListInServer(AclItemList *list, const char *sql);

/// Builds the list of domain-to-IP entries.
/// @param[out] list  the list to fill
/// @param      sql   the query, normally "select * from domain_ip order by id;"
/// @return no meaning
/// @remark errno: as GetDhcpStaticItemListInServer()
ROUTERDB_API int GetDomainIpItemListInServer(DomainIpItemList *list, const char *sql);

/// @}
/// @defgroup client_operations Rule tables: client operations
///
/// Each sends one statement to the SQL service with sqlclient_cmd(), or several where it asks for a clash first. The
/// messages of sqlclient_cmd() are the only report: when the service cannot be reached a list comes back empty, a
/// record cleared, and nothing is changed; after a time-out a change may still happen. In modern errno tells all that
/// from an empty table. What the service made of a statement neither tells. Members beyond the table's own columns are
/// not read. Thread-safe.
///
/// After a power loss a change is there as after DbSqlExec(), with which routerdb-sqld makes it before it replies.
///
/// Conditions are SQL, such as generate_db_params() makes. In modern they compare columns with texts between quotes or
/// with integers, also in "in" lists, joined by "or" and "and", with parentheses. Anything else, "1" included, is
/// refused: it is not sent, and the system log names the table.
/// @{

/// Lists all static DHCP bindings in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetDhcpStaticItemList(DhcpStaticItemList *list);

/// Reads one static DHCP binding.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetDhcpStaticItem(int id, DhcpStaticItem *item);

/// Inserts a static DHCP binding unless its addresses are taken. Two clients that add the same address at the same
/// moment may both succeed.
/// @param item  the values; `id` is not read
/// @return 0 when the row was sent, also if the service could not be reached; 1 when the IP address is taken, 2 when
///         the MAC address is
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API int AddDhcpStaticItem(const DhcpStaticItem *item);

/// Writes every column of one static DHCP binding unless another row has its addresses. Of several rows with an
/// address the first one counts that the service finds.
/// @param item  the values; `id` names the row
/// @return 0 when the row was sent, also if the service could not be reached; 1 when another row has the IP address, 2
///         when another one has the MAC address
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API int ModifyDhcpStaticItem(const DhcpStaticItem *item);

/// Deletes static DHCP bindings.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelDhcpStaticItem(const char *condition);

/// Lists all URL filters in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetUrlFilterItemList(UrlFilterItemList *list);

/// Reads one URL filter.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetUrlFilterItem(int id, UrlFilterItem *item);

/// Inserts a URL filter. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddUrlFilterItem(const UrlFilterItem *item);

/// Writes every column of one URL filter.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyUrlFilterItem(const UrlFilterItem *item);

/// Deletes URL filters.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelUrlFilterItem(const char *condition);

/// Deletes URL filters, exactly as DelUrlFilterItem() does.
/// @param condition  an SQL condition
/// @param kind       1 or 2, for conditions on IP groups or time groups; it changes nothing
/// @remark errno: as DelUrlFilterItem()
ROUTERDB_API void DelUrlFilterItemById(const char *condition, int kind);

/// Lists all MAC filters in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetMacFilterItemList(MacFilterItemList *list);

/// Reads one MAC filter.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetMacFilterItem(int id, MacFilterItem *item);

/// Inserts a MAC filter. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddMacFilterItem(const MacFilterItem *item);

/// Writes every column of one MAC filter.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyMacFilterItem(const MacFilterItem *item);

/// Deletes MAC filters.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelMacFilterItem(const char *condition);

/// Deletes all MAC filters.
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void DelMacFilterItemAll(void);

/// Deletes MAC filters, exactly as DelMacFilterItem() does.
/// @param condition  an SQL condition
/// @param kind       1 or 2, for conditions on IP groups or time groups; it changes nothing
/// @remark errno: as DelMacFilterItem()
ROUTERDB_API void DelMacFilterItemById(const char *condition, int kind);

/// Lists all IP and port filters in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetIpFilterItemList(IpFilterItemList *list);

/// Reads one IP and port filter.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetIpFilterItem(int id, IpFilterItem *item);

/// Inserts an IP and port filter. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddIpFilterItem(const IpFilterItem *item);

/// Writes every column of one IP and port filter.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyIpFilterItem(const IpFilterItem *item);

/// Deletes IP and port filters.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelIpFilterItem(const char *condition);

/// Deletes IP and port filters, exactly as DelIpFilterItem() does.
/// @param condition  an SQL condition
/// @param kind       1 or 2, for conditions on IP groups or time groups; it changes nothing
/// @remark errno: as DelIpFilterItem()
ROUTERDB_API void DelIpFilterItemById(const char *condition, int kind);

/// Lists all time groups in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetTimeGroupItemList(TimeGroupItemList *list);

/// Reads one time group.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetTimeGroupItem(int id, TimeGroupItem *item);

/// Inserts a time group. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddTimeGroupItem(const TimeGroupItem *item);

/// Writes every column of one time group.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyTimeGroupItem(const TimeGroupItem *item);

/// Deletes time groups.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelTimeGroupItem(const char *condition);

/// Lists all IP groups in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetIpGroupItemList(IpGroupItemList *list);

/// Reads one IP group.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetIpGroupItem(int id, IpGroupItem *item);

/// Inserts an IP group. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddIpGroupItem(const IpGroupItem *item);

/// Writes every column of one IP group.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyIpGroupItem(const IpGroupItem *item);

/// Deletes IP groups.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelIpGroupItem(const char *condition);

/// Lists all entries of the smart-QoS white list in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetSmartQosItemList(SmartQosItemList *list);

/// Reads one entry of the smart-QoS white list.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetSmartQosItem(int id, SmartQosItem *item);

/// Inserts an entry of the smart-QoS white list. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddSmartQosItem(const SmartQosItem *item);

/// Writes every column of one entry of the smart-QoS white list.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifySmartQosItem(const SmartQosItem *item);

/// Deletes one entry of the smart-QoS white list.
/// @param id  its id
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void DelSmartQosItem(int id);

/// Lists all user URLs in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetUserUrlItemList(UserUrlItemList *list);

/// Reads one user URL.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetUserUrlItem(int id, UserUrlItem *item);

/// Inserts a user URL. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddUserUrlItem(const UserUrlItem *item);

/// Writes every column of one user URL.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyUserUrlItem(const UserUrlItem *item);

/// Deletes one user URL.
/// @param id  its id
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void DelUserUrlItem(int id);

/// Lists all family members in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetFamliyMemberItemList(FamliyMemberItemList *list);

/// Reads one family member.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetFamliyMemberItem(int id, FamliyMemberItem *item);

/// Inserts a family member. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddFamliyMemberItem(const FamliyMemberItem *item);

/// Writes every column of one family member.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyFamliyMemberItem(const FamliyMemberItem *item);

/// Deletes family members.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelFamliyMemberItem(const char *condition);

/// Lists all port forwardings in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetPortFwItemList(PortFwItemList *list);

/// Reads one port forwarding.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetPortFwItem(int id, PortFwItem *item);

/// Inserts a port forwarding. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddPortFwItem(const PortFwItem *item);

/// Writes every column of one port forwarding.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyPortFwItem(const PortFwItem *item);

/// Deletes port forwardings.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelPortFwItem(const char *condition);

/// Lists all QoS rules in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetQosItemList(QosItemList *list);

/// Reads one QoS rule.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetQosItem(int id, QosItem *item);

/// Inserts a QoS rule. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddQosItem(const QosItem *item);

/// Writes every column of one QoS rule.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyQosItem(const QosItem *item);

/// Deletes QoS rules.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelQosItem(const char *condition);

/// Deletes QoS rules, exactly as DelQosItem() does.
/// @param condition  an SQL condition
/// @param kind       1 or 2, for conditions on IP groups or time groups; it changes nothing
/// @remark errno: as DelQosItem()
ROUTERDB_API void DelQosItemById(const char *condition, int kind);

/// Lists all behaviour rules in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetBehaviorItemList(BehaviorItemList *list);

/// Reads one behaviour rule.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetBehaviorItem(int id, BehaviorItem *item);

/// Inserts a behaviour rule. The table chooses the id.
/// @param item  the values; `id` is not read
/// @note Writes "pinfo->behavior_info:%s" to the system log first, at LOG_INFO. In the exact profile it does so
///       under the identity "AddBehaviortem", with openlog and closelog of its own: the caller's identity and options
///       are gone afterwards, until it calls openlog again. The column `behavior_type` becomes 0.
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddBehaviortem(const BehaviorItem *item);

/// Writes every column of one behaviour rule.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyBehaviorItem(const BehaviorItem *item);

/// Deletes behaviour rules.
/// @param condition  an SQL condition
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelBehaviorItem(const char *condition);

/// Deletes behaviour rules, exactly as DelBehaviorItem() does.
/// @param condition  an SQL condition
/// @param kind       1 or 2, for conditions on IP groups or time groups; it changes nothing
/// @remark errno: as DelBehaviorItem()
ROUTERDB_API void DelBehaviorItemById(const char *condition, int kind);

/// Lists all entries of a Wi-Fi access list in order of their ids.
/// @param[out] list    filled whole: count, that many records, zero behind
/// @param      number  of the access list, 0 to 2; with another one nothing is sent and the list is cleared
/// @remark errno: as sqlclient_cmd(), EINVAL for another number, and EOVERFLOW for more records than fit
ROUTERDB_API void GetAclItemList(AclItemList *list, int number);

/// Reads one entry of a Wi-Fi access list.
/// @param      id      its id
/// @param[out] item    filled; cleared when there is no such row
/// @param      number  of the access list, 0 to 2; with another one nothing is sent and the record is cleared
/// @remark errno: as sqlclient_cmd(), and EINVAL for another number
ROUTERDB_API void GetAclItem(int id, AclItem *item, int number);

/// Inserts an entry into a Wi-Fi access list. The table chooses the id.
/// @param item    the values; `id` is not read
/// @param number  of the access list, 0 to 2; with another one nothing is sent
/// @remark errno: as sqlclient_cmd(), and EINVAL for another number
ROUTERDB_API void AddAclItem(const AclItem *item, int number);

/// Writes every column of one entry of a Wi-Fi access list.
/// @param item    the values; `id` names the row
/// @param number  of the access list, 0 to 2; with another one nothing is sent
/// @remark errno: as sqlclient_cmd(), and EINVAL for another number
ROUTERDB_API void ModifyAclItem(const AclItem *item, int number);

/// Deletes entries of a Wi-Fi access list.
/// @param condition  an SQL condition
/// @param number     of the access list, 0 to 2; with another one nothing is sent
/// @remark errno: as sqlclient_cmd(), and EINVAL for another number and for a condition that is refused
ROUTERDB_API void DelAclItem(const char *condition, int number);

/// Deletes all entries of a Wi-Fi access list.
/// @param number  of the access list, 0 to 2; with another one nothing is sent
/// @remark errno: as sqlclient_cmd(), and EINVAL for another number
ROUTERDB_API void DelAclItemAll(int number);

/// Deletes the entries of a MAC address from a Wi-Fi access list.
/// @param mac     the address, as the table has it
/// @param number  of the access list, 0 to 2; with another one nothing is sent
/// @remark errno: as sqlclient_cmd(), and EINVAL for another number
ROUTERDB_API void DelAclItemByMac(const char *mac, int number);

/// Lists all domain-to-IP entries in order of their ids.
/// @param[out] list  filled whole: count, that many records, zero behind
/// @remark errno: as sqlclient_cmd(), and EOVERFLOW for more records than fit
ROUTERDB_API void GetDomainIpItemList(DomainIpItemList *list);

/// Reads one domain-to-IP entry.
/// @param      id    its id
/// @param[out] item  filled; cleared when there is no such row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void GetDomainIpItem(int id, DomainIpItem *item);

/// Inserts a domain-to-IP entry. The table chooses the id.
/// @param item  the values; `id` is not read
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void AddDomainIpItem(const DomainIpItem *item);

/// Writes every column of one domain-to-IP entry.
/// @param item  the values; `id` names the row
/// @remark errno: as sqlclient_cmd()
ROUTERDB_API void ModifyDomainIpItem(const DomainIpItem *item);

/// Deletes domain-to-IP entries.
/// @param condition  an SQL condition
/// @note The request carries the table id of the IP and port filters.
/// @remark errno: as sqlclient_cmd(), and EINVAL for a condition that is refused
ROUTERDB_API void DelDomainIpItem(const char *condition);

/// @}
/// @defgroup rule_lookups Rule tables: lookups
///
/// Where nothing is found the outputs stay clear (groups) or as they were (names). Random first delay.
/// @{

/// Reads one time group on a connection that the caller holds open.
/// @param      db     a connection to the main database
/// @param      id     id of the group
/// @param[out] group  filled; cleared when there is no such group
/// @note Errors: "cannot prepare sql cmdline, Error: %s\n" on standard output. As thread-safe as the connection.
/// @remark errno: EINVAL for what the authorizer of the connection refuses; EACCES, ENOMEM, EIO
ROUTERDB_API void GetTimeControlById(sqlite3 *db, int id, TimeGroupItem *group);

/// Reads name and range of one IP group on a connection that the caller holds open.
/// @param      db     a connection to the main database
/// @param      id     id of the group
/// @param[out] group  `name`, `startip` and `endip` are filled, the rest is cleared
/// @note Errors: "Error: %s" on standard output. As thread-safe as the connection.
/// @remark errno: as GetTimeControlById()
ROUTERDB_API void GetIpGroup_IpRangeById(sqlite3 *db, int id, IpGroupItem *group);

/// Reads the names of an application class from the application catalogue.
/// @param      id       number of the class
/// @param[out] name     receives the name whole; untouched when there is no such class
/// @param[out] name_en  receives the English name whole; untouched when there is no such class
/// @note Errors: "Error: %s" on standard output. Thread-safe; takes no lock.
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API void GetClassNameByClassId(int id, char *name, char *name_en);

/// Reads the names of an application from the application catalogue.
/// @param      class_id  number of its class
/// @param      feature   its feature text
/// @param[out] name      receives the name whole; untouched when there is no such application
/// @param[out] name_en   receives the English name whole; untouched when there is no such application
/// @note Errors: "Error: %s" on standard output. Thread-safe; takes no lock.
/// @remark errno: EOVERFLOW for a text that is too long for SQLite; EACCES, ENOMEM, EIO
ROUTERDB_API void GetAppNameByClassIdAppfeature(int class_id, const char *feature, char *name, char *name_en);

/// Turns the classes and features of a behaviour rule into names: "3:f1?f2AND7:f9" into "Class A:App 1?App 2ANDClass
/// B:App 9". What the catalogue does not know, or has no two names for, is left out; applications of a class that is
/// left out follow what stands before without an "AND".
/// @param         info      `behavior_info` of the rule; without a ":" nothing is appended
/// @param[in,out] names     a text; the names are appended whole, whatever their length
/// @param[in,out] names_en  a text; the English names are appended whole, whatever their length
/// @note Errors: "Error: %s" on standard output. Thread-safe; takes no lock.
/// @remark errno: as GetAppNameByClassIdAppfeature(); of several lookups that failed the last one counts
ROUTERDB_API void GetBehaviorItemInfoTypeName(const char *info, char *names, char *names_en);

/// @}

/// @defgroup device_records Access points: records
///
/// Every value is kept as text, as it stands in the table, the serial number excepted. The members are named after
/// their columns in `DevInfo`.
/// @{

/// Wireless networks that an access point has.
#define ROUTERDB_WLANS 8

/// Access points that the table takes.
#define ROUTERDB_MAX_DEVICES 20

/// One wireless network, number n of an access point. Its columns are `Dev_Wlan<n>_Enable` and so on.
typedef struct DevWlanEntry {
    char Enable[5];           ///< whether it is on
    char Hide_Ssid[5];        ///< whether its name is kept hidden
    char Ssid[100];           ///< its name
    char VlanId[5];           ///< its VLAN
    char Bssid[20];           ///< its MAC address
    char Security[20];        ///< kind of security
    char Securitycipher[20];  ///< with "1" or "2" the WEP members count
    char Authmode[20];        ///< with "1" the PSK members count
    char Wep_Type[20];        ///< kind of WEP key
    char Wep_Value[200];      ///< WEP key
    char Psk_Type[20];        ///< kind of pre-shared key
    char Psk_Value[200];      ///< pre-shared key
} DevWlanEntry;

/// One access point; also what a WLAN group or a zero-configuration group holds.
typedef struct DevInfo {
    uint32_t Dev_Sn;                         ///< serial number, the key of the row
    char Dev_Group[200];                     ///< name of the group that it is counted to
    char Dev_Name[200];                      ///< what people call it
    char Dev_Manufacture[100];               ///< manufacturer
    char Dev_Model_Name[100];                ///< model
    char Dev_IP_Assign[5];                   ///< how it gets its address
    char Dev_Ipaddress[20];                  ///< dotted; empty without an address
    char Dev_Status[5];                      ///< "1" online, "0" offline
    char Dev_Upgrade_Status[25];             ///< state of its firmware upgrade
    char Dev_Subnet[20];                     ///< network mask
    char Dev_Gateway[20];                    ///< default gateway
    char Dev_Dns1[20];                       ///< first name server
    char Dev_Dns2[20];                       ///< second name server
    char Dev_Sys_TrapIP[20];                 ///< where its traps go
    char Dev_MAC[20];                        ///< six pairs with colons
    char Dev_OnlineTime[50];                 ///< time online
    char Dev_SwName[200];                    ///< name of its firmware
    char Dev_SwVer[200];                     ///< version of its firmware
    char Dev_Wlan_GroupId[5];                ///< of the WLAN group that it follows, "0" for none
    char wlan_group_name[100];               ///< no column of the table
    char Dev_Wlan_Radio_Num[5];              ///< wireless networks in use: 4 with one radio, 8 with two
    DevWlanEntry wlan[ROUTERDB_WLANS];       ///< 1 to 4 on the first radio, 5 to 8 on the second
    char Dev_Wlan_Mode[5];                   ///< mode of the radio
    char Dev_Wlan_Bw[5];                     ///< channel width
    char Dev_Wlan_Ampdu[5];                  ///< frame aggregation
    char Dev_Wlan_Isolate[5];                ///< whether stations are kept apart
    char Dev_Wlan_Rate[5];                   ///< transmission rate
    char Dev_Wlan_Beacon_Inertval[5];        ///< spelled so in the table
    char Dev_Wlan_Rts[5];                    ///< RTS threshold
    char Dev_Wlan_Cts[5];                    ///< CTS threshold
    char Dev_Wlan_ShortGI[5];                ///< short guard interval
    char Dev_Wlan_Txpower[5];                ///< percent
    char Dev_Wlan_MaxTxpower[5];             ///< most transmit power
    char Dev_Wlan_Channel[5];                ///< channel that is set
    char Dev_Wlan_RxOption[5];               ///< receive option
    char Dev_Wlan_CoverageThreshold[5];      ///< coverage threshold
    char Dev_Wlan_Current_Channel[5];        ///< channel in use
    char Dev_Wlan_Sta_Num[5];                ///< associated stations
    char Dev_Wlan_MaxStaNum[5];              ///< most stations
    char Dev_RebootTime_Enable[5];           ///< whether it restarts on schedule
    char Dev_RebootTime[50];                 ///< when it restarts
    char Dev_CurrentDateTime[50];            ///< its clock
    char Dev_Wlan_Mode_sec[5];               ///< as Dev_Wlan_Mode, of the second radio
    char Dev_Wlan_Bw_sec[5];                 ///< as Dev_Wlan_Bw, of the second radio
    char Dev_Wlan_Ampdu_sec[5];              ///< as Dev_Wlan_Ampdu, of the second radio
    char Dev_Wlan_Isolate_sec[5];            ///< as Dev_Wlan_Isolate, of the second radio
    char Dev_Wlan_Rate_sec[5];               ///< as Dev_Wlan_Rate, of the second radio
    char Dev_Wlan_Beacon_Inertval_sec[5];    ///< spelled so in the table
    char Dev_Wlan_Rts_sec[5];                ///< as Dev_Wlan_Rts, of the second radio
    char Dev_Wlan_Cts_sec[5];                ///< as Dev_Wlan_Cts, of the second radio
    char Dev_Wlan_ShortGI_sec[5];            ///< as Dev_Wlan_ShortGI, of the second radio
    char Dev_Wlan_Txpower_sec[5];            ///< percent
    char Dev_Wlan_MaxTxpower_sec[5];         ///< as Dev_Wlan_MaxTxpower, of the second radio
    char Dev_Wlan_Channel_sec[5];            ///< as Dev_Wlan_Channel, of the second radio
    char Dev_Wlan_RxOption_sec[5];           ///< as Dev_Wlan_RxOption, of the second radio
    char Dev_Wlan_CoverageThreshold_sec[5];  ///< as Dev_Wlan_CoverageThreshold, of the second radio
    char Dev_Wlan_Current_Channel_sec[5];    ///< as Dev_Wlan_Current_Channel, of the second radio
    char Dev_Wlan_Sta_Num_sec[5];            ///< associated stations
    char Dev_Wlan_MaxStaNum_sec[5];          ///< as Dev_Wlan_MaxStaNum, of the second radio
    char radius_server_ip[20];               ///< no column of the table
    char radius_server_port[20];             ///< no column of the table
    char radius_shared_key[200];             ///< no column of the table
} DevInfo;

/// Room of an ApDevList.
#define ROUTERDB_DEVICE_LIST_CAPACITY 1000

/// All access points, each record on the heap.
typedef struct ApDevList {
    uint32_t count;                                   ///< number of records
    DevInfo *devices[ROUTERDB_DEVICE_LIST_CAPACITY];  ///< released by FreeApDevList()
} ApDevList;

/// One firmware that access points are to be upgraded to.
typedef struct ApDevUpgradeInfo {
    char description[100];  ///< what people call it
    char Dev_SwName[200];   ///< key of the `DevUpgradeInfo` row
    void *block;            ///< on the heap, or null
} ApDevUpgradeInfo;

/// Upgrades, each record on the heap. Only `count` of the pointers are looked at.
typedef struct ApDevUpgradeList {
    uint32_t count;                                          ///< number of records
    ApDevUpgradeInfo *items[ROUTERDB_DEVICE_LIST_CAPACITY];  ///< released by FreeApDevUpgradeList()
} ApDevUpgradeList;

/// @}
/// @defgroup device_reading Access points: reading
/// @{

/// Reads one access point.
/// @param[out] out      cleared in any case, then filled
/// @param      sn       its serial number
/// @param      convert  1 to get the SSIDs of networks 2, 3, 4, 6, 7 and 8 in GB2312; those of 1 and 5, and one that
///                      cannot be converted, stay UTF-8
/// @return the number of rows read: 1, or 0 when there is no such row or the database cannot be read
/// @note Errors: "cannot open %s, ErrorCode: %d!\n" and "cannot prepare sql cmdline, Error: %s\n" in the system log.
///       First sleep 55 microseconds. Thread-safe; takes no lock.
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API int DB_getinfo(DevInfo *out, unsigned long sn, int convert);

/// Reads all access points in order of their addresses.
/// @param[out] list     filled; untouched when the rows cannot even be counted. To be released with FreeApDevList()
/// @param      convert  as in DB_getinfo()
/// @return 1 when there is one at least, else 0
/// @note Errors: those of GET_DB_SQL_INT(), then "cannot open %s, ErrorCode: %d!\n" on standard error and "cannot
///       prepare sql cmdline, Error: %s\n" in the system log. It takes the lock file while it counts. Without memory
///       the list ends early; more rows than ROUTERDB_DEVICE_LIST_CAPACITY are not read, which in modern the system
///       log tells.
/// @remark errno: as DB_GetDevSNCollection(), and EOVERFLOW for more rows than fit
ROUTERDB_API int GetApDevList(ApDevList *list, int convert);

/// Releases the records of a list and sets their pointers to null; the count stays.
/// @param[in,out] list  from GetApDevList()
/// @remark errno is left alone
ROUTERDB_API void FreeApDevList(ApDevList *list);

/// @}
/// @defgroup registration Access points: registration and update
///
/// Values are written with their apostrophes doubled: what an access point reports about itself is never SQL. Of the
/// networks as many are written as `Dev_Wlan_Radio_Num` says, eight at most. The statements go through
/// DB_EXEC_SQL_CHAR(), DB_EXEC_SQL_CHAR_INT() and DB_EXEC_SQL_CHAR_LONG(), with their locks and messages.
///
/// After a power loss each statement is there as after DB_EXEC_SQL_CHAR(): of a new access point in exact perhaps a row
/// without its report, in modern, where the registration is one transaction, all or nothing.
/// @{

/// Looks an access point up by its MAC address, up to sixteen times, 100 microseconds apart.
/// @param      dev  its `Dev_MAC` is read
/// @param[out] sn   receives the serial number of a known one, 0 when several rows have the address
/// @return 1 when it is known, 0 when it is not or cannot be looked up, -1 without a MAC address
/// @remark errno: EINVAL without a MAC address; EACCES, ENOMEM, EIO
ROUTERDB_API int DB_findinfo2(DevInfo dev, unsigned long *sn);

/// Decides whether an access point is new, by up to sixteen lookups, 100 microseconds apart. For a new one with MAC and
/// IP address, a row that has the same serial number is deleted: it belongs to a device that had the address before.
/// The text "00:00:00:00:00", five pairs of zeros, counts as no MAC address.
/// @param      dev  its `Dev_MAC` and `Dev_Ipaddress` are read
/// @param[out] sn   receives the serial number: that of the row, 0 when several rows have the MAC address, or the IP
///                  address as a number in network order, 0xffffffff for a text that is none
/// @return 1 when it is known, 0 when it is new, also when the lookup cannot be prepared, -1 when the database cannot
///         be opened for it
/// @remark errno: as DB_UpdateInfo()
ROUTERDB_API int DB_findinfo(DevInfo dev, unsigned long *sn);

/// Registers an access point: inserts a new one (at most ROUTERDB_MAX_DEVICES), writes what it reports, marks it
/// online, sets its upgrade status to "0", and announces it with "/bin/send_event 5 4 add#%lu >/dev/null 2>&1 &". A new
/// one starts in no WLAN group, and rows that have its MAC address already are deleted; a known one keeps its group.
/// Without a MAC address, all rows with an empty one are written.
/// @param dev  what it reports; SSIDs but those of networks 1 and 5 are converted from GB2312, one that cannot be
///             converted becomes empty
/// @return the serial number as an int, or -1. Compare with -1 only: an address whose last octet is 128 or more gives a
///         negative number on success, and an empty address gives -1 although the row was written
/// @note In the modern profile it is one transaction, tried again as a whole while the database is busy, with one
///       lookup. Where that fails for another reason, it goes on as in exact.
/// @note Copies the database as DbSqlExec() does when the text of its update contains "insert".
/// @note Errors: "not have enough mem" in the system log.
/// @remark errno: as DB_UpdateInfo(), and EOVERFLOW for a new one when the table is full
ROUTERDB_API int DB_addinfo(DevInfo dev);

/// Writes a record into the rows of its MAC address, its WLAN group too, its status and upgrade status not.
/// @param dev  the record; SSIDs as in DB_addinfo()
/// @note Errors: "not have enough mem" in the system log, and the messages of DB_EXEC_SQL_CHAR(). The caller's program
///       is not told.
/// @remark errno: as DB_UpdateInfo()
ROUTERDB_API void DB_saveinfo(const DevInfo *dev);

/// Writes the configuration in a record into the row of its serial number and marks it online. The transmit power is
/// written from 10 to 100 only. What the access point reports about itself is left out.
/// @param dev  the record; SSIDs are written as they stand
/// @return as DB_EXEC_SQL_CHAR(): 0 also when there is no such row
/// @remark errno: what open gave for the lock file, such as ENOENT; EACCES, ENOSPC, ENOMEM, EIO
ROUTERDB_API int DB_UpdateInfo(DevInfo dev);

/// @}
/// @defgroup device_status Access points: status, identity, upgrade
///
/// Each runs its statement with DB_EXEC_SQL_CHAR() (to write) or with DB_EXEC_SQL_CHAR_CHAR(), DB_EXEC_SQL_CHAR_LONG()
/// or DB_EXEC_SQL_CHAR_INT() (to read), unless its comment says otherwise, with their locks and messages, and reports
/// nothing else. Texts are put into the statement as given. After a power loss what was written is there as after
/// DB_EXEC_SQL_CHAR().
/// @{

/// Sets the status of the access point with a MAC address.
/// @param mac     the address, as the table has it
/// @param status  a text; one that does not start with a number other than 0 also sets both station counts to '0'
/// @remark errno: as DB_UpdateInfo(), and EOVERFLOW for a text that is too long for SQLite
ROUTERDB_API void SetDevStatus(const char *mac, const char *status);

/// As SetDevStatus(), by IP address.
/// @param ip      the address, dotted
/// @param status  as in SetDevStatus()
/// @remark errno: as SetDevStatus()
ROUTERDB_API void SetDevStatusbyIP(const char *ip, const char *status);

/// Reads the status of an access point.
/// @param      mac  the address
/// @param[out] out  room for 5 bytes, at which the text is cut; "0" when there is no such row or it cannot be read
/// @remark errno: EOVERFLOW for a text that is too long for SQLite; EACCES, ENOMEM, EIO
ROUTERDB_API void GetDevStatus(const char *mac, char *out);

/// Reads the upgrade status of an access point.
/// @param      mac  the address
/// @param[out] out  room for 25 bytes, at which the text is cut; "0" when there is no such row or it cannot be read
/// @remark errno: as GetDevStatus()
ROUTERDB_API void GetDevUpgradeStatus(const char *mac, char *out);

/// Reads the MAC address of an access point.
/// @param      sn   its serial number
/// @param[out] out  room for 20 bytes, at which the text is cut; untouched when there is no such row
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API void GetDevMacBySN(unsigned long sn, char *out);

/// Reads the serial number of an access point by its MAC address.
/// @param      mac  the address
/// @param[out] sn   untouched when there is no such row, 0 when there are several
/// @remark errno: as GetDevStatus()
ROUTERDB_API void GetDevSNByMac(const char *mac, unsigned long *sn);

/// Reads the serial number of an access point by its IP address.
/// @param      ip  the address, dotted
/// @param[out] sn  untouched when there is no such row, 0 when there are several
/// @remark errno: as GetDevStatus()
ROUTERDB_API void GetDevSNByIp(const char *ip, unsigned long *sn);

/// Sets the upgrade status of an access point and announces it with "/bin/send_event 5 4 mod#%lu >/dev/null 2>&1 &",
/// with the number 0 when there is no such row.
/// @param mac     the address
/// @param status  a text
/// @remark errno: as SetDevStatus()
ROUTERDB_API void SetDevUpgradeStatus(const char *mac, const char *status);

/// Counts the rows of a table of the main database.
/// @param table  its name, put into the statement as given; in modern nothing but the name of a table is counted
/// @return the number of rows; 0 when they cannot be read
/// @remark errno: as GetDevStatus()
ROUTERDB_API int GetTableCount(const char *table);

/// Counts the access points.
/// @return their number; 0 when they cannot be read
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API int get_devinfo_count(void);

/// Counts the access points whose status is "1".
/// @return their number, as GET_DB_SQL_INT_COUNT_ROUTE() gives it
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API int GetApDevList_count(void);

/// Deletes the upgrade entries of a firmware.
/// @param info  its `Dev_SwName` is read; null or an empty name does nothing
/// @return 0
/// @remark errno: as DB_UpdateInfo()
ROUTERDB_API int DeleteApDevUpgradeInfo(const ApDevUpgradeInfo *info);

/// Does nothing.
/// @param list  left as it is
/// @remark errno is left alone
ROUTERDB_API void GetApDevUpgradeList(ApDevUpgradeList *list);

/// Releases the records of a list and the block that each owns, and sets their pointers to null; the count stays.
/// @param[in,out] list  the list
/// @remark errno is left alone
ROUTERDB_API void FreeApDevUpgradeList(ApDevUpgradeList *list);

/// Runs "select Dev_Sn from DevInfo order by Dev_IPSUM ;" under the lock file and delivers none of its rows.
/// @param[in,out] collection  a collection, which starts with its count; the count becomes 0, or stays after a failure
/// @return 0; -1 if the lock file or the database cannot be opened or the statement fails, messages as in DbSqlExec()
/// @note Random first delay.
/// @remark errno: what open gave for the lock file, such as ENOENT; EACCES, ENOMEM, EIO
ROUTERDB_API int DB_GetDevSNCollection(uint32_t *collection);

/// As DB_GetDevSNCollection(), with "select WlanGroup_Id from WlanGroupInfo;".
/// @param[in,out] collection  as there
/// @return as there
/// @remark errno: as DB_GetDevSNCollection()
ROUTERDB_API int DB_GetWlanGroupIDCollection(uint32_t *collection);

/// @}
/// @defgroup wlan_groups WLAN groups
///
/// A group is held in a DevInfo record of which only the members that a group has are filled.
/// @{

/// Reads one WLAN group.
/// @param[out] group    cleared, then filled; the SSIDs of networks 2, 3, 4, 6, 7 and 8 come in GB2312
/// @param      groupId  its number
/// @return 0, also when there is no such group; a positive number when the database could not be opened or not be
/// closed
/// @note Errors: "cannot open %s, ErrorCode: %d!\n" on standard error, "cannot prepare sql cmdline, Error: %s\n" on
///       standard output. First sleep 55 microseconds. Thread-safe; takes no lock.
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API int DB_getwlangroupinfoByindex(DevInfo *group, int groupId);

/// Counts the WLAN groups, as GetTableCount() does.
/// @return their number; 0 when they cannot be read
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API int get_wlangroupinfo_count(void);

/// Compares what an access point has with what its WLAN group wants: group number, networks, and of each radio
/// aggregation, isolation, beacon interval, RTS and CTS thresholds, short guard interval and coverage threshold.
/// BSSIDs, channel, rate, mode, bandwidth, transmit power, receive option and station limits do not count; WEP and key
/// texts count where the group's security uses them.
/// @param dev    the access point; with a radio count of 4 its networks 5 to 8 do not count, with one other than 8 its
///               second radio does not
/// @param group  the group
/// @return 0 when they agree, 1 when they differ
/// @note Different group numbers are written to standard output: "CompareDevInfoWithGroupInfo 6054\n". Thread-safe.
/// @remark errno is left alone
ROUTERDB_API int CompareDevInfoWithGroupInfo(DevInfo dev, DevInfo group);

/// Gives an access point the settings of its WLAN group. Channel, mode, bandwidth, transmit power and station limit of
/// either radio stay its own.
/// @param[in,out] dev    all eight networks (but their BSSIDs), group number, RADIUS members (emptied by a group that
///                       DB_getwlangroupinfoByindex() has read), and of each radio aggregation, isolation, rate, beacon
///                       interval, RTS and CTS thresholds, short guard interval, receive option and coverage threshold
///                       are overwritten
/// @param         group  the group
/// @return no meaning
/// @note Thread-safe.
/// @remark errno is left alone
ROUTERDB_API char *SetDevInfoFromWlanGroupInfo(DevInfo *dev, const DevInfo *group);

/// @}
/// @defgroup zero_config_groups Zero-configuration groups
///
/// After a power loss a group that was written is there as after DB_EXEC_SQL_CHAR().
/// @{

/// Reads the default group, number 1.
/// @param[out] group  untouched when there are no groups or they cannot be counted; else cleared, then filled, SSIDs as
///                    in DB_getwlangroupinfoByindex()
/// @return 0 when there are no groups or they cannot be counted, as when the database cannot be opened; a positive
///         number otherwise, also when the group could not be read
/// @note Errors: those of DB_EXEC_SQL_CHAR_INT(), which counts the groups first, in the system log; then as
///       DB_getwlangroupinfoByindex(), for a database that could be opened for the count only. Takes no lock.
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API int DB_getwlanzerocfggroupinfo(DevInfo *group);

/// Reads one group.
/// @param[out] group    cleared, then filled; SSIDs stay as stored
/// @param      groupId  its number
/// @return 0, also when there is no such group; -1 when the database cannot be opened
/// @note Errors: as DB_getwlangroupinfoByindex(). Random first delay.
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API int DB_getwlanzerocfggroupinfoByindex(DevInfo *group, int groupId);

/// Fills a record with the defaults of a new group. Its name ends in the number behind the highest one, or in 1 when
/// there is no group or the first one has the number 0; the number is not reserved.
/// @param[in,out] group  a cleared record
/// @return no meaning
/// @note Errors: those of GET_DB_SQL_INT(), once for the first number and once for the highest; after both the name
///       ends in 0. Takes the lock file for each of the two. Random first delay.
/// @remark errno: as DB_GetDevSNCollection()
ROUTERDB_API int Initialwlanzerocfggroupinfo(DevInfo *group);

/// Reads a group, or makes a new one.
/// @param[out] group        cleared, then filled
/// @param      groupIdText  its number; a text that is no number, or 0, asks for a new group
/// @return as DB_getwlanzerocfggroupinfoByindex(), or no meaning for a new group
/// @note Errors and locks: as DB_getwlanzerocfggroupinfoByindex() or Initialwlanzerocfggroupinfo().
/// @remark errno: as DB_getwlanzerocfggroupinfoByindex() or Initialwlanzerocfggroupinfo()
ROUTERDB_API int GetWlanZeroCfgGroupInfo(DevInfo *group, const char *groupIdText);

/// Writes a group.
/// @param group    the values; SSIDs are written as they stand
/// @param groupId  its number; 0 inserts a new row, numbered as Initialwlanzerocfggroupinfo() does
/// @return the number written to, whether or not that succeeded
/// @note Errors and locks: as GET_DB_SQL_INT(), which looks at the first group also when its number is not needed, and
///       as DB_EXEC_SQL_CHAR(). Two callers that save new groups at the same moment may get the same number.
/// @remark errno: as DB_UpdateInfo()
ROUTERDB_API int DB_savezerocfgwlangroupinfo(DevInfo group, int groupId);

/// As CompareDevInfoWithGroupInfo(), except that group numbers do not count, and transmit power and reboot times do.
/// @param dev    the access point
/// @param group  the group
/// @return 0 when they agree, 1 when they differ
/// @note Thread-safe.
/// @remark errno is left alone
ROUTERDB_API int CompareDevInfoWithZeroGroupInfo(DevInfo dev, DevInfo group);

/// As SetDevInfoFromWlanGroupInfo(), except that the group number stays, and channels, transmit powers and reboot times
/// are set. An empty channel or one above 13 becomes "0" on the first radio; one that is not above 0 becomes "15" on
/// the second.
/// @param[in,out] dev    the access point
/// @param         group  the group
/// @return no meaning
/// @note Thread-safe.
/// @remark errno is left alone
ROUTERDB_API char *SetDevInfoFromWlanZeroCfgGroupInfo(DevInfo *dev, const DevInfo *group);

/// @}

/// @defgroup json_lists Web interface: lists as JSON
///
/// A function that prints gives one JSON object on standard output, through the C library's stream and without a line
/// break behind it where none is mentioned. Where nothing can be counted beforehand the object is short, with the
/// count "0". Otherwise every element but the last ends with a comma: the last one has all its values empty and is not
/// counted. Texts of the catalogue are cut behind 199 bytes, those of zero-configuration groups behind 99, of stations
/// behind 49, of access points at the width of their members. Then the exact profile prints them as stored: nothing is
/// escaped. The modern one escapes them as RFC 8259 asks for, and prints U+FFFD for bytes that are no UTF-8. When the
/// database cannot be opened, or the query not be prepared, for a list that has begun, or memory runs out for an
/// element, the object stays unfinished; a failure while rows are read ends the list there. Thread-safe as far as the
/// stream is.
///
/// An element goes to the stream in one call, one of GetWlanZeroCfgGroupList() in five; what other threads print does
/// not come between. The last element is one call with all that follows it. In the lists of the catalogue what follows
/// is a call of its own, and in that of the groups, too, where the last element takes four. So a page of two access
/// points is five writes on a stream without a buffer.
/// @{

/// The feature texts of one application class.
typedef struct AppFeatureList {
    uint32_t count;           ///< number of texts
    char features[128][225];  ///< in exact more rows than that run past the record: the buffer has to hold them
} AppFeatureList;

/// Room that the joined names of a class take, in bytes.
#define ROUTERDB_JOINED_NAMES 4096

/// Joins the names of the applications of a class, each with a "/" behind it. Prints no object.
/// @param      classId  number of the class
/// @param[out] out      ROUTERDB_JOINED_NAMES bytes; what does not fit whole is left out with all that follows.
///                      Untouched when the query cannot be prepared
/// @param      db       an open connection to the application catalogue
/// @note Errors: "Webserver Error: %s" on standard output. First sleep 55 microseconds. As thread-safe as the
///       connection.
/// @remark errno: as GetTimeControlById()
ROUTERDB_API void GetAppinfosByClassId(int classId, char *out, sqlite3 *db);

/// As GetAppinfosByClassId(), with the English names.
/// @param      classId  number of the class
/// @param[out] out      as there
/// @param      db       as there
/// @remark errno: as GetTimeControlById()
ROUTERDB_API void GetAppinfosEnByClassId(int classId, char *out, sqlite3 *db);

/// As GetAppinfosByClassId(), with the feature texts.
/// @param      classId  number of the class
/// @param[out] out      as there
/// @param      db       as there
/// @remark errno: as GetTimeControlById()
ROUTERDB_API void GetAppFeaturesByClassId(int classId, char *out, sqlite3 *db);

/// Prints all application classes, each with its applications.
/// @return no meaning
/// @note Errors: those of GET_DB_SQLITE_SQL_INT(), which counts first, in front of the object; then "Webserver Error:
///       %s" on standard output, within it. A catalogue that cannot be opened for the count makes a short
///       object; one that can be opened then and not for the list leaves the object unfinished without a word. The
///       exact profile closes descriptor 0 after the count, and again behind a list, whatever has taken that number
///       meanwhile; behind an unfinished object of that kind, the descriptor whose number is SQLite's result code.
/// @remark errno: EACCES, ENOMEM, EIO, and none for names that could not be joined
ROUTERDB_API int GetAppClassItemList(void);

/// Prints one application class. The count is that of all classes.
/// @param id  its number, a value as item 4 above says
/// @return no meaning
/// @note Errors and descriptors as GetAppClassItemList().
/// @remark errno: as GetAppClassItemList(), and EOVERFLOW for a text that is too long for SQLite
ROUTERDB_API int GetAppClassItem(const char *id);

/// Prints one application.
/// @param id  its number, a value as item 4 above says
/// @return no meaning
/// @note Errors and descriptors as GetAppClassItemList().
/// @remark errno: EOVERFLOW for a text that is too long for SQLite; EACCES, ENOMEM, EIO
ROUTERDB_API int GetAppInfoItem(const char *id);

/// Prints the applications of a class.
/// @param classId  number of the class, a value as item 4 above says; it also goes into each element
/// @return no meaning
/// @note Errors and descriptors as GetAppClassItemList().
/// @remark errno: EOVERFLOW for a text that is too long for SQLite; EACCES, ENOMEM, EIO
ROUTERDB_API int GetAppInfoItemListByClassid(const char *classId);

/// Reads the feature texts of a class from the main database, under the lock file if there is one. Prints no object.
/// @param[out] list     cleared, then filled with all rows; in modern with 128 at most, as lists of rules are
/// @param      classId  number of the class
/// @return no meaning
/// @note Errors: "cannot open %s!\n" and "Error: %s" on standard output. Random first delay.
/// @remark errno: EOVERFLOW for more rows than fit; EACCES, ENOMEM, EIO
ROUTERDB_API int GetAppItemListByClassId(AppFeatureList *list, int classId);

/// Prints one page of the access points, with totals.
/// @param page      number of the page, from 1
/// @param mode      0 all with an address, 1 those of them with status "1", 2 those with status "0", 3 search by
///                  address and MAC address: without both texts it counts all rows and shows those with an address;
///                  another mode finds nothing
/// @param groupId   above 0: those of this WLAN group, whatever the mode
/// @param flag      1: those not in that group, 14 a page; 2: 14 a page
/// @param ip        part of an address to search for; may be null; put into the statement as given, cut at 254 bytes
/// @param mac       part of a MAC address to search for; as `ip`
/// @param pageSize  rows of a page; below 1 it is 17
/// @return no meaning
/// @note The page count is 0 when fewer match than fit one page, 1 when they just fill it. A page behind the last one
///       shows nothing, with page number 1 and page count 0; when nothing matches all totals are 0. Errors: those of
///       GET_DB_SQL_INT_COUNT_ROUTE(), which counts first, in front of the object ("Error: %s" on standard output);
///       then "cannot open %s, ErrorCode: %d!\n" and "cannot prepare sql cmdline, Error: %s\n" on standard error.
///       Random first delay; takes no lock.
/// @remark errno: EACCES, ENOMEM, EIO
ROUTERDB_API int GetApDevList_cgi(int page, int mode, int groupId, int flag, const char *ip, const char *mac,
                                  int pageSize);

/// Prints a summary of all zero-configuration groups, keys and passwords included.
/// @return no meaning
/// @note Prints the short object also when the first group has a number below 1 or cannot be read. Errors: those of
///       GET_DB_SQL_INT(), which looks at the first group under the lock file, in front of the object; then "cannot
///       open %s, ErrorCode: %d!\n" on standard error, "cannot prepare sql cmdline, Error: %s\n" on standard output.
///       Random first delay.
/// @remark errno: as DB_GetDevSNCollection()
ROUTERDB_API int GetWlanZeroCfgGroupList(void);

/// Asks an access point for its stations with the program capwapmanage and prints them, with a line break after the
/// first piece and, if the answer can be read, at the end. Takes a tenth of a second and more; calls sync.
/// @param devIp  its address. The exact profile puts it into shell commands as given: callers check it. The modern one
///               takes nothing but four decimal numbers with dots between them: for anything else it runs nothing,
///               prints the short object, and logs "stations not listed: no IPv4 address\n"
/// @return no meaning
/// @note Leaves "/var/stalist_<n>", n from 1 to 10 at random, and the trace "/tmp/sta_log". Two calls at the same
///       moment may meet in one file in the exact profile. The modern one starts the program without a shell, and its
///       file is a new one each time that only the caller can read.
/// @remark errno: EINVAL for what is no address; what the system gave where the program cannot be started or its file
///         not be made, such as ENOENT; ENOMEM
ROUTERDB_API int GetApDevStaList(const char *devIp);

/// @}

/// @defgroup dhcp_leases DHCP leases
/// @{

/// One lease of the binary lease file, as it stands there.
typedef struct LeaseRecord {
    uint32_t expiry;     ///< big-endian; 0 for a lease that does not count
    uint32_t ip;         ///< network order
    uint8_t mac[6];      ///< all zero for a record without a lease
    char hostname[20];   ///< padded with NUL; without a terminator when it fills the field
    uint8_t padding[2];  ///< not read
} LeaseRecord;

/// One lease in memory, a node of a list.
typedef struct LeaseNode {
    uint32_t unused;         ///< 0
    char ip[40];             ///< dotted
    char mac[32];            ///< "%02X:%02X:%02X:%02X:%02X:%02X"
    char expiry[16];         ///< decimal
    char hostname[152];      ///< empty without one
    uint32_t address;        ///< network order
    struct LeaseNode *next;  ///< null behind the last node
} LeaseNode;

/// Reads a process id.
/// @param pidFile  path of a pid file
/// @return the number that its first line starts with, 0 without one; -1 if the file cannot be opened
/// @note Thread-safe.
/// @remark errno, in exact too: what fopen or fgets gave, such as ENOENT
ROUTERDB_API int getPid_sql(const char *pidFile);

/// Allocates a block of zero bytes.
/// @param size  in bytes
/// @return the block, to be released with free_buffer_sql() or free; null without memory
/// @note Thread-safe.
/// @remark errno, in exact too: ENOMEM
ROUTERDB_API void *get_buffer_sql(size_t size);

/// Overwrites a block with zero bytes and frees it.
/// @param p     the block; null is allowed
/// @param size  of the block in bytes
/// @return 0
/// @note Thread-safe.
/// @remark errno is left alone
ROUTERDB_API int free_buffer_sql(void *p, size_t size);

/// Frees a list of leases, each node overwritten with zero bytes first.
/// @param[in,out] head  the head of the list, null afterwards
/// @note As thread-safe as the list.
/// @remark errno is left alone
ROUTERDB_API void free_leaselist_sql(LeaseNode **head);

/// Fills a node from a lease. A null argument ends the process through an assertion.
/// @param[in,out] mac_ip_list  the node; its link and its first word stay
/// @param         lease        the lease
/// @note As thread-safe as inet_ntoa of the C library: that of GNU is.
/// @remark errno is left alone
ROUTERDB_API void add_addrserverlease_sql(LeaseNode *mac_ip_list, const LeaseRecord *lease);

/// Asks the DHCP server to write its leases (SIGUSR1), waits a millisecond, and reads a binary lease file into a list.
/// @param[in,out] head       must be null; receives the list, to be released with free_leaselist_sql()
/// @param         leaseFile  path of the lease file
/// @param         pidFile    path of the server's pid file; without it no signal is sent. In the modern profile a file
///                           counts if nobody but its owner may write it, and root owns it, or the caller the file and
///                           the process
/// @return the number of nodes; 0 if the lease file cannot be opened ("could not open input file" through perror).
///         Without memory the list ends early
/// @note As thread-safe as add_addrserverlease_sql().
/// @remark errno: what fopen gave for the lease file, such as ENOENT, and none for one that could not be read; ENOMEM
ROUTERDB_API int get_addrserver_leases_sql(LeaseNode **head, const char *leaseFile, const char *pidFile);

/// Asks the DHCP server to write its leases, and finds the host name of a MAC address in a text lease file. Of an
/// address in the file 31 characters count, of a host name 127.
/// @param      mac        the address in upper case, with colons
/// @param[out] hostname   room for 128 bytes; untouched when no line matches
/// @param      leaseFile  path of the lease file
/// @param      pidFile    path of the server's pid file, as for get_addrserver_leases_sql()
/// @return 1 when the file was read, 0 if it cannot be opened ("could not open input file" through perror)
/// @note Thread-safe. In the exact profile each call leaves one stream of the lease file open.
/// @remark errno: what fopen gave for the lease file, such as ENOENT, and none for one that could not be read
ROUTERDB_API int get_hostname_by_mac_from_lease(const char *mac, char *hostname, const char *leaseFile,
                                                const char *pidFile);

/// As get_hostname_by_mac_from_lease(), with "/var/dhcp.leases" and "/var/run/dnsmasq/dnsmasq.pid".
/// @param      mac       the address; null or empty does nothing
/// @param[out] hostname  room for 128 bytes; null does nothing
/// @param      flag      not read
/// @note Errors: "could not open input file" through perror. Thread-safe. In the exact profile each call leaves one
///       stream of the lease file open.
/// @remark errno: as get_hostname_by_mac_from_lease()
ROUTERDB_API void get_hostname_by_mac(const char *mac, char *hostname, int flag);

/// @}

#ifdef __cplusplus
}
#endif

#endif
