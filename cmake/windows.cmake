# What only the Windows build needs.

enable_language(RC)

find_program(ICOTOOL icotool)
if(NOT ICOTOOL)
  message(FATAL_ERROR "icotool is missing, which makes the icon. Install the Debian package icoutils.")
endif()

# What takes Hungarian words apart, made by tools/windows/build_hunspell.sh.
set(ZIMBORA_HUNSPELL "" CACHE PATH "Folder of the static Hunspell for Windows")
if(NOT EXISTS "${ZIMBORA_HUNSPELL}/libhunspell.a")
  message(FATAL_ERROR "ZIMBORA_HUNSPELL does not name the folder that tools/windows/build_hunspell.sh prints.")
endif()
add_library(hunspell_windows STATIC IMPORTED GLOBAL)
set_target_properties(hunspell_windows PROPERTIES
  IMPORTED_LOCATION "${ZIMBORA_HUNSPELL}/libhunspell.a"
  INTERFACE_COMPILE_DEFINITIONS HUNSPELL_STATIC)
target_include_directories(hunspell_windows SYSTEM INTERFACE "${ZIMBORA_HUNSPELL}/include")

# zimbora_windows_resources(<target>): gives an executable its icon, its version and its manifest.
function(zimbora_windows_resources target)
  set(pictures ${CMAKE_SOURCE_DIR}/resources/icon)
  set(icon ${CMAKE_CURRENT_BINARY_DIR}/${target}.ico)
  add_custom_command(
    OUTPUT ${icon}
    COMMAND ${ICOTOOL} --create --output=${icon}
      ${pictures}/zimbora-16.png ${pictures}/zimbora-32.png ${pictures}/zimbora-48.png
      --raw=${pictures}/zimbora-256.png
    DEPENDS ${pictures}/zimbora-16.png ${pictures}/zimbora-32.png ${pictures}/zimbora-48.png
      ${pictures}/zimbora-256.png
    COMMENT "Making the icon of ${target}.exe"
    VERBATIM)
  set(manifest ${CMAKE_SOURCE_DIR}/resources/windows/zimbora.manifest)
  set(description ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${CMAKE_SOURCE_DIR}/resources/windows/zimbora.rc.in ${description} @ONLY)
  set_source_files_properties(${description} PROPERTIES OBJECT_DEPENDS "${icon};${manifest}")
  target_sources(${target} PRIVATE ${description})
endfunction()
