# What makes the release build small, each beyond -Os: `docs/footprint.md` holds the result.

include(CheckCXXCompilerFlag)
include(CheckIPOSupported)
include(CheckLinkerFlag)

# Without exceptions nobody unwinds in the field; a debug build keeps what a debugger needs. Where unwind tables are
# left out, 32-bit x86 would keep a frame pointer instead.
set(small_compile_options -fno-unwind-tables -fno-asynchronous-unwind-tables -fomit-frame-pointer)

# Tables of constants are not aligned beyond what their members need. Functions that are called once stay functions,
# because inside the caller they cost more registers than the call, and so do addresses that are kept across the calls
# of a loop. A switch of a few cases is smaller as comparisons than as a table. Lists of a quarter of a megabyte are
# cleared by the C library's memset, not by a loop of eight bytes a time. Not every compiler has these.
foreach(flag -malign-data=abi -fno-inline-functions-called-once -fno-move-loop-invariants -fno-jump-tables
             -fno-tree-switch-conversion -mmemset-strategy=libcall:-1:noalign)
    string(MAKE_C_IDENTIFIER "has${flag}" has_flag)
    check_cxx_compiler_flag("-Werror ${flag}" ${has_flag})
    if(${has_flag})
        list(APPEND small_compile_options ${flag})
    endif()
endforeach()

# Code and constants share a segment: the pages between them would be half empty. The linker's own unwind tables go the
# way of the compiler's. Not every linker has these.
set(small_link_options)
foreach(flag LINKER:-z,noseparate-code LINKER:--no-ld-generated-unwind-info)
    string(MAKE_C_IDENTIFIER "has_${flag}" has_flag)
    check_linker_flag(CXX "${flag}" ${has_flag})
    if(${has_flag})
        list(APPEND small_link_options ${flag})
    endif()
endforeach()

target_compile_options(routerdb_objects PRIVATE "$<$<CONFIG:MinSizeRel>:${small_compile_options}>")

# Calls inside the library pass their arguments in registers when the compiler sees all of them.
if(NOT DEFINED CMAKE_INTERPROCEDURAL_OPTIMIZATION_MINSIZEREL)
    check_ipo_supported(RESULT has_ipo LANGUAGES CXX)
    set_target_properties(routerdb_objects PROPERTIES INTERPROCEDURAL_OPTIMIZATION_MINSIZEREL ${has_ipo})
endif()
