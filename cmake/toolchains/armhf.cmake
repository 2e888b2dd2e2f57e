# 32-bit ARM with hardware floating point, in the instructions that Debian takes for granted; `char` is unsigned. Its programs run under qemu-user.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(architecture armhf)
include(${CMAKE_CURRENT_LIST_DIR}/sysroot.cmake)

find_program(clang clang)
find_program(lld ld.lld)
if(NOT clang OR NOT lld)
    message(FATAL_ERROR "Builds for ARM need the packages clang and lld")
endif()

# As plain options, so that whoever compiles without this file can be handed all that it takes.
set(target_options "--target=arm-linux-gnueabihf -march=armv7-a -mthumb --sysroot=${sysroot}")
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_FLAGS_INIT ${target_options})
set(CMAKE_CXX_FLAGS_INIT ${target_options})
set(CMAKE_EXE_LINKER_FLAGS_INIT -fuse-ld=lld)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -fuse-ld=lld)
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)

set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm -L ${sysroot})
