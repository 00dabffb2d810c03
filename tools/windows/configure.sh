#!/usr/bin/env bash
# configure.sh <folder of the Qt for Windows> [<option of CMake>...]: prepares build/windows.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
qt=$1
shift
hunspell=$(tools/windows/build_hunspell.sh)
cmake --preset windows -DCMAKE_PREFIX_PATH="$qt" -DCMAKE_FIND_ROOT_PATH="/usr/x86_64-w64-mingw32;$qt" \
    -DZIMBORA_HUNSPELL="$hunspell" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -print-multiarch)/cmake" "$@" >/dev/null
