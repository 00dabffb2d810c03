# What every Linux build has: the flags that Debian asks of its packages. Those that are given from outside, as Debian's
# own tools do, stay as they are. Executables with addresses that nobody knows beforehand are what the compiler and the
# toolkit make by themselves. Sanitizers bring checks of their own.
if(WIN32 OR ZIMBORA_SANITIZED)
  return()
endif()

# The checked forms of the C library's functions are there for code that is optimised only.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
  string(APPEND CMAKE_CXX_FLAGS " -D_FORTIFY_SOURCE=2")
endif()
if(NOT CMAKE_CXX_FLAGS MATCHES "-fstack-protector")
  string(APPEND CMAKE_CXX_FLAGS " -fstack-protector-strong")
endif()
foreach(kind EXE MODULE)
  if(NOT CMAKE_${kind}_LINKER_FLAGS MATCHES "-z,now")
    string(APPEND CMAKE_${kind}_LINKER_FLAGS " -Wl,-z,relro,-z,now")
  endif()
endforeach()
