# What the tests of the installed library share.
set -Eeuo pipefail
trap 'echo "failed: $BASH_COMMAND"' ERR
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset CFLAGS CXXFLAGS LDFLAGS LD_LIBRARY_PATH DESTDIR PKG_CONFIG_PATH PKG_CONFIG_LIBDIR
library=__ocl_lanemath_h8.so.3.5

# quietly COMMAND...: shows what it prints only if it fails.
quietly() {
  "$@" > "$work/log" 2>&1 || { cat "$work/log"; echo "failed: $*"; exit 1; }
}

# configure NAME SOURCES ARGUMENT...: in a folder of that name, with $cc and $cxx and no package. The log stays there.
configure() {
  local folder=$work/$1 from=$2 absent=()
  shift 2
  for package in MPFR fmt CLI11 GTest benchmark SLEEF nlohmann_json; do
    absent+=(-DCMAKE_DISABLE_FIND_PACKAGE_$package=ON)
  done
  quietly cmake -G Ninja -S "$from" -B "$folder" "${absent[@]}" \
    -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_BUILD_TYPE=Release "$@"
  cp "$work/log" "$folder"
}

# with_pkg_config COMPILER LIBRARY_FOLDER PROGRAM [MODULE FLAG...]: builds the consumer as pkg-config says.
with_pkg_config() {
  local flags
  read -ra flags <<< "$(PKG_CONFIG_PATH=$2/pkgconfig pkg-config --cflags --libs "${4:-lanemath}")"
  "$1" -Wall -Wextra -Werror "${@:5}" "$here/consumer.c" "${flags[@]}" -lm -o "$3"
}

# make_packages BUILD_FOLDER: Debian packages of it, into the folder $packages.
make_packages() {
  packages=$work/packages
  (cd "$work" && quietly cpack --config "$1/CPackConfig.cmake" -B "$packages")
}
