#!/usr/bin/env bash
# main_job.sh <program> <folder with the dictionaries> <output folder>: does the main job on a virtual display (looks
# "apple" up, adds its first meaning, saves the list) and leaves the list and a picture in the output folder.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

binary=$(realpath "$1")
dictionaries=$(realpath "$2")
mkdir -p "$3"
output=$(realpath "$3")
rm -f "$output"/gyumolcs.szs "$output"/zimbora.png

set_up_places
start_screen 1280x800
start_program
add_apple
save_as "$lists/gyumolcs.szs"
expect_lines "$lists/gyumolcs.szs" apple:alma
cp "$lists/gyumolcs.szs" "$output"
import -window root "$output/zimbora.png"
press alt+F4
expect_end_with_success
echo "Nincs képernyő, ezért a program egy virtuálison végezte el a fő feladatát: megkereste az „apple” szót, felvette az „alma” jelentést, és mentett."
echo "A szószedet: $output/gyumolcs.szs"
echo "A kép:       $output/zimbora.png"
