# What every target of the project shares: language level, warnings, sanitizers, precompiled headers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(APPLE)
    enable_language(OBJCXX)
    set(CMAKE_OBJCXX_STANDARD 20)
    set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
    set(CMAKE_OBJCXX_EXTENSIONS OFF)
endif()

# A precompiled header makes ccache look at more than the text; these are the settings it asks for.
find_program(TARVIN_CCACHE ccache)
if(TARVIN_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=true
        ${TARVIN_CCACHE})
endif()

add_library(tarvin_options INTERFACE)
target_include_directories(tarvin_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tarvin_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                                                -Wnon-virtual-dtor -Woverloaded-virtual)
# Warnings are errors where they are known. Nobody has seen yet what Apple's compiler thinks of the sources.
if(NOT APPLE)
    target_compile_options(tarvin_options INTERFACE -Werror)
endif()
target_compile_definitions(tarvin_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                                                    QT_NO_FOREACH TARVIN_VERSION="${PROJECT_VERSION}")
# Where files are joined, a class may well have members of a type that is the file's own.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND (CMAKE_UNITY_BUILD OR TARVIN_JOIN_TESTS))
    target_compile_options(tarvin_options INTERFACE -Wno-subobject-linkage)
endif()
# Optimising across files, gcc 12 sees sizes in the hash tables of Qt that cannot be.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_link_options(tarvin_options INTERFACE -Wno-alloc-size-larger-than)
endif()
# The tests are many programs, and nobody keeps what is linked for development.
find_program(TARVIN_FAST_LINKER mold)
if(TARVIN_FAST_LINKER AND CMAKE_BUILD_TYPE STREQUAL "Debug")
    add_link_options(-fuse-ld=mold)
endif()
if(TARVIN_SANITIZE)
    target_compile_options(tarvin_options INTERFACE -fsanitize=${TARVIN_SANITIZE} -fno-omit-frame-pointer
                                                    -fno-sanitize-recover=all)
    # With what the sanitizers insert, gcc no longer sees that an optional is looked at before its value.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(tarvin_options INTERFACE -Wno-maybe-uninitialized)
    endif()
    target_link_options(tarvin_options INTERFACE -fsanitize=${TARVIN_SANITIZE})
endif()

# Every folder uses the same two precompiled headers, one for libraries and one for tests: making one costs as much as
# compiling half a dozen files.
add_library(tarvin_pch STATIC ${CMAKE_CURRENT_LIST_DIR}/Precompiled.cpp)
target_link_libraries(tarvin_pch PRIVATE tarvin_options Qt6::Core)
target_precompile_headers(tarvin_pch PRIVATE <QString> <QStringList> <QObject> <functional> <memory> <optional> <vector>)
set_target_properties(tarvin_pch PROPERTIES AUTOMOC OFF)

# tarvin_library(NAME SOURCES file... LINKS target...): one folder, one static library.
# LINKS is what the folder may use; it is the dependency graph of the project.
function(tarvin_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC tarvin_options Qt6::Core ${arg_LINKS})
    target_precompile_headers(${name} REUSE_FROM tarvin_pch)
    # What draws names its measures file by file, and the same names come again in one folder.
    if("Qt6::Widgets" IN_LIST arg_LINKS OR "tarvin_ui" IN_LIST arg_LINKS)
        set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
    endif()
endfunction()

# tarvin_plain_library(NAME SOURCES file... LINKS target...): the same without Qt.
function(tarvin_plain_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC tarvin_options ${arg_LINKS})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
endfunction()

# Whether a test can stand in for malloc and count: glibc lets it, the sanitizers want the place themselves.
set(TARVIN_COUNTS_ALLOCATIONS OFF)
if(NOT APPLE AND NOT TARVIN_SANITIZE)
    set(TARVIN_COUNTS_ALLOCATIONS ON)
endif()

# What a test needs decides its label. `rules` need nothing but the program's own code and no real time; `system` tests
# need servers, real files or time; `threads` are those worth running under the thread sanitizer.
add_custom_target(tarvin_rule_tests)
add_custom_target(tarvin_thread_tests)

# tarvin_join_sources(NAME): compiles those of the target's sources as one that define nothing of the same name. Most of
# the time of compiling a test goes into what every test includes. After an edit that gives two files the same name,
# configure again.
function(tarvin_join_sources name)
    get_target_property(sources ${name} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    execute_process(COMMAND ${PROJECT_SOURCE_DIR}/tools/source_lots.py 8 ${sources}
        WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} OUTPUT_VARIABLE lots COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" lines "${lots}")
    foreach(line IN LISTS lines)
        string(REGEX MATCH "^([0-9]+) (.*)$" _ "${line}")
        set_source_files_properties(${CMAKE_MATCH_2} PROPERTIES UNITY_GROUP lot${CMAKE_MATCH_1})
    endforeach()
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()

# tarvin_test(NAME SOURCES file... LINKS target... [LABELS label...]): one GoogleTest program, each of its tests known to
# ctest by name. Without LABELS its folder decides between `rules` and `system`.
function(tarvin_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS;LABELS" ${ARGN})
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
    if(NOT arg_LABELS)
        if(folder MATCHES "^(platform/(linux|posix|macos)|endtoend|vm)")
            set(arg_LABELS system)
        else()
            set(arg_LABELS rules)
        endif()
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE tarvin_options Qt6::Core GTest::gmock GTest::gtest_main ${arg_LINKS})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    if(NOT TARGET tarvin_test_pch)
        add_executable(tarvin_test_pch ${PROJECT_SOURCE_DIR}/cmake/Precompiled.cpp)
        target_link_libraries(tarvin_test_pch PRIVATE tarvin_options Qt6::Core GTest::gmock GTest::gtest_main)
        target_precompile_headers(tarvin_test_pch PRIVATE <gtest/gtest.h> <gmock/gmock.h> <QString> <QStringList>
                                                          <functional> <memory> <optional> <vector>)
        set_target_properties(tarvin_test_pch PROPERTIES AUTOMOC OFF EXCLUDE_FROM_ALL ON)
    endif()
    target_precompile_headers(${name} REUSE_FROM tarvin_test_pch)
    set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
    if(TARVIN_JOIN_TESTS)
        tarvin_join_sources(${name})
    endif()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
    # The properties above can't hold a list, so the labels are set where ctest reads what was discovered.
    set(labels ${CMAKE_CURRENT_BINARY_DIR}/${name}_labels.cmake)
    file(WRITE ${labels} "if(${name}_TESTS)\n"
                         "    set_tests_properties(\${${name}_TESTS} PROPERTIES LABELS \"${arg_LABELS}\")\nendif()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${labels})
    if("rules" IN_LIST arg_LABELS)
        add_dependencies(tarvin_rule_tests ${name})
    endif()
    if("threads" IN_LIST arg_LABELS)
        add_dependencies(tarvin_thread_tests ${name})
    endif()
endfunction()
