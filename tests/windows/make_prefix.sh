#!/usr/bin/env bash
# make_prefix.sh <folder>: makes the Wine prefix that the tests of the Windows build share, unless it is there. Whole or
# not at all: it is made under another name.
set -euo pipefail
source "$(dirname "$0")/wine.sh"

prefix=$1
[[ -d $prefix ]] && exit
unfinished=$prefix.$$
trap 'rm -rf "$unfinished"' EXIT
mkdir -p "$(dirname "$prefix")"
use_prefix "$unfinished"
unset DISPLAY
"$wine" wineboot --init >"$prefix.log" 2>&1 || { cat "$prefix.log" >&2; exit 1; }
# The oldest Windows that the program is for.
"$wine" winecfg -v win10 >>"$prefix.log" 2>&1
"$wineserver" --wait
mv "$unfinished" "$prefix"
