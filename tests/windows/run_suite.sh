#!/usr/bin/env bash
# run_suite.sh <Wine prefix> <suite.exe> [<argument>...]: runs the tests of a suite of the Windows build on a screen of
# its own; without arguments all but those in left_out.txt.
set -euo pipefail
here=$(dirname "$0")
source "$here/wine.sh"
source "$here/../e2e/lib.sh"

use_prefix "$(realpath "$1")"
suite=$2
shift 2
arguments=("$@")
if (($# == 0)); then
    arguments=("--gtest_filter=-$(sed '/^#/d; /^$/d' "$here/left_out.txt" | tr '\n' ':')")
fi

end_suite() {
    local status=$?
    set +e
    "$wineserver" --kill
    "$wineserver" --wait
    end_children
    rm -rf "$temp"
    exit "$status"
}

unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
export LC_ALL=C.UTF-8
# The offscreen platform takes its type faces from a folder.
export ZIMBORA_TEST_FACES=/usr/share/fonts/truetype/liberation2
temp=$(mktemp -d)
trap end_suite EXIT
trap 'exit 1' INT TERM HUP
children=()
start_screen 1280x1024
"$wine" "$suite" "${arguments[@]}"
