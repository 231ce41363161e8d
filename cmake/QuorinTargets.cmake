# Common settings of every target, and the two functions that make them: quorin_layer() for a folder of
# src/ and quorin_test() for a folder of tests/.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)

# Program, engine and their data lie beside each other, as they do when installed.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(QUORIN_BIN_DIR "${CMAKE_BINARY_DIR}/bin")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Precompiled headers reach the cache only with these allowances; without the folder's own name another clone
    # finds there what this one has built.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE_PROGRAM})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
endif()
if(QUORIN_WERROR)
    add_compile_options(-Werror)
endif()
if(QUORIN_SANITIZE)
    add_compile_options(-fsanitize=${QUORIN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${QUORIN_SANITIZE})
endif()
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS)
if(NOT WIN32)
    # Some libraries ask for it; those that share precompiled headers have to agree.
    add_compile_options(-pthread)
endif()

if(WIN32)
    set(QUORIN_PLATFORM win)
    set(QUORIN_FOREIGN_PLATFORM linux)
    add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)
else()
    set(QUORIN_PLATFORM linux)
    set(QUORIN_FOREIGN_PLATFORM win)
endif()

# All sources of a folder but those of the other platform (*_win.cpp, *_linux.cpp).
function(quorin_collect_sources result directory)
    file(GLOB sources CONFIGURE_DEPENDS "${directory}/*.cpp" "${directory}/*.h")
    list(FILTER sources EXCLUDE REGEX "_${QUORIN_FOREIGN_PLATFORM}\\.(cpp|h)$")
    set(${result} ${sources} PARENT_SCOPE)
endfunction()

# A header that joins a folder is not looked at for signals and slots by itself: the generator's mark is older than
# nothing that it knows.
function(quorin_refresh_moc target sources)
    set(known "${CMAKE_CURRENT_BINARY_DIR}/${target}_sources.txt")
    set(before "")
    if(EXISTS "${known}")
        file(READ "${known}" before)
    endif()
    if(NOT before STREQUAL "${sources}")
        file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp")
        file(WRITE "${known}" "${sources}")
    endif()
endfunction()

# quorin_layer(<folder of src/> LINK <targets...>) makes the static library quorin_<folder>. The media server has layers
# of its own, which are told from the player's by PREFIX server_ and share none of them.
#
# A layer's headers are included as "<folder>/Header.h", and that path exists only for those who link the
# layer: every layer has an include root of its own with one link to its folder.
function(quorin_layer layer)
    cmake_parse_arguments(ARG "" "PREFIX" "LINK" ${ARGN})
    set(target quorin_${ARG_PREFIX}${layer})
    quorin_collect_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}")
    if(NOT sources MATCHES "\\.cpp")
        add_library(${target} INTERFACE)
        quorin_include_root(${target} ${layer} "${CMAKE_CURRENT_SOURCE_DIR}" INTERFACE)
        target_link_libraries(${target} INTERFACE ${ARG_LINK})
        return()
    endif()
    add_library(${target} STATIC ${sources})
    quorin_refresh_moc(${target} "${sources}")
    quorin_include_root(${target} ${layer} "${CMAKE_CURRENT_SOURCE_DIR}" PUBLIC)
    target_link_libraries(${target} PUBLIC ${ARG_LINK})
    quorin_precompile(${target})
endfunction()

function(quorin_include_root target name directory scope)
    set(root "${CMAKE_BINARY_DIR}/layers/${name}")
    file(MAKE_DIRECTORY "${root}")
    if(NOT EXISTS "${root}/${name}")
        file(CREATE_LINK "${directory}" "${root}/${name}" COPY_ON_ERROR SYMBOLIC)
    endif()
    target_include_directories(${target} ${scope} "${root}")
endfunction()

# Headers are compiled before the rest once for the program and once for the tests, and every target of a kind uses the
# same: they take 160 MB, which each of some 70 targets had of its own otherwise. The one who carries them links no
# more than all who use them do, so that no definition of his is missing there.
function(quorin_precompiled_headers name)
    cmake_parse_arguments(ARG "" "" "LINK;HEADERS" ${ARGN})
    set(source "${CMAKE_BINARY_DIR}/precompiled/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "// Carries the precompiled headers.\n")
    add_library(${name} OBJECT EXCLUDE_FROM_ALL "${source}")
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${name} PRIVATE ${ARG_LINK})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

function(quorin_precompile target)
    if(NOT TARGET quorin_precompiled)
        quorin_precompiled_headers(quorin_precompiled LINK Qt5::Core
            HEADERS <algorithm> <atomic> <functional> <memory> <mutex> <string> <vector> <QtCore/QtCore>)
    endif()
    target_precompile_headers(${target} REUSE_FROM quorin_precompiled)
endfunction()

# quorin_test(<name> LABEL <unit|ui|e2e> LINK <targets...>) builds the folder's tests and registers each case.
function(quorin_test name)
    cmake_parse_arguments(ARG "" "LABEL;TIMEOUT" "LINK" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 60)
    endif()
    quorin_collect_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}")
    add_executable(${name} ${sources})
    quorin_refresh_moc(${name} "${sources}")
    target_link_libraries(${name} PRIVATE quorin_test_support ${ARG_LINK})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    if(NOT TARGET quorin_precompiled_tests)
        quorin_precompiled_headers(quorin_precompiled_tests LINK Qt5::Core GTest::gtest
            HEADERS <gtest/gtest.h> <memory> <string> <vector> <QtCore/QtCore>)
    endif()
    target_precompile_headers(${name} REUSE_FROM quorin_precompiled_tests)
    set(properties LABELS "${ARG_LABEL}" TIMEOUT ${ARG_TIMEOUT})
    if(ARG_LABEL STREQUAL "e2e")
        # One at a time: there is one keyboard focus and one top of the stack of windows.
        list(APPEND properties ENVIRONMENT "QUORIN_TEST_DISPLAY=1" RESOURCE_LOCK display)
    endif()
    gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
        PROPERTIES ${properties})
endfunction()
