# What `cmake --install` puts in place: header, library, pkg-config file, CMake package, programs.

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

# The pkg-config file finds its prefix from where it lies, so that the installed tree can be moved.
file(RELATIVE_PATH ROUTERDB_PC_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/routerdb.pc.in routerdb.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/routerdb.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(ROUTERDB_TOOLS)
    install(TARGETS routerdb-sqld DESTINATION ${CMAKE_INSTALL_SBINDIR})
endif()
