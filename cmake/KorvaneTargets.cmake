# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What every target of this project is built with: warnings, hardening, sanitizers.
add_library(KorvaneOptions INTERFACE)
target_include_directories(KorvaneOptions INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_features(KorvaneOptions INTERFACE cxx_std_20)
target_compile_options(KorvaneOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${KORVANE_WARNINGS_AS_ERRORS}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in every optimised assignment to a std::string (its bug 105651).
    target_compile_options(KorvaneOptions INTERFACE -Wno-restrict)
endif()
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    target_compile_definitions(KorvaneOptions INTERFACE _FILE_OFFSET_BITS=64)
elseif(APPLE)
    # Homebrew's Qt is newer than the oldest that this builds with, and calls some of that one's functions deprecated.
    target_compile_definitions(KorvaneOptions INTERFACE QT_WARN_DEPRECATED_UP_TO=0x060400)
endif()

if(KORVANE_SANITIZE)
    target_compile_options(KorvaneOptions INTERFACE -fsanitize=${KORVANE_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(KorvaneOptions INTERFACE -fsanitize=${KORVANE_SANITIZE})
    if(KORVANE_SANITIZE MATCHES "undefined")
        # The check of virtual tables opens a pipe to look at memory; it takes a walk without descriptors for a fault.
        target_compile_options(KorvaneOptions INTERFACE -fno-sanitize-recover=undefined -fno-sanitize=vptr)
    endif()
else()
    target_compile_options(KorvaneOptions INTERFACE -fstack-protector-strong
        $<$<CONFIG:Release>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=2>)
    if(NOT APPLE)
        target_link_options(KorvaneOptions INTERFACE -Wl,-z,relro,-z,now)
    endif()
endif()

# korvane_add_test(NAME SOURCES file... LIBRARIES target... [QT])
#
# One test program, one line at the call. GoogleTest programs register each test; with QT the
# program is a Qt Test of its own and runs as one: without a display, and, where the system has one
# to lend, once more in real windows. Each is labelled by its folder of Tests, which also has a
# target "tests-FOLDER" that builds what is in it.
function(korvane_add_test name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE KorvaneOptions ${ARG_LIBRARIES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    korvane_test_label(${name} label)
    if(ARG_QT)
        find_package(Qt6 REQUIRED COMPONENTS Test)
        target_link_libraries(${name} PRIVATE Qt6::Test)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES
            LABELS ${label} ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
        korvane_add_display_test(${name} ${label})
    else()
        target_link_libraries(${name} PRIVATE GTest::gmock GTest::gtest_main)
        gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
            PROPERTIES LABELS ${label} ENVIRONMENT "LC_ALL=C.UTF-8")
    endif()
endfunction()

# The folder of Tests that a test is declared in, and its target "tests-FOLDER".
function(korvane_test_label name result)
    file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR}/Tests ${CMAKE_CURRENT_SOURCE_DIR})
    string(REGEX REPLACE "/.*" "" label "${folder}")
    if(NOT TARGET tests-${label})
        add_custom_target(tests-${label})
    endif()
    add_dependencies(tests-${label} ${name})
    set(${result} ${label} PARENT_SCOPE)
endfunction()

# The same Qt Test once more, on a virtual X display with a window manager.
function(korvane_add_display_test name label)
    find_program(KORVANE_XVFB_RUN xvfb-run)
    if(APPLE OR NOT KORVANE_XVFB_RUN)
        return()
    endif()
    add_test(NAME ${name}.display COMMAND ${CMAKE_SOURCE_DIR}/scripts/with-display $<TARGET_FILE:${name}>)
    set_tests_properties(${name}.display PROPERTIES
        LABELS ${label} ENVIRONMENT "QT_QPA_PLATFORM=xcb;LC_ALL=C.UTF-8")
endfunction()

# korvane_add_script_test(NAME LABEL SCRIPT [ARGUMENT...]): a test that is a script and fails with its status.
function(korvane_add_script_test name label)
    add_test(NAME ${name} COMMAND ${ARGN} WORKING_DIRECTORY ${CMAKE_SOURCE_DIR})
    set_tests_properties(${name} PROPERTIES LABELS ${label})
endfunction()
