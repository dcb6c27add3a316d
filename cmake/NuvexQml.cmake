# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT

# nuvex_qml_resources(<name> PREFIX <resource root> FOLDERS <folders> [GENERATED <alias>=<file>...])
# An object library with every file of FOLDERS, and the generated ones, as Qt resources below PREFIX; QML
# documents and scripts are compiled ahead of time. An object library, so that its static initialisers, which
# register the compiled documents with the QML engine, reach every program that links it.
function(nuvex_qml_resources name)
  cmake_parse_arguments(arg "" "PREFIX" "FOLDERS;GENERATED" ${ARGN})
  set(own "")
  foreach(folder IN LISTS arg_FOLDERS)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${folder}/*)
    list(FILTER files EXCLUDE REGEX "\\.(svg|md)$")
    foreach(file IN LISTS files)
      list(APPEND own ${file}=${CMAKE_CURRENT_SOURCE_DIR}/${file})
    endforeach()
  endforeach()
  # The QML compiler lists its resource file while CMake configures, so files that the build has yet to make stand
  # in a second one.
  nuvex_resource_file(${name} ${arg_PREFIX} "${own}")
  nuvex_resource_file(${name}_generated ${arg_PREFIX} "${arg_GENERATED}")
  qtquick_compiler_add_resources(documents ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
  qt5_add_resources(media ${CMAKE_CURRENT_BINARY_DIR}/${name}_generated.qrc)
  add_library(${name} OBJECT ${documents} ${media})
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  target_link_libraries(${name} PUBLIC Qt5::Qml)
  target_precompile_headers(${name} PRIVATE <QtQml/qqmlprivate.h>)
  # A compiled document is a short file below a long list of headers: compiling sixteen at a time halves the work. Each
  # has a namespace of its own; resource files have not.
  set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
  set(resources ${documents} ${media})
  list(FILTER resources INCLUDE REGEX "/qrc_[^/]*$")
  set_source_files_properties(${resources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# nuvex_resource_file(<name> <prefix> <entries>): writes <name>.qrc with the <alias>=<file> entries.
function(nuvex_resource_file name prefix entries)
  set(lines "")
  foreach(entry IN LISTS entries)
    string(REGEX MATCH "^([^=]+)=(.+)$" _ ${entry})
    string(APPEND lines "    <file alias=\"${CMAKE_MATCH_1}\">${CMAKE_MATCH_2}</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc @ONLY
       CONTENT "<RCC>\n  <qresource prefix=\"${prefix}\">\n${lines}  </qresource>\n</RCC>\n")
endfunction()

find_program(NUVEX_RSVG_CONVERT rsvg-convert)

# nuvex_svg_pictures(<variable> <folders>): renders every NAME.svg of the folders to NAME.png while building and
# returns the pictures as <alias>=<file> entries. A drawing that has a width of its own keeps it; any other becomes
# 256 pixels wide.
function(nuvex_svg_pictures variable)
  if(NOT NUVEX_RSVG_CONVERT)
    message(FATAL_ERROR "rsvg-convert is missing. Install the package librsvg2-bin.")
  endif()
  set(entries "")
  foreach(folder IN LISTS ARGN)
    file(GLOB drawings CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${folder}/*.svg)
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/${folder})
    foreach(drawing IN LISTS drawings)
      string(REGEX REPLACE "svg$" "png" picture ${drawing})
      add_custom_command(
        OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${picture}
        COMMAND ${CMAKE_COMMAND} -DRSVG_CONVERT=${NUVEX_RSVG_CONVERT} -DDRAWING=${CMAKE_CURRENT_SOURCE_DIR}/${drawing}
                -DPICTURE=${CMAKE_CURRENT_BINARY_DIR}/${picture} -P ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/RenderSvg.cmake
        DEPENDS ${drawing} ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/RenderSvg.cmake
        COMMENT "Drawing ${picture}" VERBATIM)
      list(APPEND entries ${picture}=${CMAKE_CURRENT_BINARY_DIR}/${picture})
    endforeach()
  endforeach()
  set(${variable} ${entries} PARENT_SCOPE)
endfunction()
