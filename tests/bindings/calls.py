"""Calls functions of the library through ctypes and prints what they give: calls.py LIBRARY DECLARATIONS, which castxml
has made of the header."""
import ctypes
import sys

from header import Header

header = Header(sys.argv[2])
routerdb = header.load(sys.argv[1])
sqlite = ctypes.CDLL("libsqlite3.so.0")


def show(what, *results):
    print(what, *[result.decode() if isinstance(result, bytes) else result for result in results])


def text(size, value=b""):
    return ctypes.create_string_buffer(value, size)


show("change_time_to_int", routerdb.change_time_to_int(b" 7:45"))

condition = text(64, b"delete from t where ")
length = routerdb.generate_db_params(text(8, b"3#7"), condition, len(condition), 0)
show("generate_db_params", length, condition.value)

handle = routerdb.get_db_lock()
show("get_db_lock", handle >= 0)
show("free_db_lock", routerdb.free_db_lock(handle))

insert = b"insert into DevInfo(Dev_Sn,Dev_Name,Dev_MAC) values(7,'Study','00:11:22:33:44:55'),(8,'Garden','');"
show("DbSqlExec", routerdb.DbSqlExec(text(len(insert) + 1, insert)))
show("GET_DB_SQL_INT", routerdb.GET_DB_SQL_INT(b"select * from DevInfo;"))

number = ctypes.c_ulong()
show("DB_EXEC_SQL_CHAR_LONG", routerdb.DB_EXEC_SQL_CHAR_LONG(b"select max(Dev_Sn) from DevInfo;", number),
     number.value)

DevInfo = header.record("DevInfo")
device = DevInfo()
show("DB_getinfo", routerdb.DB_getinfo(device, 7, 0), device.Dev_Sn, device.Dev_Name, device.Dev_MAC)

connection = ctypes.c_void_p()
sqlite.sqlite3_open(b"/etc/config/systemconf/database/myrouter.db", ctypes.byref(connection))
name = text(200)
sqlite_type = routerdb.GET_DB_SQLITE_SQL_STR_N.argtypes[2]
result = routerdb.GET_DB_SQLITE_SQL_STR_N(b"select Dev_Name from DevInfo where Dev_Sn=8;", name,
                                          ctypes.cast(connection, sqlite_type))
sqlite.sqlite3_close(connection)
show("GET_DB_SQLITE_SQL_STR_N", result, name.value)

show("acl_wifi_id", *header.variable(routerdb, "acl_wifi_id"))
show("TimeGroupItemCut", ctypes.sizeof(header.record("TimeGroupItemCut")))

# The library prints through the C library's stream, Python through its own.
sys.stdout.write("GetWlanZeroCfgGroupList ")
sys.stdout.flush()
routerdb.GetWlanZeroCfgGroupList()
ctypes.CDLL(None).fflush(None)
print()

# Records as arguments.
group = DevInfo()
assert routerdb.CompareDevInfoWithZeroGroupInfo(group, group) == 0
assert routerdb.CompareDevInfoWithZeroGroupInfo(device, DevInfo(Dev_Wlan_Rts=b"5")) == 1
assert sorted(filter(header.takes_records, header.names("Function"))) == [
    "CompareDevInfoWithGroupInfo",
    "CompareDevInfoWithZeroGroupInfo",
    "DB_UpdateInfo",
    "DB_addinfo",
    "DB_findinfo",
    "DB_findinfo2",
    "DB_savezerocfgwlangroupinfo",
]

# An immutable text is taken everywhere, also where the library may write: a call has to see to that itself.
assert routerdb.DbSqlExec(b"select 1;") == 0
