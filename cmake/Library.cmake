# The library. Its objects are built once and linked twice: into the shared library, with the export list, and into
# the unit tests, without it.

# Each rule table has a file of its own; adding one takes no line here.
file(GLOB rule_tables RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/rules/tables/*.cpp)

add_library(
    routerdb_objects OBJECT
    ${rule_tables}
    src/apinventory/apply.cpp
    src/apinventory/assignments.cpp
    src/apinventory/compare.cpp
    src/apinventory/devices.cpp
    src/apinventory/doors.cpp
    src/apinventory/empty_collection.cpp
    src/apinventory/groups.cpp
    src/apinventory/list_json.cpp
    src/apinventory/member_reader.cpp
    src/apinventory/notify.cpp
    src/apinventory/numbers.cpp
    src/apinventory/paging.cpp
    src/apinventory/record_layout.cpp
    src/apinventory/registration.cpp
    src/apinventory/station_list.cpp
    src/apinventory/station_program.cpp
    src/apinventory/status.cpp
    src/apinventory/totals.cpp
    src/apinventory/update.cpp
    src/apinventory/upgrade.cpp
    src/apinventory/zero_config.cpp
    src/apinventory/zero_config_json.cpp
    src/appcatalog/catalogue.cpp
    src/appcatalog/doors.cpp
    src/appcatalog/feature_list.cpp
    src/appcatalog/json_lists.cpp
    src/appcatalog/names.cpp
    src/core/access.cpp
    src/core/backoff.cpp
    src/core/call_errno.cpp
    src/core/confinement.cpp
    src/core/connection.cpp
    src/core/database_check.cpp
    src/core/database_copy.cpp
    src/core/doors.cpp
    src/core/elf_note.cpp
    src/core/execute.cpp
    src/core/journal.cpp
    src/core/kept_connection.cpp
    src/core/kept_statements.cpp
    src/core/list_room.cpp
    src/core/lock_file.cpp
    src/core/lock_holder.cpp
    src/core/maintenance.cpp
    src/core/open_file.cpp
    src/core/query.cpp
    src/core/random.cpp
    src/core/reading.cpp
    src/core/remembered.cpp
    src/core/report.cpp
    src/core/row.cpp
    src/core/schema_digest.cpp
    src/core/shell.cpp
    src/core/statement.cpp
    src/core/statement_shape.cpp
    src/core/transaction.cpp
    src/dhcp/doors.cpp
    src/dhcp/host_name.cpp
    src/dhcp/lease_file.cpp
    src/dhcp/lease_list.cpp
    src/json/escape.cpp
    src/json/json_list.cpp
    src/rules/behavior_names.cpp
    src/rules/client_ops.cpp
    src/rules/columns.cpp
    src/rules/condition.cpp
    src/rules/derived.cpp
    src/rules/doors.cpp
    src/rules/field_reader.cpp
    src/rules/list_builder.cpp
    src/rules/record_layout.cpp
    src/rules/references.cpp
    src/rules/sql_builder.cpp
    src/rules/static_binding.cpp
    src/sqlservice/client.cpp
    src/sqlservice/doors.cpp
    src/sqlservice/sigpipe_hold.cpp
    src/sqlservice/socket.cpp
    src/text/doors.cpp
    src/text/encoding.cpp
    src/text/id_list.cpp
    src/text/number.cpp
    src/text/text.cpp
    src/text/time_of_day.cpp)

set_target_properties(
    routerdb_objects
    PROPERTIES POSITION_INDEPENDENT_CODE ON
               CXX_VISIBILITY_PRESET hidden
               VISIBILITY_INLINES_HIDDEN ON)
target_include_directories(
    routerdb_objects
    PUBLIC ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)
target_compile_definitions(routerdb_objects PUBLIC ROUTERDB_PROFILE=${ROUTERDB_PROFILE}
                           PRIVATE ROUTERDB_VERSION="${PROJECT_VERSION}")
target_link_libraries(routerdb_objects PUBLIC SQLite::SQLite3 Threads::Threads PRIVATE routerdb_compile_options)
# Fortified calls have other names, and programs put their own functions in front of the plain ones. A compiler that
# knows malloc makes calloc of it where the block is cleared.
target_compile_options(
    routerdb_objects
    PRIVATE -fno-exceptions -fno-rtti -fno-threadsafe-statics -ffunction-sections -fdata-sections -U_FORTIFY_SOURCE
            -D_FORTIFY_SOURCE=0 -fno-builtin-malloc)
# The library does not tell where it was built; counters have to.
if(NOT ROUTERDB_COVERAGE)
    target_compile_options(routerdb_objects PRIVATE -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
endif()

# What each profile is built with beyond that. The modern one notices when a buffer on the stack is overrun, and no address
# in it can be written once it is loaded. It is not fortified either. -fstack-protector-strong would guard three times as
# many functions, all that hand out the address of a local variable, for 3.5 KB. Functions that are found when the library is
# loaded need no table of jumps to them: 1.4 KB less.
add_library(routerdb_exact_options INTERFACE)
add_library(routerdb_modern_options INTERFACE)
target_compile_options(routerdb_modern_options INTERFACE -fstack-protector -fno-plt)
target_link_options(routerdb_modern_options INTERFACE LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
target_link_libraries(routerdb_objects PRIVATE routerdb_${ROUTERDB_PROFILE}_options)

include(SmallBuild)

add_library(routerdb SHARED)
add_library(routerdb::routerdb ALIAS routerdb)
target_link_libraries(routerdb PRIVATE routerdb_objects routerdb_${ROUTERDB_PROFILE}_options SQLite::SQLite3 Threads::Threads)
target_include_directories(
    routerdb
    INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
set_target_properties(
    routerdb
    PROPERTIES VERSION ${PROJECT_VERSION}
               SOVERSION ${PROJECT_VERSION_MAJOR}
               LINKER_LANGUAGE C # so that no C++ runtime comes in
               LINK_DEPENDS ${PROJECT_SOURCE_DIR}/src/routerdb.map)
target_link_options(
    routerdb
    PRIVATE -static-libgcc # 32-bit processors divide with its help
            LINKER:--version-script=${PROJECT_SOURCE_DIR}/src/routerdb.map
            LINKER:--no-undefined-version
            LINKER:-z,defs
            LINKER:--gc-sections
            LINKER:--as-needed
            $<$<CONFIG:MinSizeRel>:${small_link_options}>)
