#!/bin/sh
# replace_builtins.sh KIND EXPORTED STOCK RESULT WORK
# Makes the built-ins for a kind of machine from what the library exports, and links them over the runtime's kernel
# library for it. GENERATE, CLANG, LLVM_LINK and LLVM_NM name the tools; WORK is a prefix for intermediate files.
set -eu
kind=$1 exported=$2 stock=$3 result=$4 work=$5
export LC_ALL=C
trap 'status=$?; [ $status = 0 ] || { rm -f "$result"; echo "no kernel library for machines of kind $kind" >&2; }' EXIT

processor=$("$GENERATE" opencl-processor "$kind")
"$GENERATE" opencl-builtins "$kind" "$exported" > "$work.cl"
"$GENERATE" opencl-crossings "$kind" "$exported" > "$work.crossings.ll"
# Wide vectors cross between these functions and the kernels as the runtime's own do: both are compiled for the
# same machine. So the compiler's warnings about that are of no interest.
"$CLANG" -x cl -cl-std=CL1.2 --target=x86_64-pc-linux-gnu -march="$processor" -O2 -fPIC -Wall -Wextra -Werror \
  -Wno-psabi -I "$(dirname -- "$0")" -emit-llvm -c "$work.cl" -o "$work.builtins.bc"

# A definition that replaces nothing would never be called: its name or a type is wrong.
"$LLVM_NM" --defined-only --just-symbol-name "$stock" | sort > "$work.stock"
"$LLVM_NM" --defined-only --just-symbol-name "$work.builtins.bc" | sort > "$work.ours"
unknown=$(comm -13 "$work.stock" "$work.ours")
if [ -n "$unknown" ]; then
  printf 'no such built-ins in %s:\n%s\n' "$stock" "$unknown" >&2
  exit 1
fi

"$LLVM_LINK" "$stock" --override "$work.builtins.bc" "$work.crossings.ll" -o "$result"
