# Where a toolchain finds what the target has: include(sysroot) after `architecture` is set.

set(sysroot ${CMAKE_CURRENT_LIST_DIR}/../../build/sysroot/${architecture})
if(NOT EXISTS ${sysroot})
    message(FATAL_ERROR "${sysroot} is missing: run scripts/sysroot ${architecture}")
endif()
file(REAL_PATH ${sysroot} sysroot)

set(CMAKE_FIND_ROOT_PATH ${sysroot})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
