# shellcheck shell=bash disable=SC2034
# The mini window, for whatever needs the real program with it in use. Sourced after lib.sh.

readonly mini_title="Zimbora Angol-magyar szótár"

mini_file() {
    echo "$ZIMBORA_C/zbrmk/angol/kisablak.ini"
}

# keep_mini_window_at <left> <top> <mode>: what the last run has left, in twips.
keep_mini_window_at() {
    mkdir -p "$(dirname "$(mini_file)")"
    printf '% d \r\n% d \r\n% d \r\n' "$@" >"$(mini_file)"
}

# start_mini_window <left> <top>: the program, which opens the mini window at this place in pixels.
start_mini_window() {
    keep_mini_window_at $(($1 * 15)) $(($2 * 15)) 1
    launch_program
    wait_for_mini_window
    wait_until "the mini window in its place" mini_window_is_at "$1" "$2"
}

wait_for_mini_window() {
    wait_for_title "$mini_title"
    mini=$(xdotool getactivewindow)
}

# Sets X, Y, WIDTH and HEIGHT of the mini window.
measure_mini_window() {
    eval "$(xdotool getwindowgeometry --shell "$mini" | grep -E '^(X|Y|WIDTH|HEIGHT)=-?[0-9]+$')"
}

mini_window_is_at() {
    local X Y WIDTH HEIGHT
    measure_mini_window
    ((X == $1 && Y == $2))
}

# in_mini_window <left> <top>: sets x and y to the pixels on the screen of a place of the design, in twips. The controls
# are scaled by one ratio; they end at 3480 twips, 120 before the window's right edge.
in_mini_window() {
    local X Y WIDTH HEIGHT
    measure_mini_window
    x=$((X + $1 * (WIDTH * 15 - 120) / 3480 / 15))
    y=$((Y + $2 * (WIDTH * 15 - 120) / 3480 / 15))
}

readonly header_place="900 165"
readonly large_window_button="2700 4290"

click_in_mini_window() {
    local x y
    # shellcheck disable=SC2086  # a place is two words
    in_mini_window $1
    xdotool mousemove "$x" "$y" click 1
}

# Asks for what is selected, as the clipboard is the mini window's business.
typed_text_is() {
    press ctrl+a
    [[ $(timeout 5 xclip -o -selection primary 2>/dev/null) == "$1" ]]
}

has_focus() {
    [[ $(xdotool getactivewindow 2>/dev/null) == "$1" ]]
}

# A window of another program, which keeps what is typed into it in a file, beside the mini window.
open_other_window() {
    xterm -T "other program" -geometry 40x10+20+20 -e "cat >'$temp/typed'" 2>"$temp/xterm.log" &
    children+=($!)
    wait_for_title "other program"
    other=$(xdotool getactivewindow)
}

typed_is() {
    [[ $(<"$temp/typed") == "$1" ]]
}

# copy <text> [-t <kind>]
copy() {
    printf '%s' "$1" | xclip -i -selection clipboard "${@:2}" >/dev/null 2>&1
}
