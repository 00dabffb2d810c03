#!/usr/bin/env bash
# Runs clang-tidy over every source of the program and its tools that the build folder $1 compiles.
set -euo pipefail
build=$1
find src tools -name '*.cpp' | sort | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p "$build" 2> >(grep -v 'warnings generated\|Suppressed\|Use -header-filter' >&2)
