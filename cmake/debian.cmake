# CPack makes Debian packages of the components: library, its symbols, development files, documentation, tools, OpenCL
# part.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "lanemath developers <developers@lanemath.invalid>" CACHE STRING "The packages' maintainer")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "vectorised maths functions for OpenCL kernels, C and C++")
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian/finish.cmake)
set(CPACK_LANEMATH_DEBIAN_FILES ${CMAKE_CURRENT_LIST_DIR}/debian)

# lanemath_package(COMPONENT PACKAGE SECTION DEPENDS DESCRIPTION)
macro(lanemath_package component package section depends description)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${depends}")
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "lanemath computes exp, sin, pow and the like on vectors of 2, 3, 4, 8 and 16
floats or doubles, on x86-64 processors with SSE4.1, with the same bits
whatever compiler built it.
.
This package ${description}.")
endmacro()

set(same_library "liblanemath3 (= ${PROJECT_VERSION})")
lanemath_package(library liblanemath3 libs "" "holds the shared library")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
  ${CMAKE_CURRENT_LIST_DIR}/debian/shlibs ${CMAKE_CURRENT_LIST_DIR}/debian/triggers)
if(LANEMATH_SYMBOLS)
  lanemath_package(symbols liblanemath3-dbgsym debug "${same_library}" "holds the library's symbols for debuggers")
  set(CPACK_LANEMATH_LIBRARY ${PROJECT_BINARY_DIR}/lib/__ocl_lanemath_h8.so.3.5)
  set(CPACK_LANEMATH_READELF ${CMAKE_READELF})
endif()
lanemath_package(development liblanemath-dev libdevel "${same_library}"
  "holds the headers and the files for CMake and pkg-config")

if(TARGET lanemath-reference)
  lanemath_package(documentation lanemath-doc doc "" "holds the function reference, documents and examples")
  set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
endif()
if(LANEMATH_TOOLS)
  lanemath_package(tools lanemath-tools math "${same_library}" "measures the library's errors and speed")
  set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
endif()

# The kernel libraries are made from those of one version of the runtime, and fit no other.
if(TARGET lanemath-opencl-library)
  execute_process(COMMAND dpkg-query --search ${LANEMATH_POCL} OUTPUT_VARIABLE runtime ERROR_QUIET)
  string(REGEX REPLACE "[:,].*" "" runtime "${runtime}")
  execute_process(COMMAND dpkg-query --show --showformat "\${Package} (= \${Version})" "${runtime}"
    OUTPUT_VARIABLE runtime ERROR_QUIET)
endif()
if(runtime)
  lanemath_package(opencl lanemath-opencl libs "libc6, ${same_library}, pocl-opencl-icd, ${runtime}"
    "runs OpenCL programs with their maths built-ins answered by it")
endif()
include(CPack)
