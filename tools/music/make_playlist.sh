#!/usr/bin/env bash
# Makes the initial settings of the music: the state of its switch (0: no music until the user asks for it; a blank
# stands where the number's sign would) and the pieces in the order in which they are played, a name a line, in
# windows-1250, each line ended by CR LF.
#
#   make_playlist.sh <settings file> <name of a piece>...
set -euo pipefail

[ $# -ge 2 ] || { echo "Usage: make_playlist.sh <settings file> <name of a piece>..." >&2; exit 2; }
playlist=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

printf '%s\r\n' ' 0' "$@" | iconv --from-code=UTF-8 --to-code=WINDOWS-1250 >"$work/playlist"
mkdir -p "$(dirname "$playlist")"
cp "$work/playlist" "$playlist"
