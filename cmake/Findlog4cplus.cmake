# Defines log4cplus::log4cplus: for this project, and for programs that use the installed library. The CMake package
# that Debian ships with log4cplus also names libraries that only log4cplus itself needs, and that may be absent.
find_path(LOG4CPLUS_INCLUDE_DIR log4cplus/logger.h)
find_library(LOG4CPLUS_LIBRARY log4cplus)
mark_as_advanced(LOG4CPLUS_INCLUDE_DIR LOG4CPLUS_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(log4cplus REQUIRED_VARS LOG4CPLUS_LIBRARY LOG4CPLUS_INCLUDE_DIR)
if(log4cplus_FOUND AND NOT TARGET log4cplus::log4cplus)
  # Global: with add_subdirectory, the program above links it, too.
  add_library(log4cplus::log4cplus UNKNOWN IMPORTED GLOBAL)
  set_target_properties(log4cplus::log4cplus PROPERTIES IMPORTED_LOCATION ${LOG4CPLUS_LIBRARY}
                                                        INTERFACE_INCLUDE_DIRECTORIES ${LOG4CPLUS_INCLUDE_DIR})
endif()
