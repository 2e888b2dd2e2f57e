-- Calls functions of the library through LuaJIT's ffi and prints what they give: calls.lua LIBRARY DECLARATIONS, which
-- the preprocessor has made of the header.
local ffi = require("ffi")
package.path = arg[0]:match("^.*/") .. "?.lua"
local routerdb = require("routerdb")(arg[1], arg[2])

ffi.cdef([[
int sqlite3_open(const char *path, sqlite3 **db);
int sqlite3_close(sqlite3 *db);
]])
local sqlite = ffi.load("libsqlite3.so.0")

local function show(what, ...)
    io.write(table.concat({what, ...}, " "), "\n")
end

local function text(size, value)
    return ffi.new("char[?]", size, value or "")
end

show("change_time_to_int", routerdb.change_time_to_int(" 7:45"))

local condition = text(64, "delete from t where ")
local length = routerdb.generate_db_params(text(8, "3#7"), condition, 64, 0)
show("generate_db_params", tonumber(length), ffi.string(condition))

local handle = routerdb.get_db_lock()
show("get_db_lock", handle >= 0 and "True" or "False")
show("free_db_lock", routerdb.free_db_lock(handle))

local insert = "insert into DevInfo(Dev_Sn,Dev_Name,Dev_MAC) values(7,'Study','00:11:22:33:44:55'),(8,'Garden','');"
show("DbSqlExec", routerdb.DbSqlExec(text(#insert + 1, insert)))
show("GET_DB_SQL_INT", routerdb.GET_DB_SQL_INT("select * from DevInfo;"))

local number = ffi.new("unsigned long[1]")
show("DB_EXEC_SQL_CHAR_LONG", routerdb.DB_EXEC_SQL_CHAR_LONG("select max(Dev_Sn) from DevInfo;", number),
     tonumber(number[0]))

local device = ffi.new("DevInfo")
show("DB_getinfo", routerdb.DB_getinfo(device, 7, 0), device.Dev_Sn, ffi.string(device.Dev_Name),
     ffi.string(device.Dev_MAC))

local connection = ffi.new("sqlite3 *[1]")
sqlite.sqlite3_open("/etc/config/systemconf/database/myrouter.db", connection)
local name = text(200)
local result = routerdb.GET_DB_SQLITE_SQL_STR_N("select Dev_Name from DevInfo where Dev_Sn=8;", name, connection[0])
sqlite.sqlite3_close(connection[0])
show("GET_DB_SQLITE_SQL_STR_N", result, ffi.string(name))

show("acl_wifi_id", routerdb.acl_wifi_id[0], routerdb.acl_wifi_id[1], routerdb.acl_wifi_id[2])
show("TimeGroupItemCut", ffi.sizeof("TimeGroupItemCut"))

-- Both print through the C library's stream.
io.write("GetWlanZeroCfgGroupList ")
routerdb.GetWlanZeroCfgGroupList()
io.write("\n")

-- Records as arguments are beyond it.
for _, call in ipairs({
    function() return routerdb.CompareDevInfoWithGroupInfo(device, device) end,
    function() return routerdb.CompareDevInfoWithZeroGroupInfo(device, device) end,
    function() return routerdb.DB_UpdateInfo(device) end,
    function() return routerdb.DB_addinfo(device) end,
    function() return routerdb.DB_findinfo(device, number) end,
    function() return routerdb.DB_findinfo2(device, number) end,
    function() return routerdb.DB_savezerocfgwlangroupinfo(device, 1) end,
}) do
    local called, message = pcall(call)
    assert(not called and message:find("NYI: cannot call this C function"), message)
end

-- So is a text of its own where the library may write.
assert(not pcall(function() return routerdb.DbSqlExec("select 1;") end))
