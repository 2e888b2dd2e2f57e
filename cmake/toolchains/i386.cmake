# 32-bit x86, which an x86-64 machine runs by itself: for daily work on the target's word size.
# The compiler and the C and C++ libraries are the host's; the rest comes from the sysroot.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i386)
set(architecture i386)
include(${CMAKE_CURRENT_LIST_DIR}/sysroot.cmake)

if(NOT EXISTS /usr/lib32/Scrt1.o)
    message(FATAL_ERROR "Builds for 32-bit x86 need the packages libc6-dev-i386 and lib32stdc++-12-dev")
endif()

set(CMAKE_C_COMPILER gcc)
set(CMAKE_CXX_COMPILER g++)
# The kernel's headers serve both word sizes, but gcc does not look for them there with -m32.
set(target_options "-m32 -idirafter /usr/include/x86_64-linux-gnu")
set(CMAKE_C_FLAGS_INIT ${target_options})
set(CMAKE_CXX_FLAGS_INIT ${target_options})
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)

# The linker looks for SQLite there when it meets a library that needs it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -Wl,-rpath-link,${sysroot}/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE})
