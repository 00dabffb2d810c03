#!/usr/bin/env bash
# Runs clang-tidy over every source of the program and its tools that the build folder $1 compiles; what only another
# system compiles is not among them.
set -euo pipefail
build=$1
find src tools -name '*.cpp' | sort | while read -r source; do
    ! grep -qF "$PWD/$source\"" "$build/compile_commands.json" || echo "$source"
done | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p "$build" 2> >(grep -v 'warnings generated\|Suppressed\|Use -header-filter' >&2)
