#!/bin/sh
# replace_builtins.sh BUILTINS MACHINE STOCK RESULT WORK
# Compiles the built-ins for a kind of machine and links them over the runtime's kernel library for it.
# CLANG, LLVM_LINK and LLVM_NM name the tools; WORK is a prefix for intermediate files.
set -eu
builtins=$1 machine=$2 stock=$3 result=$4 work=$5
export LC_ALL=C

# Wide vectors between these functions and the kernels cross as the runtime's own do: both are compiled for the
# same machine. So what the compiler says about that is of no interest.
"$CLANG" -x cl -cl-std=CL1.2 --target=x86_64-pc-linux-gnu -march="$machine" -O2 -fPIC -Wall -Wextra -Werror \
  -Wno-psabi -I "$(dirname -- "$0")" -emit-llvm -c "$builtins" -o "$work.bc"

# A definition that replaces nothing would never be called: its name or a type is wrong.
"$LLVM_NM" --defined-only --just-symbol-name "$stock" | sort > "$work.stock"
"$LLVM_NM" --defined-only --just-symbol-name "$work.bc" | sort > "$work.ours"
unknown=$(comm -13 "$work.stock" "$work.ours")
if [ -n "$unknown" ]; then
  printf 'no such built-ins in %s:\n%s\n' "$stock" "$unknown" >&2
  exit 1
fi

"$LLVM_LINK" "$stock" --override "$work.bc" -o "$result"
