#!/usr/bin/env bash
# pictures.sh <program> <folder with the dictionaries> <folder for the pictures> [<scene>...]: pictures of the program's
# windows on small and large screens, to be looked at before a change of a window lands; of all scenes when none is named.
set -euo pipefail
source "$(dirname "$0")/lib.sh"
source "$(dirname "$0")/mini_window.sh"
source "$(dirname "$0")/print_lib.sh"

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
    wait_for_still_screen
    mv "$temp/now.png" "$pictures/$1-$size.png"
    echo "$pictures/$1-$size.png"
}

wait_for_still_screen() {
    import -window root "$temp/now.png"
    wait_until "a still screen" screen_is_still
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
    practise "$to_quiz" "Kikérdezés"
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

puzzle_at() {
    start_program "$1"
    practise "$to_puzzle" "Kirakó"
    take_picture "puzzle$2"
}

puzzle() {
    short_list
    puzzle_at "$lists/állatok.szs" ""
    # The first tile has the focus.
    press ctrl+Right ctrl+Right ctrl+Down Right
    take_picture puzzle-in-use
    press space
    take_picture puzzle-closed-up
    press alt+f b
    wait_for_title "$(title_of_exercise "Kirakó - Beállítások")"
    press Up Return
    wait_for_title "$(title_of_exercise "Kirakó")"
    press alt+f j
    end_program
    long_list
    puzzle_at "$lists/hosszú szavak.szs" -long
    end_program
}

memory() {
    make_list "$lists/memória.szs" dog:kutya cat:macska horse:ló "deer:őz, szarvas" bird:madár tree:fa "wood:fa, erdő" \
        "to look forward to:előre örül valaminek" honey:méz egg:tojás bread:kenyér butter:vaj milk:tej water:víz \
        "sky:ég, égbolt" earth:föld fire:tűz time:idő window:ablak knee:térd
    start_program "$lists/memória.szs"
    practise m "Memória"
    take_picture memory
    press space Right Down space
    take_picture memory-in-use
    press alt+f b
    wait_for_title "$(title_of_exercise "Memória - Beállítások")"
    take_picture memory-settings
    press Down Down Down Return
    wait_for_title "$(title_of_exercise "Memória")"
    press space Right space
    take_picture memory-36
    end_program
}

# The settings, and a page of each layout as it will come out. No print server is asked.
printing() {
    local kind names=(list pairs cards)
    export CUPS_SERVER=$temp/no-print-server
    make_list "$lists/szavak.szs" dog:kutya cat:macska "horse:ló, csődör" "deer:őz, szarvas" bird:madár tree:fa "wood:fa, erdő" \
        honey:méz egg:tojás bread:kenyér butter:vaj milk:tej water:víz "sky:ég, égbolt" earth:föld fire:tűz time:idő
    start_program "$lists/szavak.szs"
    for kind in 0 1 2; do
        open_print_settings
        choose_kind "$kind"
        ((kind > 0)) || take_picture print-settings
        press alt+k
        wait_for_title "$(title_of_exercise "Nyomtatási kép")"
        take_picture "print-preview-${names[kind]}"
        press Escape
        wait_for_title "$(title_of_exercise "Szószedet nyomtatása")"
        press Escape
        wait_for_main_window
    done
    end_program
}

# Over the window of another program.
mini_window() {
    xterm -T "other program" -geometry 60x20+100+100 -e cat 2>"$temp/xterm.log" &
    local other=$!
    wait_for_title "other program"
    start_mini_window 400 150
    take_picture mini-window-empty
    write light
    wait_until "the typed word" typed_text_is light
    press End
    take_picture mini-window
    end_program
    kill "$other"
    rm "$(mini_file)"
}

about_box() {
    start_program
    press alt+i n
    wait_for_title "About Zimbora"
    take_picture about-box
    press alt+s
    wait_for_title "$(title_of_exercise Rendszeradatok)"
    take_picture text-window
    end_program
}

sound_settings() {
    start_program
    press alt+b h
    wait_for_title "$(title_of_exercise "Kavaro Hangbeállítások")"
    # Three sounds for a congratulation, one for a right answer.
    press Down Down Tab Tab Tab Tab space
    take_picture sound-settings
    end_program
}

music_settings() {
    start_program
    press alt+b z
    wait_for_title "$(title_of_exercise "Zenei beállítások")"
    take_picture music-settings
    end_program
}

print_settings() {
    make_list "$lists/állatok.szs" dog:kutya cat:macska horse:ló "deer:őz, szarvas" bird:madár
    start_program "$lists/állatok.szs"
    press ctrl+p
    wait_for_title "$(title_of_exercise "Szószedet nyomtatása")"
    take_picture print-settings
    press alt+k
    wait_for_title "$(title_of_exercise "Nyomtatási kép")"
    take_picture print-preview
    end_program
}

# One page of each layout, as it comes out.
printed_pages() {
    local kinds=(list pair card) kind
    make_list "$lists/állatok.szs" dog:kutya cat:macska horse:ló "deer:őz, szarvas" bird:madár "goat:kecske" "frog:béka"
    start_program "$lists/állatok.szs"
    for kind in 0 1 2; do
        open_print_settings
        choose_kind "$kind"
        print_into_file "$lists/${kinds[kind]}.pdf"
        wait_for_title "$(title_of_list "$lists/állatok.szs")"
        pdftoppm -r 60 -f 1 -l 1 -png -singlefile "$lists/${kinds[kind]}.pdf" "$pictures/printed-${kinds[kind]}"
        echo "$pictures/printed-${kinds[kind]}.png"
    done
    end_program
}

# What the help viewer says about an address that it does not follow.
help_and_timed_message() {
    start_program
    press F1
    wait_until "the help" another_window_is_in_front
    # A page that has come writes its own address.
    wait_for_still_screen
    take_picture help
    press alt+a
    write "mailto:nobody"
    press Return
    wait_for_title "$(title_of_exercise Üzenet)"
    take_picture timed-text-window
    end_program
}

# The very first start, of a program that lies outside its build folder.
splash() {
    cp "$binary" "$temp/zimbora"
    env -u ZIMBORA_PROGRAM "$temp/zimbora" >"$temp/program.log" 2>&1 &
    program=$!
    children+=("$program")
    wait_for_title "Zimbora"
    take_picture splash
    end_program
    rm -r "$HOME"
    mkdir "$HOME"
}

binary=$(realpath "$1")
dictionaries=$(realpath "$2")
pictures=$(realpath "$3")
scenes=("${@:4}")
set_up_places /tmp/zimbora

# wanted <scene>
wanted() {
    ((${#scenes[@]} == 0)) || [[ " ${scenes[*]} " == *" $1 "* ]]
}

# scene <function> [<screen>...]: on every screen when none is named.
scene() {
    if wanted "$1" && { (($# == 1)) || [[ " ${*:2} " == *" $size "* ]]; }; then
        "$1"
    fi
}

for size in 1024x768 1920x1080 2560x1440; do
    start_screen "$size"
    paint_background
    scene empty_main_window
    scene main_window_in_use
    scene message_about_too_few_pairs 1024x768
    scene exercises 1024x768 2560x1440
    scene puzzle 1024x768 2560x1440
    scene memory 1024x768 2560x1440
    scene printing 1024x768 2560x1440
    scene mini_window 1024x768 2560x1440
    scene about_box 1024x768 2560x1440
    scene help_and_timed_message 1024x768 2560x1440
    scene sound_settings 1024x768 2560x1440
    scene music_settings 1024x768 2560x1440
    scene print_settings 1024x768 2560x1440
    scene printed_pages 1024x768
    scene splash 1024x768 2560x1440
    end_children
done
