# Builds for 64-bit Windows with Debian's mingw-w64 (POSIX threads). VELQUIN_WINDOWS_PREFIX is where scripts/build-windows
# installed the libraries that the project needs: nothing is taken from the machine itself, but programs.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VELQUIN_WINDOWS_PREFIX)
if(VELQUIN_WINDOWS_PREFIX)
  get_filename_component(VELQUIN_WINDOWS_PREFIX ${VELQUIN_WINDOWS_PREFIX} REALPATH)
  list(PREPEND CMAKE_FIND_ROOT_PATH ${VELQUIN_WINDOWS_PREFIX})
  set(ENV{PKG_CONFIG_LIBDIR} ${VELQUIN_WINDOWS_PREFIX}/lib/pkgconfig)
endif()

# Programs run under Wine, with all DLLs of the build and of its libraries in reach.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/run-windows)
