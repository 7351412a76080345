# SPDX-License-Identifier: MIT
#
# What is installed, and where. Everything finds everything else by the way from its own place, so that an installed tree
# can be moved.
#
#   bin/                        gfpq_host, gfpdb, gfprog
#   libexec/                    the program that draws for gfpdb
#   lib/gfpq/                   the module and the libraries: ours alone, so not in the system's own directory
#   lib/cmake/gfpq/             find_package(gfpq)
#   include/gfpq/               headers for hosts
#   share/gfpq/                 device families, texts of the host
#
# Components: "runtime" is all that runs, "development" is what a host is built with.
include(CMakePackageConfigHelpers)

set(GFPQ_PRIVATE_LIBDIR lib/gfpq)
set(GFPQ_CONFIG_DIR lib/cmake/gfpq)
set(GFPQ_DATADIR share/gfpq)
set(GFPQ_HEADER_DIR include/gfpq)

# gfpq_install_library(name): the library, its public headers, and its exported target gfpq::<name>.
function(gfpq_install_library name)
    get_target_property(include_dirs ${name} INTERFACE_INCLUDE_DIRECTORIES)
    set_target_properties(${name} PROPERTIES
        INSTALL_RPATH "\$ORIGIN"
        INTERFACE_INCLUDE_DIRECTORIES "$<BUILD_INTERFACE:${include_dirs}>;$<INSTALL_INTERFACE:${GFPQ_HEADER_DIR}>")
    install(TARGETS ${name} EXPORT gfpqTargets
        LIBRARY DESTINATION ${GFPQ_PRIVATE_LIBDIR} COMPONENT runtime NAMELINK_SKIP)
    foreach(directory IN LISTS include_dirs)
        install(DIRECTORY ${directory}/ DESTINATION ${GFPQ_HEADER_DIR} COMPONENT development FILES_MATCHING PATTERN "*.h")
    endforeach()
endfunction()

foreach(library gen fio dstr msg kovq gfpdb gfpe)
    gfpq_install_library(${library})
endforeach()

# The header of the module's entry point, and the headers of the flash database for who brings a library of their own.
add_library(dyn_dlg INTERFACE)
target_include_directories(dyn_dlg INTERFACE $<INSTALL_INTERFACE:${GFPQ_HEADER_DIR}>)
add_library(gfpdb_interface INTERFACE)
target_include_directories(gfpdb_interface INTERFACE $<INSTALL_INTERFACE:${GFPQ_HEADER_DIR}>)
install(TARGETS dyn_dlg gfpdb_interface EXPORT gfpqTargets)
install(FILES ${PROJECT_SOURCE_DIR}/pgm/gfpq/gfpq_dyn_dlg.h DESTINATION ${GFPQ_HEADER_DIR} COMPONENT development)

set_target_properties(pgm_gfpq PROPERTIES INSTALL_RPATH "\$ORIGIN")
install(TARGETS pgm_gfpq LIBRARY DESTINATION ${GFPQ_PRIVATE_LIBDIR} COMPONENT runtime)

# The first entry is for the build tree, which is run from as it is.
set_target_properties(gfpq_host gfpdb_cli gfpdb_chart gfprog PROPERTIES INSTALL_RPATH "\$ORIGIN/../lib;\$ORIGIN/../${GFPQ_PRIVATE_LIBDIR}")
install(TARGETS gfpq_host gfpdb_cli gfprog RUNTIME DESTINATION bin COMPONENT runtime)
install(TARGETS gfpdb_chart RUNTIME DESTINATION libexec COMPONENT runtime)

# Data and texts.
get_property(host_texts GLOBAL PROPERTY GFPQ_HOST_TEXTS)
install(FILES ${host_texts} DESTINATION ${GFPQ_DATADIR}/translations COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/host/dstr/data/families.csv ${PROJECT_SOURCE_DIR}/pgm/gfpdb/data/serial_nor.csv
    DESTINATION ${GFPQ_DATADIR} COMPONENT runtime)

# gfpq_install_compressed(file destination component): as file.gz, without a time, so that it is the same each time. It is
# made when the build tree is configured: what is installed must not depend on which targets were built.
find_program(GZIP gzip REQUIRED)
function(gfpq_install_compressed file destination component)
    get_filename_component(name ${file} NAME)
    set(compressed ${PROJECT_BINARY_DIR}/compressed/${name}.gz)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/compressed)
    execute_process(COMMAND ${GZIP} -9nc ${file} OUTPUT_FILE ${compressed} COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    install(FILES ${compressed} DESTINATION ${destination} COMPONENT ${component})
endfunction()

# What a desktop and a shell look for.
install(FILES ${PROJECT_SOURCE_DIR}/packaging/gfpq_host.desktop DESTINATION share/applications COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/gfpq_host.svg
    DESTINATION share/icons/hicolor/scalable/apps COMPONENT runtime)
gfpq_install_compressed(${PROJECT_SOURCE_DIR}/packaging/gfpq_host.1 share/man/man1 runtime)
gfpq_install_compressed(${PROJECT_SOURCE_DIR}/app/gfpdb/gfpdb.1 share/man/man1 runtime)
gfpq_install_compressed(${PROJECT_SOURCE_DIR}/app/gfprog/gfprog.1 share/man/man1 runtime)
# zsh of Debian looks here when the prefix is /usr.
foreach(tool gfpdb gfprog)
    set(completion ${PROJECT_BINARY_DIR}/completion/${tool})
    install(FILES ${completion}.bash DESTINATION share/bash-completion/completions RENAME ${tool} COMPONENT runtime)
    install(FILES ${completion}.zsh DESTINATION share/zsh/vendor-completions RENAME _${tool} COMPONENT runtime)
    install(FILES ${completion}.fish DESTINATION share/fish/vendor_completions.d COMPONENT runtime)
endforeach()

# Documentation.
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    DESTINATION share/doc/gfpq COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright DESTINATION share/doc/gfpq COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright DESTINATION share/doc/gfpq-dev COMPONENT development)
gfpq_install_compressed(${PROJECT_SOURCE_DIR}/packaging/changelog share/doc/gfpq runtime)
gfpq_install_compressed(${PROJECT_SOURCE_DIR}/packaging/changelog share/doc/gfpq-dev development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION share/doc/gfpq/docs COMPONENT runtime
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "example-host" EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/example-host DESTINATION share/doc/gfpq-dev COMPONENT development)

# find_package(gfpq)
install(EXPORT gfpqTargets NAMESPACE gfpq:: DESTINATION ${GFPQ_CONFIG_DIR} COMPONENT development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/gfpqConfig.cmake.in ${PROJECT_BINARY_DIR}/gfpqConfig.cmake
    INSTALL_DESTINATION ${GFPQ_CONFIG_DIR} PATH_VARS GFPQ_PRIVATE_LIBDIR NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/gfpqConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/gfpqConfig.cmake ${PROJECT_BINARY_DIR}/gfpqConfigVersion.cmake
    DESTINATION ${GFPQ_CONFIG_DIR} COMPONENT development)
