#!/usr/bin/env bash
# Prints the folder of the static Hunspell for Windows ("libhunspell.a", and its headers in "include"), after building it
# if the cache has none made by this recipe. It is there whole or not at all, as the Qt of build_qt.sh.
set -euo pipefail
here=$(realpath "$(dirname "${BASH_SOURCE[0]}")")

# The version is that of the package libhunspell-dev, with which the program for this machine is built.
version=1.7.1-1
sum=183e319fbf5a23707768d1c68a304ba70b6a8a5581d0521da63e7c81e6da80ac
compiler=x86_64-w64-mingw32-g++-posix
archiver=x86_64-w64-mingw32-gcc-ar-posix

recipe=$(sha256sum <"${BASH_SOURCE[0]}" | cut -c1-12)
cache=${ZIMBORA_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zimbora}
target=$cache/hunspell-windows-${version%-*}-$recipe
if [ "${1:-}" = --where ] || [ -d "$target" ]; then
    echo "$target"
    exit
fi

mkdir -p "$cache"
work=$(mktemp -d "$cache/hunspell-windows-being-built.XXXXXX")
trap 'rm -rf "$work"' EXIT
echo "Windowsos Hunspell építése (egyszer kell): $target" >&2

"$here/fetch_source.sh" hunspell "$version" "$sum" "$work/src" >&2
source=$work/src/hunspell/src/hunspell
mkdir -p "$work/hunspell/include/hunspell" "$work/objects"
# The library reads a path as UTF-8 for one compiler only, whose streams open wide names.
sed -i -e 's/^#if defined(_WIN32) && defined(_MSC_VER)$/#if defined(_WIN32)/' \
    -e 's/stream\.open(buff2, mode)/stream.open(std::filesystem::path(buff), mode)/' "$source/csutil.cxx"
grep -q 'std::filesystem::path(buff)' "$source/csutil.cxx"
for part in affentry affixmgr csutil filemgr hashmgr hunspell hunzip phonet replist suggestmgr; do
    "$compiler" -std=c++17 -include filesystem -O2 -DHUNSPELL_STATIC -I"$source" -c "$source/$part.cxx" -o "$work/objects/$part.o"
done
"$archiver" rcs "$work/hunspell/libhunspell.a" "$work"/objects/*.o
cp "$source"/{atypes.hxx,hunspell.h,hunspell.hxx,hunvisapi.h,w_char.hxx} "$work/hunspell/include/hunspell/"

# Somebody else's build may have come first.
mv --no-target-directory "$work/hunspell" "$target" 2>/dev/null || [ -d "$target" ]
echo "$target"
