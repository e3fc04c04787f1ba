if(TARGET lanemath::lanemath)
  return()
endif()
include(${CMAKE_CURRENT_LIST_DIR}/lanemath-targets.cmake)

# A program linked with the library remembers where it is, unless the loader looks there anyway or the project wants no
# run paths.
get_filename_component(lanemath_folder ${CMAKE_CURRENT_LIST_DIR}/../.. REALPATH)
list(FIND CMAKE_C_IMPLICIT_LINK_DIRECTORIES ${lanemath_folder} lanemath_c)
list(FIND CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES ${lanemath_folder} lanemath_cxx)
if(lanemath_c EQUAL -1 AND lanemath_cxx EQUAL -1 AND NOT CMAKE_SKIP_RPATH AND NOT CMAKE_SKIP_INSTALL_RPATH)
  set_property(TARGET lanemath::lanemath APPEND PROPERTY INTERFACE_LINK_OPTIONS LINKER:-rpath,${lanemath_folder})
endif()
