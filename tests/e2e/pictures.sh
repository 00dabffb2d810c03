#!/usr/bin/env bash
# pictures.sh <program> <folder with the dictionaries> <folder for the pictures>: pictures of the program's windows on
# small and large screens, to be looked at before a change of a window lands.
set -euo pipefail
source "$(dirname "$0")/lib.sh"

# display paints the screen and still ends with 1.
paint_background() {
    display -window root -size 8x8 xc:'#808080' || true
    wait_until "a grey screen" screen_is_grey
}

screen_is_grey() {
    [[ $(import -window root -crop 1x1+0+0 txt:-) == *'#808080'* ]]
}

# Takes a picture when nothing moves any more: two in a row are the same.
take_picture() {
    import -window root "$temp/now.png"
    wait_until "a still screen" screen_is_still
    mv "$temp/now.png" "$pictures/$1-$size.png"
    echo "$pictures/$1-$size.png"
}

screen_is_still() {
    mv "$temp/now.png" "$temp/before.png"
    import -window root "$temp/now.png"
    compare -metric AE "$temp/before.png" "$temp/now.png" null: 2>/dev/null
}

another_window_is_in_front() {
    [[ -n $(title_in_front) && $(xdotool getactivewindow) != "$main_window" ]]
}

end_program() {
    kill -KILL "$program"
    wait "$program" 2>/dev/null || true
}

empty_main_window() {
    start_program
    take_picture main-window-empty
    end_program
}

main_window_in_use() {
    make_list "$lists/állatok és más.szs" dog:kutya cat:macska horse:ló "deer:őz, szarvas" bird:madár tree:fa "wood:fa, erdő" \
        apple:alma honey:méz egg:tojás bread:kenyér butter:vaj milk:tej "water:víz" "sky:ég, égbolt" "earth:föld" \
        "fire:tűz" "time:idő" "window:ablak" "knee:térd"
    start_program "$lists/állatok és más.szs"
    look_up light megvilágítás
    take_picture main-window
    end_program
}

# What the multiple choice says about a list of one pair.
message_about_too_few_pairs() {
    start_program
    add_apple
    press alt+f Right v
    wait_until "the message" another_window_is_in_front
    take_picture too-few-pairs
    end_program
}

binary=$(realpath "$1")
dictionaries=$(realpath "$2")
pictures=$(realpath "$3")
set_up_places /tmp/zimbora
for size in 1024x768 1920x1080 2560x1440; do
    start_screen "$size"
    paint_background
    empty_main_window
    main_window_in_use
    if [[ $size == 1024x768 ]]; then
        message_about_too_few_pairs
    fi
    end_children
done
