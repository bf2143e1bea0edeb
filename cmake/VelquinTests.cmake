# Names of tests that don't run on this system
set(VELQUIN_TESTS_LEFT_OUT "")
if(WIN32)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/not-on-windows.txt)
  file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/not-on-windows.txt VELQUIN_TESTS_LEFT_OUT REGEX "^[^#]")
endif()

# Adds the tests of a GoogleTest program; further arguments are those of gtest_discover_tests.
function(velquin_discover_tests target)
  set(filter "")
  if(VELQUIN_TESTS_LEFT_OUT)
    list(JOIN VELQUIN_TESTS_LEFT_OUT ":" left_out)
    set(filter TEST_FILTER "-${left_out}")
  endif()
  gtest_discover_tests(${target} DISCOVERY_TIMEOUT 120 ${filter} ${ARGN})
endfunction()

# Adds a test that runs a command.
function(velquin_add_test name)
  if(NOT name IN_LIST VELQUIN_TESTS_LEFT_OUT)
    add_test(NAME ${name} COMMAND ${ARGN})
  endif()
endfunction()
