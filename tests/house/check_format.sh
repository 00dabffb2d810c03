#!/usr/bin/env bash
# Fails when clang-format would change a source.
set -euo pipefail
find src tools tests bench -name '*.cpp' -o -name '*.h' | sort | xargs clang-format --dry-run --Werror
