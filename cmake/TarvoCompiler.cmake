# Language level, warnings and instrumentation, the same for every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(TARVO_CCACHE ccache)
if(TARVO_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${TARVO_CCACHE})
endif()

add_library(tarvo_options INTERFACE)
target_compile_options(tarvo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough -Wundef)
if(TARVO_WERROR)
  target_compile_options(tarvo_options INTERFACE -Werror)
endif()

if(TARVO_SANITIZE)
  add_compile_options(-fsanitize=${TARVO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${TARVO_SANITIZE})
endif()
if(TARVO_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

# Reading headers takes longer than compiling what uses them. They are read once: the standard library's for all
# libraries, GoogleTest's for all tests, Qt's for each target that DRAWS.
set(TARVO_STANDARD_HEADERS <algorithm> <chrono> <functional> <memory> <optional> <string> <unordered_map> <vector>
  <fmt/format.h>)
set(TARVO_QT_HEADERS <QApplication> <QLabel> <QPainter> <QVBoxLayout>)
set(TARVO_TEST_HEADERS <gmock/gmock.h> <gtest/gtest.h>)

# tarvo_headers(NAME HEADERS...)
# Makes an existing target the one that others take the precompiled headers from.
function(tarvo_headers name)
  target_precompile_headers(${name} PRIVATE ${ARGN})
  target_link_libraries(${name} PRIVATE tarvo_options fmt::fmt)
endfunction()

file(WRITE ${CMAKE_BINARY_DIR}/generated/headers.cpp "int main() {}\n")
add_library(tarvo_library_headers STATIC ${CMAKE_BINARY_DIR}/generated/headers.cpp)
tarvo_headers(tarvo_library_headers ${TARVO_STANDARD_HEADERS})
if(TARVO_TESTS)
  add_executable(tarvo_test_headers ${CMAKE_BINARY_DIR}/generated/headers.cpp)
  tarvo_headers(tarvo_test_headers ${TARVO_STANDARD_HEADERS} ${TARVO_TEST_HEADERS})
  target_link_libraries(tarvo_test_headers PRIVATE GTest::gmock)
  # Qt has programs compiled as libraries are, and headers fit only what is compiled in the same way.
  add_executable(tarvo_desktop_test_headers ${CMAKE_BINARY_DIR}/generated/headers.cpp)
  tarvo_headers(tarvo_desktop_test_headers ${TARVO_STANDARD_HEADERS} ${TARVO_TEST_HEADERS})
  target_link_libraries(tarvo_desktop_test_headers PRIVATE GTest::gmock)
  target_compile_options(tarvo_desktop_test_headers PRIVATE -fPIC)
  set_target_properties(tarvo_desktop_test_headers PROPERTIES EXCLUDE_FROM_ALL ON)
endif()

# tarvo_library(NAME [DRAWS] SOURCES ... [LINK ...])
# A static library of one folder under src/, included by paths that start at src/; headers only without sources.
function(tarvo_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "DRAWS" "" "SOURCES;LINK")
  if(NOT arg_SOURCES)
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} INTERFACE ${arg_LINK})
    return()
  endif()
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE tarvo_options fmt::fmt)
  if(arg_DRAWS)
    target_precompile_headers(${name} PRIVATE ${TARVO_STANDARD_HEADERS} ${TARVO_QT_HEADERS})
  else()
    target_precompile_headers(${name} REUSE_FROM tarvo_library_headers)
  endif()
  # The precompiled headers are C++ and no other language.
  list(FILTER arg_SOURCES INCLUDE REGEX "\\.mm$")
  set_source_files_properties(${arg_SOURCES} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# tarvo_test(NAME [THREADS] [DRAWS|DESKTOP] SOURCES ... [LINK ...])
# One GoogleTest program; every test in it is one CTest test named NAME.Suite.Case. THREADS: it starts some, or tests what
# does; under ThreadSanitizer no others are built. DESKTOP: it uses Qt, but draws little or nothing.
function(tarvo_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "THREADS;DRAWS;DESKTOP" "" "SOURCES;LINK")
  if(TARVO_SANITIZE STREQUAL "thread" AND NOT arg_THREADS)
    return()
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${arg_LINK} tarvo_test_support tarvo_options fmt::fmt GTest::gmock GTest::gtest_main)
  if(arg_DRAWS)
    target_precompile_headers(${name} PRIVATE ${TARVO_STANDARD_HEADERS} ${TARVO_TEST_HEADERS} ${TARVO_QT_HEADERS})
  elseif(arg_DESKTOP)
    target_precompile_headers(${name} REUSE_FROM tarvo_desktop_test_headers)
  else()
    target_precompile_headers(${name} REUSE_FROM tarvo_test_headers)
  endif()
  target_compile_definitions(${name} PRIVATE TARVO_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
  gtest_discover_tests(${name} TEST_PREFIX ${name}. DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 120 PROCESSORS 2)
endfunction()
