# Run by CPack between installing and packing: what Debian expects in its packages and other installations do without.
cmake_policy(VERSION 3.25)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} COMPONENT)
  set(package ${CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME})
  set(root ${CPACK_TEMPORARY_DIRECTORY}/${component})
  set(doc ${root}/usr/share/doc/${package})

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
