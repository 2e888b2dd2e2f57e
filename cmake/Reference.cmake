# The reference, made from the public header and the guide: HTML pages, and manual pages that are installed.

option(ROUTERDB_MAN "Make the reference from the header, and install its manual pages" OFF)
if(NOT ROUTERDB_MAN)
    return()
endif()

find_package(Doxygen REQUIRED)
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)

set(reference_dir ${PROJECT_BINARY_DIR}/reference)
set(man_dir ${reference_dir}/man/man3)
set(man_scripts ${PROJECT_SOURCE_DIR}/docs/man/make_pages.py ${PROJECT_SOURCE_DIR}/docs/man/header.py
                ${PROJECT_SOURCE_DIR}/docs/man/roff.py)
file(GLOB examples CONFIGURE_DEPENDS docs/man/examples/*.c)
configure_file(docs/Doxyfile.in ${reference_dir}/Doxyfile @ONLY)
string(TIMESTAMP today "%Y-%m-%d" UTC) # that of SOURCE_DATE_EPOCH where it is set

# A run that warns leaves its files behind and fails: only the stamp says that they are good.
add_custom_command(
    OUTPUT ${reference_dir}/doxygen.stamp
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${reference_dir}/html ${reference_dir}/xml
    COMMAND Doxygen::doxygen ${reference_dir}/Doxyfile
    COMMAND ${CMAKE_COMMAND} -E touch ${reference_dir}/doxygen.stamp
    DEPENDS ${reference_dir}/Doxyfile ${PROJECT_SOURCE_DIR}/include/routerdb.h ${PROJECT_SOURCE_DIR}/docs/guide.md
            ${PROJECT_SOURCE_DIR}/docs/images/roads.svg
    COMMENT "Making the reference"
    VERBATIM)
add_custom_command(
    OUTPUT ${man_dir}/routerdb.3
    COMMAND Python3::Interpreter -B ${PROJECT_SOURCE_DIR}/docs/man/make_pages.py ${reference_dir}/xml ${man_dir}
            ${PROJECT_VERSION} ${today}
    DEPENDS ${reference_dir}/doxygen.stamp ${man_scripts} ${examples}
    COMMENT "Making the manual pages"
    VERBATIM)
find_program(LOWDOWN lowdown REQUIRED)
set(guide_page ${reference_dir}/man/man7/routerdb.7)
add_custom_command(
    OUTPUT ${guide_page}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${reference_dir}/man/man7
    COMMAND ${PROJECT_SOURCE_DIR}/docs/man/make_guide ${PROJECT_SOURCE_DIR}/docs/guide.md ${PROJECT_VERSION} ${today} >${guide_page}
    DEPENDS ${PROJECT_SOURCE_DIR}/docs/man/make_guide ${PROJECT_SOURCE_DIR}/docs/guide.md
    COMMENT "Making the manual page of the guide")
add_custom_target(reference ALL DEPENDS ${man_dir}/routerdb.3 ${guide_page})

install(FILES ${guide_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man7)
install(DIRECTORY ${man_dir}/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man3 FILES_MATCHING PATTERN "*.3")
