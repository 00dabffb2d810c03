# What every target of the project has in common.

add_library(zimbora_options INTERFACE)
target_compile_options(zimbora_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Woverloaded-virtual -Werror)
target_compile_definitions(zimbora_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
target_include_directories(zimbora_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

# zimbora_library(<name> SOURCES <file>... LINKS <library>...)
# One static library per folder and floor; it sees only what LINKS names.
function(zimbora_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE zimbora_options)
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
endfunction()

# zimbora_drawings(<target> [FROM <folder>] <drawing>...)
# Puts drawings of a folder, which is the folder resources unless one is named, into a target, under their names there.
# Where the toolkit has no reader of SVG, they are recorded ones (ui/svg_picture_recorded.cpp).
function(zimbora_drawings target)
  cmake_parse_arguments(arg "" "FROM" "" ${ARGN})
  if(NOT arg_FROM)
    set(arg_FROM "${CMAKE_SOURCE_DIR}/resources")
  endif()
  set(base "${arg_FROM}")
  if(WIN32)
    set(base "${CMAKE_CURRENT_BINARY_DIR}/drawings")
  endif()
  set(files "")
  foreach(drawing IN LISTS arg_UNPARSED_ARGUMENTS)
    set(file "${base}/${drawing}")
    list(APPEND files "${file}")
    if(WIN32)
      get_filename_component(folder "${file}" DIRECTORY)
      file(MAKE_DIRECTORY "${folder}")
      set(svg "${arg_FROM}/${drawing}")
      add_custom_command(
        OUTPUT "${file}"
        COMMAND zimbora-draw "${svg}" "${file}"
        DEPENDS zimbora-draw "${svg}"
        VERBATIM)
    endif()
  endforeach()
  qt_add_resources(${target} "${target}_drawings" PREFIX "/" BASE "${base}" FILES ${files})
endfunction()
