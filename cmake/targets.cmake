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
