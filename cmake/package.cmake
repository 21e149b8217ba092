# What a program needs to build against the library: made by cmake --install.
include(GNUInstallDirs)
install(FILES include/brelt.h include/events.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES $<TARGET_FILE:brelt> DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${importLibrary} DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES brelt.def DESTINATION ${CMAKE_INSTALL_DATADIR}/brelt)
install(DIRECTORY samples DESTINATION ${CMAKE_INSTALL_DATADIR}/brelt PATTERN CMakeLists.txt EXCLUDE)

configure_file(cmake/brelt.pc.in ${CMAKE_BINARY_DIR}/brelt.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/brelt.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

include(CMakePackageConfigHelpers)
configure_package_config_file(cmake/breltConfig.cmake.in ${CMAKE_BINARY_DIR}/breltConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/brelt
  PATH_VARS CMAKE_INSTALL_INCLUDEDIR CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_BINDIR)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/breltConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/breltConfig.cmake ${CMAKE_BINARY_DIR}/breltConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/brelt)
