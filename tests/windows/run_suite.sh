#!/usr/bin/env bash
# run_suite.sh <Wine prefix> <suite.exe> [<argument>...]: runs the tests of a suite of the Windows build on a screen of
# its own.
set -euo pipefail
here=$(dirname "$0")
source "$here/wine.sh"
source "$here/../e2e/lib.sh"

use_prefix "$(realpath "$1")"
suite=$2
shift 2

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
temp=$(mktemp -d)
children=()
trap end_suite EXIT
trap 'exit 1' INT TERM HUP
# The offscreen platform takes its type faces from one folder.
mkdir "$temp/faces"
ln -s /usr/share/fonts/truetype/{dejavu,liberation2}/*.ttf "$temp/faces"
export ZIMBORA_TEST_FACES=$temp/faces
# What a test lets programs of this machine do: see run_outside.sh.
export ZIMBORA_TEST_STARTER=Z:$(realpath "$here/run_outside.sh") ZIMBORA_TEST_DRIVES=$WINEPREFIX/dosdevices
start_screen 1280x1024
"$wine" "$suite" "$@"
