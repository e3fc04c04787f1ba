# CPack makes Debian packages of the components: library, development files, OpenCL part.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "lanemath developers <developers@lanemath.invalid>" CACHE STRING "The packages' maintainer")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL library development)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "vectorised maths functions for OpenCL kernels, C and C++")
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian/finish.cmake)
set(CPACK_LANEMATH_DEBIAN_FILES ${CMAKE_CURRENT_LIST_DIR}/debian)

set(description "lanemath computes exp, sin, pow and the like on vectors of 2, 3, 4, 8 and 16
floats or doubles, with the same bits on every x86-64 processor with SSE4.1.
.
")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME liblanemath3)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
  ${CMAKE_CURRENT_LIST_DIR}/debian/shlibs ${CMAKE_CURRENT_LIST_DIR}/debian/triggers)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "${description}This package holds the shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liblanemath-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "liblanemath3 (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
  "${description}This package holds the headers and the files for CMake and pkg-config.")

# The kernel libraries are made from those of one version of the runtime, and fit no other.
if(TARGET lanemath-opencl-library)
  execute_process(COMMAND dpkg-query --search ${LANEMATH_POCL} OUTPUT_VARIABLE runtime ERROR_QUIET)
  string(REGEX REPLACE "[:,].*" "" runtime "${runtime}")
  execute_process(COMMAND dpkg-query --show --showformat "\${Package} (= \${Version})" "${runtime}"
    OUTPUT_VARIABLE runtime ERROR_QUIET)
endif()
if(runtime)
  list(APPEND CPACK_COMPONENTS_ALL opencl)
  set(CPACK_DEBIAN_OPENCL_PACKAGE_NAME lanemath-opencl)
  set(CPACK_DEBIAN_OPENCL_PACKAGE_SECTION libs)
  set(CPACK_DEBIAN_OPENCL_PACKAGE_DEPENDS "liblanemath3 (= ${PROJECT_VERSION}), pocl-opencl-icd, ${runtime}")
  set(CPACK_COMPONENT_OPENCL_DESCRIPTION
    "${description}This package runs OpenCL programs with their maths built-ins answered by it.")
endif()
include(CPack)
