# What every target of the project has in common.

add_library(zimbora_options INTERFACE)
target_compile_options(zimbora_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Woverloaded-virtual -Werror)
# The dictionaries have the same bytes whoever makes them: no two operations on numbers are rounded as one.
target_compile_options(zimbora_options INTERFACE -ffp-contract=off)
target_compile_definitions(zimbora_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
target_include_directories(zimbora_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

# What most sources include is compiled once for each set of libraries that they may see: see precompiled/. Which headers
# a source needs it includes nevertheless; clang-tidy reads it without these.
option(ZIMBORA_PRECOMPILED "Use precompiled headers" ON)
# zimbora_precompiled(<name> LINKS <library>...): precompiled/<name>.h, for targets that link these libraries.
function(zimbora_precompiled name)
  cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
  if(ZIMBORA_PRECOMPILED)
    add_library(precompiled_${name} OBJECT EXCLUDE_FROM_ALL ${CMAKE_SOURCE_DIR}/cmake/precompiled/empty.cpp)
    target_link_libraries(precompiled_${name} PRIVATE ${arg_LINKS} zimbora_options)
    target_precompile_headers(precompiled_${name} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/precompiled/${name}.h)
  endif()
endfunction()
zimbora_precompiled(core LINKS Qt6::Core)
if(ZIMBORA_FUZZERS)
  # As the libraries that use it; see below.
  target_compile_options(precompiled_core PRIVATE -fsanitize=fuzzer-no-link)
endif()
zimbora_precompiled(widgets LINKS Qt6::Widgets)

# zimbora_use_precompiled(<target> <name>)
function(zimbora_use_precompiled target name)
  if(ZIMBORA_PRECOMPILED)
    target_precompile_headers(${target} REUSE_FROM precompiled_${name})
  endif()
endfunction()

# zimbora_library(<name> [MOC] SOURCES <file>... LINKS <library>...)
# One static library per folder and floor; it sees only what LINKS names. MOC: some of its classes have signals.
function(zimbora_library name)
  cmake_parse_arguments(arg "MOC" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE zimbora_options)
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  set_target_properties(${name} PROPERTIES AUTOMOC ${arg_MOC})
  if("Qt6::Widgets" IN_LIST arg_LINKS)
    zimbora_use_precompiled(${name} widgets)
  else()
    zimbora_use_precompiled(${name} core)
    if(ZIMBORA_FUZZERS)
      # The fuzz targets link these.
      target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
  endif()
endfunction()

# zimbora_drawings(<target> [FROM <folder>] <drawing>...)
# Puts drawings of a folder, which is the folder resources unless one is named, into a target, under their names there.
# Where the toolkit has no reader of SVG, they are recorded ones (ui/drawing/svg_picture_recorded.cpp).
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
