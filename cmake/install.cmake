# Installs the library, the public headers, a CMake package and a pkg-config file; CPack packs them for Debian.
include(CMakePackageConfigHelpers)

install(TARGETS lanemath EXPORT lanemath-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/lanemath ${PROJECT_BINARY_DIR}/generated/include/lanemath
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/lanemath)
install(EXPORT lanemath-targets NAMESPACE lanemath:: FILE lanemath-config.cmake DESTINATION ${package_dir})
write_basic_package_version_file(lanemath-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/lanemath-config-version.cmake DESTINATION ${package_dir})

configure_file(${CMAKE_CURRENT_LIST_DIR}/lanemath.pc.in lanemath.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/lanemath.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

set(CPACK_PACKAGE_NAME lanemath)
set(CPACK_PACKAGE_CONTACT "lanemath developers <lanemath@localhost>")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS pocl-opencl-icd)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
