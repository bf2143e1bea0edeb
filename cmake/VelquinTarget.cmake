# Options of every target of the project.
function(velquin_target target)
  set_target_properties(${target} PROPERTIES CXX_STANDARD 20 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
                                             CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  target_compile_options(${target} PRIVATE
    $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion>
    $<$<CXX_COMPILER_ID:MSVC>:/W4 /utf-8>)
  # windows.h would make macros of std::min and std::max.
  target_compile_definitions(${target} PRIVATE $<$<PLATFORM_ID:Windows>:NOMINMAX>)
  # GCC 12 warns of overlapping copies inside its own `const char* + std::string` (GCC bug 105651).
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  if(VELQUIN_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang>:-Werror> $<$<CXX_COMPILER_ID:MSVC>:/WX>)
  endif()
  if(VELQUIN_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=${VELQUIN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${VELQUIN_SANITIZE})
  endif()
  if(VELQUIN_COVERAGE)
    # If threads lose counts, the counts derived from them are wrong, too.
    target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
    target_link_options(${target} PRIVATE --coverage)
  endif()
endfunction()

# As a Windows DLL does, a shared library leaves no symbol open and calls its own functions directly: no program can
# replace them. The sanitizers' runtimes come with the program.
function(velquin_shared_library target)
  velquin_target(${target})
  # Installed libraries find each other in their common folder.
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
                                             INSTALL_RPATH "$ORIGIN")
  if(UNIX AND NOT APPLE AND NOT VELQUIN_SANITIZE)
    target_compile_options(${target} PRIVATE -fno-semantic-interposition)
    set(exports ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/exports.map)
    target_link_options(${target} PRIVATE -Wl,-z,defs -Wl,-Bsymbolic-functions -Wl,--version-script=${exports})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${exports})
  endif()
endfunction()

# What a program needs to run is in the component `libraries`, what it needs to be built in `development`.
function(velquin_install_library target)
  install(TARGETS ${target} EXPORT velquin
          RUNTIME COMPONENT libraries
          LIBRARY COMPONENT libraries NAMELINK_COMPONENT development
          ARCHIVE COMPONENT development)
endfunction()
