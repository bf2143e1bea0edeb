# What the zip holds beside the installation: everything that the programs need to run, what a program needs to set up the
# log, the licences of all of it, and what README says.
install(DIRECTORY ${VELQUIN_WINDOWS_PREFIX}/bin/ DESTINATION bin COMPONENT libraries FILES_MATCHING PATTERN *.dll)
install(DIRECTORY ${VELQUIN_WINDOWS_PREFIX}/include/log4cplus DESTINATION include COMPONENT development)
install(FILES ${VELQUIN_WINDOWS_PREFIX}/lib/liblog4cplus.dll.a DESTINATION lib COMPONENT development)
install(FILES ${VELQUIN_WINDOWS_PREFIX}/lib/pkgconfig/log4cplus.pc DESTINATION lib/pkgconfig COMPONENT development)
install(DIRECTORY ${VELQUIN_WINDOWS_PREFIX}/licences/ DESTINATION share/licenses COMPONENT licences)
install(FILES README.md CHANGELOG.md LICENSE DESTINATION share/doc/pstnconfig COMPONENT tool)
install(FILES docs/windows.md DESTINATION share/doc/pstnconfig/docs COMPONENT tool)
install(DIRECTORY docs/images DESTINATION share/doc/pstnconfig/docs COMPONENT tool)
