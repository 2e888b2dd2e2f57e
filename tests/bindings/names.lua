-- Finds each name of standard input, declared and in the library, and the size of a record: names.lua LIBRARY
-- DECLARATIONS.
package.path = arg[0]:match("^.*/") .. "?.lua"
local routerdb = require("routerdb")(arg[1], arg[2])

for name in io.lines() do
    assert(routerdb[name])
end
assert(require("ffi").sizeof("TimeGroupItemCut") == 376)
