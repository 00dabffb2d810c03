# shellcheck shell=bash disable=SC2034,SC2119,SC2120
# Shared by the whole-program tests and the pictures: a screen of its own with a window manager, a drive C, a home and a
# program folder of its own, the program in them, and what a user does with mouse and keys. Everything started here is
# ended, and every file made here removed, when the script ends.
#
# A test waits for a condition, never for a time: wait_until.

patience=${ZIMBORA_E2E_PATIENCE:-30} # seconds until a wait fails
readonly polling=0.05 # seconds between two looks

# set_up_places [<folder>]: with a folder of a known name, whose path is seen in a picture, in place of a new one.
set_up_places() {
    unset DISPLAY WAYLAND_DISPLAY SESSION_MANAGER DBUS_SESSION_BUS_ADDRESS QT_QPA_PLATFORM QT_QPA_PLATFORMTHEME \
        QT_STYLE_OVERRIDE QT_SCALE_FACTOR QT_FONT_DPI XDG_CURRENT_DESKTOP LANGUAGE
    # No dot in the name: a list in such a folder could not be saved.
    if (($#)); then
        mkdir "$1"
        temp=$1
    else
        temp=$(mktemp -d /tmp/zimbora_e2e_XXXXXX)
    fi
    trap tidy_up EXIT
    trap 'exit 1' INT TERM HUP
    export LC_ALL=C.UTF-8 HOME=$temp/home XDG_CONFIG_HOME=$temp/config XDG_DATA_HOME=$temp/data
    export XDG_CACHE_HOME=$temp/cache XDG_RUNTIME_DIR=$temp/runtime
    export ZIMBORA_C=$temp/c ZIMBORA_PROGRAM=$temp/program
    lists=$temp/lists
    mkdir -p "$HOME" "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME" "$ZIMBORA_C" "$ZIMBORA_PROGRAM" "$lists"
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    ln -s "$dictionaries"/{am,ma}.txt "$ZIMBORA_PROGRAM"
    cp -r "$dictionaries"/{hangok,zenemid,kavaro} "$ZIMBORA_PROGRAM"
    # The help document stands beside the program folder.
    cp -r "${dictionaries}kavaro" "${ZIMBORA_PROGRAM}kavaro"
    children=()
}

# bring_suggestions: what explains forms, offers words and finds phrases, which most tests do without.
bring_suggestions() {
    cp -r "$dictionaries/alakok" "$ZIMBORA_PROGRAM"
    cp "$dictionaries"/{am.gyk,ma.gyk,szavak.idx} "$ZIMBORA_PROGRAM"
}

end_children() {
    local child signal
    for ((child = ${#children[@]} - 1; child >= 0; child--)); do
        # The screen, which is the first, goes last and puts its things away.
        signal=KILL
        ((child > 0)) || signal=TERM
        kill -"$signal" "${children[child]}" 2>/dev/null || true
        wait "${children[child]}" 2>/dev/null || true
    done
    children=()
}

tidy_up() {
    local status=$?
    set +e
    if ((status != 0)); then
        show_what_was_seen
    fi
    end_children
    rm -rf "$temp"
    exit "$status"
}

show_what_was_seen() {
    local picture=${ZIMBORA_E2E_PICTURES:-/tmp}/zimbora_e2e_${name:-$$}.png
    echo "FAILED: ${name:-$0}"
    if [[ -n ${DISPLAY:-} ]] && import -window root "$picture" 2>/dev/null; then
        echo "The screen at that moment: $picture"
    fi
    if [[ -s $temp/program.log ]]; then
        echo "What the program wrote:"
        cat "$temp/program.log"
    fi
} >&2

fail() {
    echo "$*" >&2
    exit 1
}

# wait_until <what is awaited> <command>...
wait_until() {
    within_patience "${@:2}" || fail "Not within $patience seconds: $1"
}

within_patience() {
    local end=$((SECONDS + patience))
    until "$@"; do
        ((SECONDS < end)) || return 1
        sleep "$polling"
    done
}

# start_screen [<width>x<height>]. Without -noreset a server starts anew when its last client leaves, and a client that
# comes at that moment is lost.
start_screen() {
    rm -f "$temp/display"
    Xvfb -displayfd 3 -noreset -screen 0 "${1:-1024x768}x24" -nolisten tcp 3>"$temp/display" \
        >"$temp/screen.log" 2>&1 &
    children+=($!)
    wait_until "a screen" test -s "$temp/display"
    DISPLAY=:$(<"$temp/display")
    export DISPLAY
    openbox >"$temp/openbox.log" 2>&1 &
    children+=($!)
    wait_until "a window manager" window_manager_is_there
}

window_manager_is_there() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# The program

# launch_program [<argument>...]: for a start at which something else than the main window comes first.
launch_program() {
    "$binary" "$@" >"$temp/program.log" 2>&1 &
    program=$!
    children+=("$program")
}

start_program() {
    launch_program "$@"
    wait_for_main_window
}

wait_for_main_window() {
    wait_until "the main window in front" main_window_is_in_front
    main_window=$(xdotool getactivewindow)
}

# The titles of other windows begin like that, too, and end with their captions.
main_window_is_in_front() {
    [[ $(title_in_front) == "Zimbora Angol-Magyar "*" szószedet" ]]
}

# A window that the window manager has put in front takes keys from the moment on when it has the focus, too.
title_in_front() {
    local window
    window=$(xdotool getactivewindow 2>/dev/null) || return
    [[ $(xdotool getwindowfocus 2>/dev/null) == "$window" ]] || return
    xdotool getwindowname "$window" 2>/dev/null
}

title_in_front_is() {
    [[ $(title_in_front) == "$1" ]]
}

wait_for_title() {
    wait_until "a window \"$1\" in front" title_in_front_is "$1"
}

# practise <keys of the menu item> <caption of the exercise>: opens an exercise from the main window's menu.
practise() {
    # shellcheck disable=SC2086  # several keys are several words
    choose alt+f Right $1
    wait_for_title "$(title_of_exercise "$2")"
}

title_of_exercise() {
    echo "Zimbora Angol-Magyar Szótár - $1"
}

program_has_ended() {
    ! kill -0 "$program" 2>/dev/null
}

# The title of the main window while the word list `$1` is open.
title_of_list() {
    echo "Zimbora Angol-Magyar szótár - $1 szószedet"
}

expect_end_with_success() {
    local status=0
    wait_until "the end of the program" program_has_ended
    wait "$program" || status=$?
    ((status == 0)) || fail "The program ended with code $status."
}

# Two items share the key K, which goes from one to the other.
readonly to_quiz="k Return"
readonly to_puzzle="k k Return"

# Mouse and keys

# Where the controls stand, in twips of the design: a place inside each.
readonly search_box="2045 610"
readonly first_meaning="6075 510"
readonly from_english="8900 610"
readonly from_hungarian="8900 1030"
readonly mini_window_button="9300 1600"
readonly first_pair="2045 4170"
readonly delete_button="9330 4270"
readonly english_text="2045 7160"
readonly hungarian_text="6075 7160"

# Sets x and y to the pixels of a place of the design in the main window, and word_list_shown to whether the window is
# as high as it is with pairs. The controls are scaled by one ratio, which follows from the window's width: they end at
# 10480 twips, 120 before its edge. The menu bar takes what the window is higher than its inner surface, which ends 120
# below "Ok", or below "Módosít" when there are pairs.
find_place() {
    local WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$main_window" | grep -E '^(WIDTH|HEIGHT)=[0-9]+$')"
    read -r x y word_list_shown < <(awk -v w="$WIDTH" -v h="$HEIGHT" -v x="$1" -v y="$2" 'BEGIN {
        ratio = (w * 15 - 120) / 10480
        without_pairs = int((3860 * ratio + 120) / 15 + 0.5)
        with_pairs = int((7370 * ratio + 120) / 15 + 0.5)
        shown = h > with_pairs
        menu_bar = h - (shown ? with_pairs : without_pairs)
        printf "%d %d %d\n", x * ratio / 15 + 0.5, menu_bar + y * ratio / 15 + 0.5, shown
    }')
}

# click "<place>" [<how often>]
click() {
    local x y word_list_shown
    # shellcheck disable=SC2086  # a place is two words
    find_place $1
    xdotool mousemove --window "$main_window" "$x" "$y" click --repeat "${2:-1}" --delay 50 1
}

double_click() {
    click "$1" 2
}

word_list_is_shown() {
    local x y word_list_shown
    find_place 0 0
    ((word_list_shown))
}

press() {
    xdotool key "$@"
}

# choose <keys of a menu> <key of the item>...: the menu is awaited, for a window that has just come to the front may not
# take keys yet.
choose() {
    local windows_before
    windows_before=$(windows_on_the_screen)
    wait_until "the menu of $1" opens_menu "$1"
    press "${@:2}"
}

opens_menu() {
    local patience=2
    press "$1"
    within_patience there_is_a_new_window
}

there_is_a_new_window() {
    [[ -n $(comm -13 <(echo "$windows_before") <(windows_on_the_screen)) ]]
}

windows_on_the_screen() {
    xdotool search --onlyvisible --maxdepth 1 --name '.*' 2>/dev/null | sort
}

write() {
    xdotool type --delay 20 -- "$1"
}

# Through the clipboard, for letters that the keyboard lacks.
paste() {
    printf '%s' "$1" | xclip -i -selection clipboard >/dev/null 2>&1
    press ctrl+v
}

forget_clipboard() {
    printf 'nothing was copied' | xclip -i -selection clipboard >/dev/null 2>&1
}

copied_is() {
    press "${@:2}" ctrl+c
    [[ $(timeout 5 xclip -o -selection clipboard 2>/dev/null) == "$1" ]]
}

# Waits until the selected item of the list that has the focus is this text.
wait_for_item() {
    forget_clipboard
    wait_until "the selected item \"$1\"" copied_is "$1"
}

# tab_to <link>: goes from control to control, and from link to link, until this link has the focus.
tab_to() {
    wait_until "the link \"$1\" by the key Tab" tab_reaches "$1"
}

tab_reaches() {
    local patience=1
    forget_clipboard
    press Tab
    within_patience copied_is "$1"
}

# Waits until the text box that has the focus holds this text; leaves all of it selected.
wait_for_text() {
    forget_clipboard
    wait_until "the text \"$1\"" copied_is "$1" ctrl+a
}

expect_selected_pair() {
    wait_until "the word list in sight" word_list_is_shown
    click "$english_text"
    wait_for_text "$1"
    click "$hungarian_text"
    wait_for_text "$2"
}

# look_up <word> <meaning>: writes a word into the search box, which has the focus, and goes to the meanings when the
# first of them is there.
look_up() {
    write "$1"
    wait_for_text "$1"
    press Tab Tab Tab
    wait_for_item "$2"
}

add_apple() {
    look_up apple alma
    press Return
    wait_until "the word list in sight" word_list_is_shown
}

# Gives the file dialog "$1" the name "$2".
name_file() {
    wait_for_title "$1"
    press ctrl+a
    paste "$2"
    wait_for_text "$2"
    press Return
}

save_as() {
    choose alt+f m
    name_file "Mentés másként" "$1"
    wait_for_title "$(title_of_list "$1")"
}

# Files

# make_list <file> <line>...: a word list as the program writes it.
make_list() {
    bytes_of_lines "${@:2}" >"$1"
}

bytes_of_lines() {
    printf '%s\r\n' "$@" | iconv -f UTF-8 -t WINDOWS-1250
}

# expect_lines <file> <line>...: waits until the file holds exactly these lines.
expect_lines() {
    within_patience holds_lines "$@" && return
    od -c "$1" >&2 || true
    fail "$1 does not hold exactly these lines: ${*:2}"
}

holds_lines() {
    bytes_of_lines "${@:2}" | cmp -s - "$1"
}

expect_no_list_written() {
    local found
    found=$(find "$temp" -name '*.szs')
    [[ -z $found ]] || fail "There should be no word list: $found"
}

# run_tests <program> <folder with the dictionaries> [<test>...]: runs the tests of the calling script, each in a process
# of its own; all when none is named.
run_tests() {
    binary=$(realpath "$1")
    dictionaries=$(realpath "$2")
    run_prepared_tests set_up_places "$@"
}

# run_prepared_tests <command that prepares one> <first argument of the script> <second> [<test>...]
run_prepared_tests() {
    local prepare=$1 given=("${@:2:2}") all failed=0 one
    shift 3
    if (($# == 1)); then
        name=$1
        declare -F "$name" >/dev/null || fail "No such test: $name"
        "$prepare"
        start_screen
        "$name"
        return
    fi
    mapfile -t all < <(declare -F | sed -n 's/^declare -f \(test_.*\)/\1/p')
    for one in "${@:-${all[@]}}"; do
        "$0" "${given[@]}" "$one" && echo "ok $one" || failed=1
    done
    return "$failed"
}
