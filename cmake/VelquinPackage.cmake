# What a program needs to find the library, and what CPack makes of the installation.
include(CMakePackageConfigHelpers)

# The schema, for programs that have this project in their own build. The CMake package defines the same variable.
set(VELQUIN_PSTN_CONFIG_SCHEMA ${PROJECT_SOURCE_DIR}/gateway-interfaces/pstn/config/schema/pstnConfig.rng
    CACHE INTERNAL "Schema of the configuration's format")

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/velquin-pstn-config)
set(schema_file ${CMAKE_INSTALL_DATADIR}/velquin-pstn-config/pstnConfig.rng)
configure_package_config_file(cmake/velquin-pstn-config-config.cmake.in velquin-pstn-config-config.cmake
                              INSTALL_DESTINATION ${package_folder} PATH_VARS schema_file)
write_basic_package_version_file(velquin-pstn-config-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/velquin-pstn-config-config.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/velquin-pstn-config-config-version.cmake
              cmake/Findlog4cplus.cmake
        DESTINATION ${package_folder} COMPONENT development)
install(EXPORT velquin NAMESPACE velquin:: FILE velquin-pstn-config-targets.cmake
        DESTINATION ${package_folder} COMPONENT development)

# pkg-config finds the prefix from the place of its file, so that the tree may be moved. In /usr the prefix is fixed: a
# path through .../pkgconfig/.. , for instance the schema's, doesn't exist on machines without the development package.
set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(pkgconfig_prefix /usr)
if(NOT CMAKE_INSTALL_PREFIX STREQUAL pkgconfig_prefix)
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${pkgconfig_folder}
             OUTPUT_VARIABLE pkgconfig_prefix)
  string(PREPEND pkgconfig_prefix "\${pcfiledir}/")
endif()
configure_file(cmake/velquin-pstn-config.pc.in velquin-pstn-config.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/velquin-pstn-config.pc DESTINATION ${pkgconfig_folder}
        COMPONENT development)

# A component of its own: Debian has the licence in its own place.
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/licenses/velquin-pstn-config COMPONENT licences)

if(VELQUIN_WINDOWS_PREFIX)
  include(cmake/WindowsZip.cmake)
endif()

if(PROJECT_IS_TOP_LEVEL)
  set(CPACK_GENERATOR TGZ)
  if(WIN32)
    set(CPACK_GENERATOR ZIP)
  endif()
  set(CPACK_PACKAGE_VENDOR "The Velquin Pstn authors")
  set(CPACK_PACKAGE_FILE_NAME velquin-pstn-config-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
  set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_CURRENT_SOURCE_DIR}/LICENSE)
  set(CPACK_STRIP_FILES ON)
  include(CPack)
endif()
