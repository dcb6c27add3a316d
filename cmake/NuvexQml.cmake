# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT

# nuvex_qml_resources(<name> PREFIX <resource root> FOLDERS <folders> [GENERATED <alias>=<file>...])
# An object library with every file of FOLDERS, and the generated ones, as Qt resources below PREFIX; QML
# documents and scripts are compiled ahead of time. An object library, so that its static initialisers, which
# register the compiled documents with the QML engine, reach every program that links it.
function(nuvex_qml_resources name)
  cmake_parse_arguments(arg "" "PREFIX" "FOLDERS;GENERATED" ${ARGN})
  set(entries "")
  foreach(folder IN LISTS arg_FOLDERS)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${folder}/*)
    list(FILTER files EXCLUDE REGEX "\\.(svg|md)$")
    foreach(file IN LISTS files)
      string(APPEND entries "    <file alias=\"${file}\">${CMAKE_CURRENT_SOURCE_DIR}/${file}</file>\n")
    endforeach()
  endforeach()
  foreach(pair IN LISTS arg_GENERATED)
    string(REGEX MATCH "^([^=]+)=(.+)$" _ ${pair})
    string(APPEND entries "    <file alias=\"${CMAKE_MATCH_1}\">${CMAKE_MATCH_2}</file>\n")
  endforeach()
  set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
  file(CONFIGURE OUTPUT ${qrc} @ONLY
       CONTENT "<RCC>\n  <qresource prefix=\"${arg_PREFIX}\">\n${entries}  </qresource>\n</RCC>\n")
  qtquick_compiler_add_resources(sources ${qrc})
  add_library(${name} OBJECT ${sources})
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  target_link_libraries(${name} PUBLIC Qt5::Qml)
  target_precompile_headers(${name} PRIVATE <QtQml/qqmlprivate.h>)
endfunction()
