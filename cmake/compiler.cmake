# SPDX-License-Identifier: MIT
#
# Compiler settings that hold for every target of the project: warnings, instrumentation, the compiler cache.

add_library(gfpq_compiler INTERFACE)

target_compile_options(gfpq_compiler INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused -Wundef
    -Wsuggest-override $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>)
target_compile_definitions(gfpq_compiler INTERFACE
    QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_ASCII
    QT_DEPRECATED_WARNINGS
    $<$<CONFIG:Debug>:QT_FORCE_ASSERTS>
    $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(GFPQ_WARNINGS_AS_ERRORS)
    target_compile_options(gfpq_compiler INTERFACE -Werror)
endif()

# A report names files and lines; the rest of the debug information would only make the build slower.
if(GFPQ_SANITIZE)
    add_compile_options(-fsanitize=${GFPQ_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -Og -g1)
    add_link_options(-fsanitize=${GFPQ_SANITIZE})
endif()

# There are two hundred programs to link, most of them tests.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=gold GFPQ_HAS_GOLD)
if(GFPQ_HAS_GOLD)
    add_link_options($<$<CONFIG:Debug>:-fuse-ld=gold>)
endif()

if(GFPQ_COVERAGE)
    add_compile_options(--coverage -O0)
    add_link_options(--coverage)
endif()

if(GFPQ_FUZZ)
    add_compile_options(-fsanitize=address,undefined,fuzzer-no-link -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

find_program(GFPQ_CCACHE ccache)
if(GFPQ_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND};-E;env;CCACHE_BASEDIR=${PROJECT_SOURCE_DIR};CCACHE_NOHASHDIR=1;${GFPQ_CCACHE}")
endif()
