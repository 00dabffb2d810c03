#!/usr/bin/env bash
# Runs clang-tidy over every source of the program and its tools that the build folder $1 compiles with Clang; what only
# another system compiles is not among them. The sources are read without precompiled headers, so that each has to
# include what it needs.
set -euo pipefail
build=$1
commands=$(mktemp -d)
trap 'rm -rf "$commands"' EXIT
sed -E 's/ -Winvalid-pch//; s/ -fpch-instantiate-templates//; s/ -Xclang -include-pch -Xclang [^ ]+//;
    s/ -Xclang -include -Xclang [^ ]+cmake_pch\.hxx//' "$build/compile_commands.json" >"$commands/compile_commands.json"
find src tools -name '*.cpp' | sort | while read -r source; do
    ! grep -qF "$PWD/$source\"" "$commands/compile_commands.json" || echo "$source"
done | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p "$commands" \
    2> >(grep -v 'warnings generated\|Suppressed\|Use -header-filter' >&2)
