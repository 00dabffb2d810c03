#!/usr/bin/env bash
# Takes the pictures that the documents and the help show, each of one window with its frame, without asking anybody.
#
#   pictures.sh --list
#       The files of all pictures, one a line, as seen from the folder of the sources.
#   pictures.sh <program> <folder with the dictionaries> <folder for the pictures> [<picture>...]
#       Takes those that are named without ".png", or all. Of a finished build, into the sources:
#       tests/e2e/pictures.sh build/dev/bin/zimbora build/dev/program resources/help/kepek
#       ZIMBORA_SCREEN=2560x1440 takes them on a screen of another size than 1024x768, to be looked at.
#
# Every function whose name begins with "picture_" takes the picture of that name, with "-" for each "_".
set -euo pipefail

pictures_of_all() {
    declare -F | sed -n 's/^declare -f picture_//p' | tr _ -
}

# Twenty pairs.
open_long_list() {
    make_list "$lists/mindenféle.szs" "deer:őz, szarvas" dog:kutya cat:macska horse:ló bird:madár tree:fa "wood:fa, erdő" \
        apple:alma honey:méz egg:tojás bread:kenyér butter:vaj milk:tej "water:víz" "sky:ég, égbolt" "earth:föld" \
        "fire:tűz" "time:idő" "window:ablak" "knee:térd"
    start_program "$lists/mindenféle.szs"
}

picture_foablak() {
    open_long_list
    write light
    wait_for_text light
    press End
    take_picture
}

# look_up_alone <from which language> <word>: a word in a program without a list.
look_up_alone() {
    start_program
    if [[ $1 == hungarian ]]; then
        click "$from_hungarian"
        paste "$2"
    else
        write "$2"
    fi
    wait_for_text "$2"
    press End
}

# Words of which the first meaning matters most.
picture_szo_book() { look_up_alone english book; take_picture; }
picture_szo_table() { look_up_alone english table; take_picture; }
picture_szo_light() { look_up_alone english light; take_picture; }
picture_szo_run() { look_up_alone english run; take_picture; }
picture_szo_good() { look_up_alone english good; take_picture; }
picture_szo_because() { look_up_alone english because; take_picture; }
picture_szo_computer() { look_up_alone english computer; take_picture; }
picture_szo_jo() { look_up_alone hungarian jó; take_picture; }
picture_szo_nap() { look_up_alone hungarian nap; take_picture; }
picture_szo_var() { look_up_alone hungarian vár; take_picture; }

# The explanation comes when it has been found: a still screen alone does not tell that it is there.
picture_alak() {
    start_program
    click "$from_hungarian"
    paste házaimban
    wait_for_text házaimban
    tab_to ház
    press ctrl+l
    wait_for_text házaimban
    press End
    take_picture
}

picture_kifejezesek() {
    start_program
    press F3
    wait_for_title "Kifejezések"
    write "turn off"
    wait_for_text "turn off"
    press Down
    wait_for_item $'to turn off\telzár'
    take_picture
}

picture_tanulas() {
    open_long_list
    practise t "Tanulás"
    take_picture
}

picture_kikerdezes() {
    open_long_list
    practise "$to_quiz" "Kikérdezés"
    take_picture
}

picture_valasztas() {
    open_long_list
    practise v "Választás"
    take_picture
}

picture_valasztas_beallitasok() {
    open_long_list
    practise v "Választás"
    choose alt+f b
    wait_for_title "$(title_of_exercise "Választás Beállítások")"
    take_picture
}

# From English, which holds from the next puzzle on.
picture_kirako() {
    make_list "$lists/szőlő.szs" grape:szőlő
    start_program "$lists/szőlő.szs"
    practise "$to_puzzle" "Kirakó"
    choose alt+f b
    wait_for_title "$(title_of_exercise "Kirakó - Beállítások")"
    press Up Return
    wait_for_title "$(title_of_exercise "Kirakó")"
    press Escape
    wait_for_main_window
    practise "$to_puzzle" "Kirakó"
    take_picture
}

# One card is turned up: two might be a pair, and go.
picture_memoria() {
    open_long_list
    practise m "Memória"
    press Right space
    take_picture
}

picture_memoria_beallitasok() {
    open_long_list
    practise m "Memória"
    choose alt+f b
    wait_for_title "$(title_of_exercise "Memória - Beállítások")"
    take_picture
}

picture_kisablak() {
    start_mini_window 400 150
    write light
    wait_until "the typed word" typed_text_is light
    press End
    take_picture
}

# No print server is asked.
picture_nyomtatas() {
    export CUPS_SERVER=$temp/no-print-server
    open_long_list
    open_print_settings
    take_picture
}

picture_zene() {
    start_program
    choose alt+b z
    wait_for_title "$(title_of_exercise "Zenei beállítások")"
    take_picture
}

# Two sounds for a congratulation.
picture_hangok() {
    start_program
    choose alt+b h
    wait_for_title "$(title_of_exercise "Kavaro Hangbeállítások")"
    press Down Down Tab Tab Tab Tab space space
    take_picture
}

picture_nevjegy() {
    start_program
    choose alt+i n
    wait_for_title "About Zimbora"
    take_picture
}

picture_sugo() {
    start_program
    press F1
    # A page gives the window its title when it has come.
    wait_for_title "Zimbora súgó"
    take_picture
}

# Takes the window in front, with its frame, when nothing moves any more: two looks in a row are the same.
take_picture() {
    import -window root "$temp/now.png"
    wait_until "a still screen" screen_is_still
    convert "$temp/now.png" -crop "$(place_in_front)" +repage -strip +dither -colors 128 "PNG8:$pictures/$picture.png"
    echo "$pictures/$picture.png"
}

screen_is_still() {
    mv "$temp/now.png" "$temp/before.png"
    import -window root "$temp/now.png"
    compare -metric AE "$temp/before.png" "$temp/now.png" null: 2>/dev/null
}

# Where the window in front stands with its frame: <width>x<height>+<left>+<top>.
place_in_front() {
    local window frame
    window=$(xdotool getactivewindow)
    # Left, right, top, bottom; a window without a frame may tell none.
    frame=$(xprop -id "$window" _NET_FRAME_EXTENTS | sed -n 's/.* = //p' | tr -d ,)
    xwininfo -id "$window" | awk -v frame="${frame:-0 0 0 0}" '
        BEGIN { split(frame, at, " ") }
        /Absolute upper-left X/ { x = $NF }
        /Absolute upper-left Y/ { y = $NF }
        /Width:/ { w = $NF }
        /Height:/ { h = $NF }
        END { printf "%dx%d+%d+%d", w + at[1] + at[2], h + at[3] + at[4], x - at[1], y - at[3] }'
}

# Each on a screen and in a home of its own.
take() {
    picture=$1
    declare -F "picture_${picture//-/_}" >/dev/null || fail "No such picture: $picture"
    (
        # Its path is seen in some pictures.
        set_up_places /tmp/zimbora
        bring_suggestions
        start_screen "${ZIMBORA_SCREEN:-1024x768}"
        "picture_${picture//-/_}"
    )
}

if [[ ${1:-} == --list ]]; then
    pictures_of_all | sed 's|.*|resources/help/kepek/&.png|'
    exit
fi

source "$(dirname "$0")/lib.sh"
source "$(dirname "$0")/mini_window.sh"
source "$(dirname "$0")/print_lib.sh"

binary=$(realpath "$1")
dictionaries=$(realpath "$2")
pictures=$(realpath "$3")
shift 3
(($#)) || mapfile -t all < <(pictures_of_all)
for one in "${@:-${all[@]}}"; do
    take "$one"
done
