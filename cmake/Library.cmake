# The library. Its objects are built once and linked twice: into the shared library, with the export list, and into
# the unit tests, without it.

add_library(
    routerdb_objects OBJECT
    apinventory/apply.cpp
    apinventory/collections.cpp
    apinventory/compare.cpp
    apinventory/devices.cpp
    apinventory/doors.cpp
    apinventory/fragments.cpp
    apinventory/groups.cpp
    apinventory/list_json.cpp
    apinventory/notify.cpp
    apinventory/numbers.cpp
    apinventory/paging.cpp
    apinventory/record_layout.cpp
    apinventory/record_reader.cpp
    apinventory/registration.cpp
    apinventory/station_list.cpp
    apinventory/status.cpp
    apinventory/update.cpp
    apinventory/upgrade.cpp
    apinventory/zero_config.cpp
    apinventory/zero_config_json.cpp
    appcatalog/doors.cpp
    appcatalog/feature_list.cpp
    appcatalog/json_lists.cpp
    appcatalog/names.cpp
    core/access.cpp
    core/backoff.cpp
    core/connection.cpp
    core/doors.cpp
    core/encoding.cpp
    core/execute.cpp
    core/id_list.cpp
    core/json_list.cpp
    core/lock_file.cpp
    core/maintenance.cpp
    core/query.cpp
    core/random.cpp
    core/reading.cpp
    core/report.cpp
    core/row.cpp
    core/shell.cpp
    core/statement.cpp
    core/text.cpp
    core/time_of_day.cpp
    dhcp/doors.cpp
    dhcp/host_name.cpp
    dhcp/lease_file.cpp
    dhcp/lease_list.cpp
    rules/behavior_names.cpp
    rules/catalogue.cpp
    rules/catalogue_names.cpp
    rules/client_ops.cpp
    rules/columns.cpp
    rules/derived.cpp
    rules/doors.cpp
    rules/list_builder.cpp
    rules/record_layout.cpp
    rules/record_reader.cpp
    rules/references.cpp
    rules/sql_builder.cpp
    rules/static_binding.cpp
    rules/tables/acl.cpp
    rules/tables/behavior_rule.cpp
    rules/tables/dhcpserverstaticbind.cpp
    rules/tables/domain_ip.cpp
    rules/tables/famliymember.cpp
    rules/tables/filter_ipport.cpp
    rules/tables/filter_mac.cpp
    rules/tables/filter_url.cpp
    rules/tables/forword_ipport.cpp
    rules/tables/qos_rule.cpp
    rules/tables/smartqos_whitelist.cpp
    rules/tables/user_ipgroup.cpp
    rules/tables/user_timegroup.cpp
    rules/tables/user_urlinfo.cpp
    sqlservice/client.cpp
    sqlservice/doors.cpp
    sqlservice/sigpipe_hold.cpp
    sqlservice/socket.cpp)

set_target_properties(
    routerdb_objects
    PROPERTIES POSITION_INDEPENDENT_CODE ON
               CXX_VISIBILITY_PRESET hidden
               VISIBILITY_INLINES_HIDDEN ON)
target_include_directories(
    routerdb_objects
    PUBLIC ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
target_compile_definitions(routerdb_objects PUBLIC ROUTERDB_PROFILE=${ROUTERDB_PROFILE})
target_link_libraries(routerdb_objects PUBLIC SQLite::SQLite3 Threads::Threads PRIVATE routerdb_compile_options)
# Fortified calls have other names, and programs put their own functions in front of the plain ones.
target_compile_options(
    routerdb_objects
    PRIVATE -fno-exceptions -fno-rtti -fno-threadsafe-statics -ffunction-sections -fdata-sections -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=
            -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=0)

include(SmallBuild)

add_library(routerdb SHARED)
add_library(routerdb::routerdb ALIAS routerdb)
target_link_libraries(routerdb PRIVATE routerdb_objects SQLite::SQLite3 Threads::Threads)
target_include_directories(
    routerdb
    INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
set_target_properties(
    routerdb
    PROPERTIES VERSION ${PROJECT_VERSION}
               SOVERSION ${PROJECT_VERSION_MAJOR}
               LINKER_LANGUAGE C # so that no C++ runtime comes in
               LINK_DEPENDS ${PROJECT_SOURCE_DIR}/routerdb.map)
target_link_options(
    routerdb
    PRIVATE -static-libgcc # 32-bit processors divide with its help
            LINKER:--version-script=${PROJECT_SOURCE_DIR}/routerdb.map
            LINKER:--no-undefined-version
            LINKER:-z,defs
            LINKER:--gc-sections
            LINKER:--as-needed
            $<$<CONFIG:MinSizeRel>:${small_link_options}>)
