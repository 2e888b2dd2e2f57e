# What `cmake --install` puts in place: header, library, pkg-config file, CMake package, programs with their manual pages.

include(CMakePackageConfigHelpers)

install(TARGETS routerdb EXPORT routerdb LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES include/routerdb.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/routerdb)
install(
    EXPORT routerdb
    NAMESPACE routerdb::
    FILE routerdbTargets.cmake
    DESTINATION ${package_dir})
configure_package_config_file(cmake/routerdbConfig.cmake.in routerdbConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(routerdbConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/routerdbConfig.cmake ${PROJECT_BINARY_DIR}/routerdbConfigVersion.cmake
        DESTINATION ${package_dir})

# The pkg-config file finds its prefix from where it lies, so that the installed tree can be moved. A library directory
# given as an absolute path stays where it is, and an absolute path replaces what it is appended to.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
    set(ROUTERDB_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
else()
    set(up /prefix)
    cmake_path(RELATIVE_PATH up BASE_DIRECTORY /prefix/${pkgconfig_dir})
    set(ROUTERDB_PC_PREFIX "\${pcfiledir}/${up}")
endif()
cmake_path(APPEND ROUTERDB_PC_INCLUDEDIR "\${prefix}" ${CMAKE_INSTALL_INCLUDEDIR})
cmake_path(APPEND ROUTERDB_PC_LIBDIR "\${prefix}" ${CMAKE_INSTALL_LIBDIR})
configure_file(cmake/routerdb.pc.in routerdb.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/routerdb.pc DESTINATION ${pkgconfig_dir})

if(ROUTERDB_TOOLS)
    install(TARGETS routerdb-sqld DESTINATION ${CMAKE_INSTALL_SBINDIR})
    install(TARGETS routerdbctl DESTINATION ${CMAKE_INSTALL_BINDIR})
    include(ToolPages)
    install(PROGRAMS ${PROJECT_BINARY_DIR}/routerdb-setup DESTINATION ${CMAKE_INSTALL_SBINDIR})
    install(FILES schema/main.sql schema/catalog.sql DESTINATION ${CMAKE_INSTALL_DATADIR}/routerdb)
    install(FILES ${PROJECT_BINARY_DIR}/routerdb-setup.8 ${PROJECT_BINARY_DIR}/routerdb-sqld.8
            DESTINATION ${CMAKE_INSTALL_MANDIR}/man8)
    install(FILES ${PROJECT_BINARY_DIR}/routerdbctl.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()
