# How everything here is compiled: the language, the warnings, the sanitizers.

set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The usual options of every target of the project, as an interface to link with.
add_library(routerdb_compile_options INTERFACE)
target_compile_options(
    routerdb_compile_options
    INTERFACE -Wall -Wextra -Wshadow -Wconversion -Wformat=2 -Wvla
              $<$<COMPILE_LANGUAGE:CXX>:-Wmissing-declarations>
              $<$<BOOL:${ROUTERDB_WERROR}>:-Werror>)

if(ROUTERDB_SANITIZE)
    add_compile_options(-fsanitize=${ROUTERDB_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ROUTERDB_SANITIZE})
endif()

# What is compiled so tells libFuzzer which way an input has taken.
if(ROUTERDB_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(ROUTERDB_COVERAGE)
    # Counters that are relocated lie in the file itself from the start.
    add_compile_options(-fprofile-instr-generate -fcoverage-mapping -mllvm -runtime-counter-relocation)
    add_link_options(-fprofile-instr-generate)
endif()
