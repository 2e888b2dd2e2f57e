# The manual pages of the tools. They name the paths that are compiled in, and the commands and options of routerdbctl as
# its own tables have them.

set(commands tools/routerdbctl/commands.cpp)
set(command_line tools/routerdbctl/command_line.cpp)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS src/core/paths.h ${commands} ${command_line})

foreach(name backup_database catalogue_database factory_database lock_file main_database service_lock service_socket)
    file(STRINGS src/core/paths.h line REGEX " ${name}\\[\\] = ")
    string(REGEX REPLACE ".*\"(.*)\".*" "\\1" ${name} "${line}")
endforeach()

# What `rows`, a regular expression of four groups, finds in a file: the first three as a heading, the fourth below it.
# What means something to CMake is given another form on its way.
function(list_rows out file rows)
    file(READ ${PROJECT_SOURCE_DIR}/${file} text)
    string(REPLACE ";" "<semicolon>" text "${text}")
    string(REPLACE "[" "<open>" text "${text}")
    string(REPLACE "]" "<close>" text "${text}")
    string(REGEX MATCHALL "${rows}" found "${text}")
    set(result)
    foreach(row IN LISTS found)
        string(REGEX REPLACE "${rows}" ".TP\n<bold>\\1 \\2<roman> <italic>\\3<roman>\n\\4\n" row "${row}")
        string(APPEND result "${row}")
    endforeach()
    string(REPLACE " <roman>" "<roman>" result "${result}")
    string(REPLACE " <italic><roman>" "" result "${result}")
    string(REPLACE "\\\"" "\"" result "${result}")
    string(REPLACE "-" "\\-" result "${result}")
    string(REPLACE "<bold>" "\\fB" result "${result}")
    string(REPLACE "<italic>" "\\fI" result "${result}")
    string(REPLACE "<roman>" "\\fR" result "${result}")
    string(REPLACE "<open>" "[" result "${result}")
    string(REPLACE "<close>" "]" result "${result}")
    string(REPLACE "<semicolon>" ";" result "${result}")
    set(${out} "${result}" PARENT_SCOPE)
endfunction()

set(word "\"([^\"]*)\"")
set(sentence "\"(([^\"\\\\]|\\\\.)*)\"")
list_rows(command_list ${commands} "    {${word}, ${word}, ${word}, ${sentence},")
list_rows(option_list ${command_line} "    {${word}, +(nullptr,|)(\"[^\"]*\",|) +${sentence},")
string(REGEX REPLACE "\n\\\\fB([a-z\\\\-]+)" "\n\\\\fB\\\\-\\\\-\\1" option_list "${option_list}")
string(REGEX REPLACE " (nullptr,|)\\\\fR" "\\\\fR" option_list "${option_list}")
string(REGEX REPLACE "\"([^\"\n]*)\",\\\\fR\n" "\\1\\\\fR\n" option_list "${option_list}")

configure_file(tools/routerdb-sqld/routerdb-sqld.8.in routerdb-sqld.8 @ONLY)
configure_file(tools/routerdbctl/routerdbctl.1.in routerdbctl.1 @ONLY)
