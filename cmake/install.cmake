# Installs the library, the public headers, a CMake package and a pkg-config file, by components.
include(CMakePackageConfigHelpers)

# Programs that were linked with the library look for the name recorded in it, which does not begin with `lib`. The
# loader's cache would pass over such a file; a link that does begin so brings it in. The other link is for -llanemath.
set(links ${CMAKE_CURRENT_BINARY_DIR}/lib)
file(MAKE_DIRECTORY ${links})
foreach(link liblanemath.so liblanemath.so.3.5)
  file(CREATE_LINK __ocl_lanemath_h8.so.3.5 ${links}/${link} SYMBOLIC)
endforeach()
install(TARGETS lanemath EXPORT lanemath-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library)
install(FILES ${links}/liblanemath.so.3.5 DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library)
if(LANEMATH_SYMBOLS)
  install(FILES ${LANEMATH_SYMBOLS} DESTINATION ${CMAKE_INSTALL_LIBDIR}/.debug COMPONENT symbols)
endif()
install(FILES ${links}/liblanemath.so DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/lanemath ${LANEMATH_GENERATED}/include/lanemath
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/lanemath)
install(EXPORT lanemath-targets NAMESPACE lanemath:: DESTINATION ${package_dir} COMPONENT development)
write_basic_package_version_file(lanemath-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/lanemath-config.cmake ${CMAKE_CURRENT_BINARY_DIR}/lanemath-config-version.cmake
  DESTINATION ${package_dir} COMPONENT development)

# Only installing knows the prefix.
configure_file(${CMAKE_CURRENT_LIST_DIR}/install_pkg_config.cmake.in install_pkg_config.cmake @ONLY)
install(SCRIPT ${CMAKE_CURRENT_BINARY_DIR}/install_pkg_config.cmake COMPONENT development)

install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT license)

set(docs ${PROJECT_SOURCE_DIR}/docs)
file(GLOB documents ${docs}/*.md ${docs}/*.svg ${docs}/performance.json ${docs}/accuracy.json)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation
  USE_SOURCE_PERMISSIONS PATTERN CMakeLists.txt EXCLUDE)
# As in the sources: they lead to one another.
install(FILES ${documents} DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT documentation)
foreach(document CHANGELOG CONTRIBUTING SECURITY)
  install(FILES ${PROJECT_SOURCE_DIR}/${document}.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
endforeach()
if(TARGET lanemath-reference)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/reference/html DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/reference/man/ DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT documentation)
endif()
foreach(tool lanemath-accuracy lanemath-compare lanemath-benchmark)
  if(TARGET ${tool})
    install(TARGETS ${tool} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
    install(FILES ${docs}/man/${tool}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
  endif()
endforeach()
if(LANEMATH_TOOLS)
  install(FILES ${PROJECT_SOURCE_DIR}/tools/accuracy/errors.csv DESTINATION ${CMAKE_INSTALL_DATADIR}/lanemath
    COMPONENT tools)
endif()
if(TARGET lanemath-opencl-library)
  install(FILES ${docs}/man/lanemath-opencl.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT opencl)
endif()
if(PROJECT_IS_TOP_LEVEL)
  include(cmake/debian.cmake)
endif()
