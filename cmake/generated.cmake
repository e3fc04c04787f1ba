# What the host programs generate for the library (tables, export list, public headers) is also kept in the repository,
# in kept/, so that the library can be built with a compiler alone.
if(LANEMATH_GENERATE)
  set(LANEMATH_GENERATED ${PROJECT_BINARY_DIR}/generated)
else()
  set(LANEMATH_GENERATED ${PROJECT_SOURCE_DIR}/kept)
endif()

# lanemath_generate(FILE PROGRAM ARGUMENT... DEPENDS FILE...): FILE, below LANEMATH_GENERATED, is what a program prints.
function(lanemath_generate file program)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" DEPENDS)
  if(NOT LANEMATH_GENERATE)
    return()
  endif()
  set(output ${LANEMATH_GENERATED}/${file})
  cmake_path(GET output PARENT_PATH folder)
  file(MAKE_DIRECTORY ${folder})
  add_custom_command(OUTPUT ${output}
    COMMAND ${program} ${arg_UNPARSED_ARGUMENTS} --output ${output}
    DEPENDS ${program} ${arg_DEPENDS} VERBATIM)
  set_property(GLOBAL APPEND PROPERTY LANEMATH_GENERATED_FILES ${file})
endfunction()

# The target `lanemath-keep` refreshes kept/.
function(lanemath_keep_generated)
  if(NOT LANEMATH_GENERATE)
    return()
  endif()
  get_property(files GLOBAL PROPERTY LANEMATH_GENERATED_FILES)
  set(kept ${PROJECT_SOURCE_DIR}/kept)
  add_custom_target(lanemath-keep COMMAND ${CMAKE_COMMAND} -E rm -rf ${kept} VERBATIM)
  add_dependencies(lanemath-keep lanemath-table-headers lanemath-export-list lanemath-public-header)
  foreach(file IN LISTS files)
    add_custom_command(TARGET lanemath-keep POST_BUILD
      COMMAND ${CMAKE_COMMAND} -E copy ${LANEMATH_GENERATED}/${file} ${kept}/${file} VERBATIM)
  endforeach()
endfunction()
