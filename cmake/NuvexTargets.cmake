# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
#
# Compiler settings and the helpers that every folder uses to declare its library and its tests.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(NUVEX_SANITIZE "" CACHE STRING "Sanitizers to build with, as for -fsanitize= (address,undefined or thread)")

# One interface target carries the warnings, so that generated code (moc, rcc, qmlcachegen) can stay without.
add_library(nuvex_flags INTERFACE)
target_compile_options(nuvex_flags INTERFACE -Wall -Wextra)
target_compile_definitions(nuvex_flags INTERFACE QT_NO_CAST_FROM_BYTEARRAY QT_DEPRECATED_WARNINGS)
target_include_directories(nuvex_flags INTERFACE ${CMAKE_SOURCE_DIR})

if(NUVEX_SANITIZE)
  add_compile_options(-fsanitize=${NUVEX_SANITIZE} -fno-omit-frame-pointer -g1)
  add_link_options(-fsanitize=${NUVEX_SANITIZE})
endif()

# nuvex_library(<name> SOURCES <files> PUBLIC <targets> [PRIVATE <targets>]): a static library of one folder. PUBLIC are
# the targets whose headers its own headers include.
function(nuvex_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE nuvex_flags ${arg_PRIVATE})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
endfunction()

# nuvex_test(<name> LINK <targets> [SOURCES <more files>] [TIMEOUT <s>] [GUI]): builds <name>.cpp and
# registers it with ctest. GUI tests run on a virtual screen of their own.
function(nuvex_test name)
  cmake_parse_arguments(arg "GUI" "TIMEOUT" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${name}.cpp ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE nuvex_flags Qt5::Test ${arg_LINK})
  target_compile_definitions(${name} PRIVATE NUVEX_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
  set(command ${name})
  if(arg_GUI)
    set(command ${CMAKE_SOURCE_DIR}/tests/support/on-virtual-screen $<TARGET_FILE:${name}>)
  endif()
  add_test(NAME ${name} COMMAND ${command})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT})
endfunction()
