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

short_list() {
    make_list "$lists/állatok.szs" dog:kutya "horse:ló, csődör" "deer:őz, szarvas" bird:madár
}

# Meanings of 200 letters, and the longest words that a dictionary has.
long_list() {
    local meaning="megkülönböztető jegy, ismertetőjel, elválasztó vonás, választóvonal, jellegzetes tulajdonság"
    meaning+=", megkülönböztetés, kitüntetés, rang, előkelőség, hírnév, kiválóság, különbségtétel, eltérés, más mivolt"
    make_list "$lists/hosszú szavak.szs" "antidisestablishmentarianism:$meaning" \
        "to draw a clear distinction between two things that look alike:$meaning" \
        "counterrevolutionaries:megszentségteleníthetetlenségeskedéseitekért $meaning" \
        "electroencephalographically:elektroenkefalográfiás vizsgálattal; $meaning" \
        "incomprehensibilities:összeegyeztethetetlenségek; $meaning"
}

# exercises_in_use <list> <file name's end>: every exercise in its midst.
exercises_in_use() {
    start_program "$1"
    practise t "Tanulás"
    take_picture "learning$2"
    press Escape
    wait_for_title "$(title_of_list "$1")"
    practise k "Kikérdezés"
    write "an answer that is bei"
    wait_for_text "an answer that is bei"
    press End
    take_picture "typed-quiz$2"
    press Escape
    wait_for_title "$(title_of_list "$1")"
    practise v "Választás"
    take_picture "multiple-choice$2"
}

# The last answer stays in its frame.
multiple_choice_at_its_end() {
    make_list "$lists/két szó.szs" dog:kutya dog:eb
    start_program "$lists/két szó.szs"
    practise v "Választás"
    press 1 Return 2 Return
    wait_for_title "$(title_of_exercise "$lists/két szó.szs szószedet")"
    wait_for_title "$(title_of_exercise "Választás")"
    take_picture multiple-choice-end
    press alt+f b
    wait_for_title "$(title_of_exercise "Választás Beállítások")"
    take_picture multiple-choice-settings
    end_program
}

exercises() {
    short_list
    exercises_in_use "$lists/állatok.szs" ""
    end_program
    long_list
    exercises_in_use "$lists/hosszú szavak.szs" -long
    end_program
    multiple_choice_at_its_end
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
    if [[ $size != 1920x1080 ]]; then
        exercises
    fi
    end_children
done
