#!/usr/bin/env bash
# Prints the folder of the static Qt for Windows, after building it if the cache has none made by this recipe. It is
# there whole or not at all: it is built under another name and renamed at the end.
# build_qt.sh --where only prints the folder's name, whether it is there or not.
set -euo pipefail
here=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
. "$here/qt_recipe.sh"
toolchain=$(realpath "$here/../../cmake/toolchain-mingw64.cmake")

recipe=$(cat "$here/qt_recipe.sh" "$toolchain" | sha256sum | cut -c1-12)
cache=${ZIMBORA_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zimbora}
target=$cache/qt-windows-$qt_version-$recipe
if [ "${1:-}" = --where ] || [ -d "$target" ]; then
    echo "$target"
    exit
fi

read -r package version sum <<<"$qt_source"
installed=$(dpkg-query --show --showformat='${Version}' qt6-base-dev)
if [ "$installed" != "$version" ]; then
    echo "A telepített Qt ($installed) más, mint amelyből a windowsos készül ($version)." >&2
    exit 1
fi

mkdir -p "$cache"
work=$(mktemp -d "$cache/qt-windows-being-built.XXXXXX")
trap 'rm -rf "$work"' EXIT
echo "Windowsos Qt építése (egyszer kell, kb. negyed óra): $target" >&2
log=$cache/qt-windows-build.log
: >"$log"

# Every line goes to the log; the end of it is shown when something fails.
step() {
    "$@" >>"$log" 2>&1 || { tail -n 40 "$log" >&2; echo "Nem sikerült: $* (napló: $log)" >&2; exit 1; }
}

step "$here/fetch_source.sh" "$package" "$version" "$sum" "$work/src"
step cmake -G Ninja -S "$work/src/$package" -B "$work/build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_INSTALL_PREFIX="$work/qt" -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -print-multiarch)/cmake" "${qt_options[@]}"
step nice -n 19 cmake --build "$work/build" --parallel "${ZIMBORA_JOBS:-$(nproc)}"
step cmake --install "$work/build"

# Somebody else's build may have come first.
mv --no-target-directory "$work/qt" "$target" 2>/dev/null || [ -d "$target" ]
echo "$target"
