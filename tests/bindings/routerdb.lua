-- The library for LuaJIT: routerdb.lua is given its path, and what the preprocessor has made of the header.
local ffi = require("ffi")

-- What the header takes from the system.
ffi.cdef([[
typedef long __off_t;
typedef struct pthread_mutex_t pthread_mutex_t;
]])

return function(library, declarations)
    ffi.cdef(assert(io.open(declarations)):read("*a"))
    return ffi.load(library)
end
