#!/usr/bin/env bash
# Makes a MIDI file of a piece in ABC notation; fails where abc2midi, which always ends with success, only warns.
#
#   make_midi.sh <piece.abc> <piece.mid>
set -euo pipefail

[ $# -eq 2 ] || { echo "Usage: make_midi.sh <piece.abc> <piece.mid>" >&2; exit 2; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

abc2midi "$1" -o "$work/piece.mid" >"$work/said" 2>&1 || { cat "$work/said" >&2; exit 1; }
if grep -qE '^(Error|Warning)' "$work/said" || [ ! -s "$work/piece.mid" ]; then
    echo "$1:" >&2
    cat "$work/said" >&2
    exit 1
fi
mkdir -p "$(dirname "$2")"
cp "$work/piece.mid" "$2"
