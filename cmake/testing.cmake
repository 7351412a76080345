# SPDX-License-Identifier: MIT
set(GFPQ_TEST_TIMEOUT 300 CACHE STRING "Seconds after which a test counts as hanging")

# gfpq_add_test(NAME name LABEL unit|gui|e2e|fuzz|soak|faults|server SOURCES file... LIBRARIES target... [TIMEOUT seconds])
#
# One test program, run without a display, with settings, home and locale of its own, so that no test sees the user's
# files and two tests never share a directory. The first source has the class of the test.
function(gfpq_add_test)
    cmake_parse_arguments(ARG "" "NAME;LABEL;TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${ARG_NAME} ${ARG_SOURCES})
    list(GET ARG_SOURCES 0 source_of_class)
    gfpq_run_moc(${ARG_NAME} ${source_of_class})
    target_include_directories(${ARG_NAME} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
    target_link_libraries(${ARG_NAME} PRIVATE ${ARG_LIBRARIES} Qt5::Test gfpq_compiler)
    add_test(NAME ${ARG_NAME} COMMAND ${ARG_NAME})
    gfpq_set_test_environment(${ARG_NAME})
    gfpq_set_test_label(${ARG_NAME} ${ARG_LABEL})
    if(ARG_TIMEOUT)
        set_tests_properties(${ARG_NAME} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
    endif()
endfunction()

# A test of a kind that takes long begins before the others, so that no processor is idle at the end.
function(gfpq_set_test_label name label)
    set_tests_properties(${name} PROPERTIES LABELS ${label})
    if(label STREQUAL faults)
        set_tests_properties(${name} PROPERTIES COST 20)
    elseif(label MATCHES "^(e2e|server|soak)$")
        set_tests_properties(${name} PROPERTIES COST 10)
    endif()
endfunction()

# What moc makes of the class in `source`, which includes it as "NAME.moc". CMake's automatic way looks at every source and
# header of the target and compiles what those do not include, mostly nothing: for two hundred programs with a class in their
# one source that takes minutes.
function(gfpq_run_moc target source)
    get_filename_component(name ${source} NAME_WE)
    set(directory ${CMAKE_CURRENT_BINARY_DIR}/${target}_moc)
    file(MAKE_DIRECTORY ${directory})
    add_custom_command(OUTPUT ${directory}/${name}.moc
        COMMAND Qt5::moc --no-notes ${CMAKE_CURRENT_SOURCE_DIR}/${source} -o ${directory}/${name}.moc
        DEPENDS ${source} VERBATIM)
    target_sources(${target} PRIVATE ${directory}/${name}.moc)
    target_include_directories(${target} PRIVATE ${directory})
    set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()

# The environment of one registered test.
function(gfpq_set_test_environment name)
    set(scratch "${PROJECT_BINARY_DIR}/scratch/${name}")
    file(MAKE_DIRECTORY "${scratch}/config" "${scratch}/home")
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${GFPQ_TEST_TIMEOUT}
        WORKING_DIRECTORY "${scratch}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;HOME=${scratch}/home;XDG_CONFIG_HOME=${scratch}/config;GFPDB_SETTINGS=${scratch}/config/gfpdb.ini;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()

# The same test program once more, on a server, or on one behind a pooler: `store` is server or pooled
# (tests/support/server/server_database.h).
function(gfpq_add_server_run name store)
    set(run ${name}_${store})
    add_test(NAME ${run} COMMAND ${name})
    gfpq_set_test_environment(${run})
    set_property(TEST ${run} APPEND PROPERTY ENVIRONMENT "GFPDB_TEST_STORE=${store}")
    gfpq_set_test_label(${run} server)
endfunction()
