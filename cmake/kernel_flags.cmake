# Kernels are compiled and linked by their own flags: others would change their instructions and bits. In the folder
# that calls this, only those of the caller's flags remain that concern tools, warnings or debugging.
# LANEMATH_DROPPED_FLAGS are the others.
macro(lanemath_use_own_flags)
  string(JOIN "|" kept
    -g[^\ ]* -O[0-3gsz]? -DNDEBUG -w -W.[^,][^\ ]* -pipe
    -f[a-z]+-prefix-map=[^\ ]* -fdiagnostics-[^\ ]* -f[no-]*color-diagnostics -fuse-ld=[^\ ]* --ld-path=[^\ ]*
    --sysroot=[^\ ]* --target=[^\ ]* --gcc-toolchain=[^\ ]* --gcc-install-dir=[^\ ]* -stdlib=[^\ ]* -B[^\ ]+)
  set(dropped)
  get_cmake_property(flag_variables VARIABLES)
  set(settings ${flag_variables})
  list(FILTER flag_variables INCLUDE REGEX "^CMAKE_(CXX_FLAGS|CXX_COMPILER_ARG1|SHARED_LINKER_FLAGS)(_[A-Z0-9_]+)?$")
  foreach(variable IN LISTS flag_variables)
    separate_arguments(given UNIX_COMMAND "${${variable}}")
    set(other ${given})
    list(FILTER given INCLUDE REGEX "^(${kept})$")
    list(FILTER other EXCLUDE REGEX "^(${kept})$")
    list(JOIN given " " ${variable})
    list(APPEND dropped ${other})
  endforeach()
  set_directory_properties(PROPERTIES COMPILE_DEFINITIONS "" INCLUDE_DIRECTORIES "" LINK_LIBRARIES ""
    COMPILE_OPTIONS "${LANEMATH_COMPILE_OPTIONS}" LINK_OPTIONS "${LANEMATH_LINK_OPTIONS}")
  list(FILTER settings INCLUDE REGEX
    "^CMAKE_(INTERPROCEDURAL_OPTIMIZATION|UNITY_BUILD|CXX_STANDARD_LIBRARIES|(BUILD|INSTALL)_RPATH|[A-Z]+_POSTFIX)")
  foreach(setting IN LISTS settings)
    set(${setting} "")
  endforeach()
  list(REMOVE_DUPLICATES dropped)
  list(JOIN dropped " " LANEMATH_DROPPED_FLAGS)
endmacro()
