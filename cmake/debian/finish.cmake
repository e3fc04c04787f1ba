# Run by CPack between installing and packing: what Debian expects in its packages and other installations do without.
cmake_policy(VERSION 3.25)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} COMPONENT)
  set(package ${CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME})
  set(root ${CPACK_TEMPORARY_DIRECTORY}/${component})
  set(doc ${root}/usr/share/doc/${package})

  file(GLOB_RECURSE library ${root}/usr/__ocl_lanemath_h8.so.3.5)
  if(library AND CPACK_LANEMATH_LIBRARY)
    # As it was built: CPack has stripped it again, of what leads to its symbols.
    cmake_path(GET library PARENT_PATH folder)
    file(COPY ${CPACK_LANEMATH_LIBRARY} DESTINATION ${folder}
      FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
  endif()
  file(GLOB_RECURSE symbols ${root}/usr/*.debug)
  if(symbols)
    execute_process(COMMAND ${CPACK_LANEMATH_READELF} -n ${CPACK_LANEMATH_LIBRARY}
      OUTPUT_VARIABLE notes COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCH "Build ID: (..)([0-9a-f]+)" found "${notes}")
    file(MAKE_DIRECTORY ${root}/usr/lib/debug/.build-id/${CMAKE_MATCH_1})
    file(RENAME ${symbols} ${root}/usr/lib/debug/.build-id/${CMAKE_MATCH_1}/${CMAKE_MATCH_2}.debug)
    cmake_path(GET symbols PARENT_PATH emptied)
    file(REMOVE_RECURSE ${emptied})
  endif()

  file(COPY ${CPACK_LANEMATH_DEBIAN_FILES}/copyright DESTINATION ${doc})
  file(WRITE ${doc}/changelog "lanemath (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * Built from the sources of this version.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
  if(EXISTS ${CPACK_LANEMATH_DEBIAN_FILES}/${component}.lintian-overrides)
    set(overrides ${root}/usr/share/lintian/overrides)
    file(MAKE_DIRECTORY ${overrides})
    file(COPY_FILE ${CPACK_LANEMATH_DEBIAN_FILES}/${component}.lintian-overrides ${overrides}/${package})
  endif()
  file(GLOB_RECURSE pages ${root}/usr/share/man/*)
  execute_process(COMMAND gzip -9nf ${doc}/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY)

  file(GLOB_RECURSE files LIST_DIRECTORIES TRUE ${root}/usr/*)
  foreach(link IN LISTS files)
    if(IS_SYMLINK ${link})
      file(READ_SYMLINK ${link} target)
      if(target MATCHES "^/usr/")
        cmake_path(GET link PARENT_PATH folder)
        cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${root})
        cmake_path(RELATIVE_PATH target BASE_DIRECTORY /${folder})
        file(CREATE_LINK ${target} ${link} SYMBOLIC)
      endif()
    endif()
  endforeach()
endforeach()
