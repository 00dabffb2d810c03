#!/usr/bin/env bash
# The puzzle and the memory game are played to the end, with the mouse alone and with the keyboard alone.
set -euo pipefail
source "$(dirname "$0")/lib.sh"
source "$(dirname "$0")/exercise_lib.sh"

# The puzzle

# Where "Ok" stands: left, top, width and height in twips of the design, whose controls end at 9880 and 6660.
readonly ok_button="6900 6020 2980 640"
readonly puzzle_end="9880 6660"
# Of nothing else in the window.
readonly tile_colour="#fffdf5"
# The edge of a tile is up to so many pixels wide, more when it has the focus.
readonly tile_edge=4

left=() top=() width=() height=()

# Sets left, top, width and height to the pixels of the faces of two tiles, the left one first; false when two are not
# seen apart. The inner of a letter is no tile.
find_tiles() {
    take_look tiles
    mapfile -t found < <(convert "$temp/tiles.png" -fill black +opaque "$tile_colour" -fill white -opaque "$tile_colour" \
        -define connected-components:verbose=true -define connected-components:area-threshold=600 \
        -connected-components 4 null: |
        sed -nE 's/^ *[0-9]+: ([0-9]+)x([0-9]+)\+([0-9]+)\+([0-9]+) .*(gray\(255\)|rgb\(255,255,255\))$/\3 \4 \1 \2/p' |
        sort -n)
    ((${#found[@]} == 2)) || return 1
    read -r "left[0]" "top[0]" "width[0]" "height[0]" <<<"${found[0]}"
    read -r "left[1]" "top[1]" "width[1]" "height[1]" <<<"${found[1]}"
}

tiles_are_closed_up() {
    find_tiles && is_near "${top[0]}" "${top[1]}" && ((left[1] - left[0] - width[0] <= 2 * tile_edge))
}

is_near() {
    (($1 - $2 <= tile_edge && $2 - $1 <= tile_edge))
}

# tile_is_at <left> <top>
tile_is_at() {
    find_tiles || return 1
    { is_near "$1" "${left[0]}" && is_near "$2" "${top[0]}"; } || { is_near "$1" "${left[1]}" && is_near "$2" "${top[1]}"; }
}

# drag_tile <left or right: 0 or 1> <x> <y>: with the left mouse button, by the tile's middle, this far.
drag_tile() {
    local x=$((left[$1] + width[$1] / 2)) y=$((top[$1] + height[$1] / 2))
    local to_left=$((left[$1] + $2)) to_top=$((top[$1] + $3)) puzzle
    puzzle=$(xdotool getactivewindow)
    xdotool mousemove --window "$puzzle" "$x" "$y" mousedown 1 \
        mousemove --window "$puzzle" $((x + $2 / 2)) $((y + $3 / 2)) \
        mousemove --window "$puzzle" $((x + $2)) $((y + $3)) mouseup 1
    wait_until "the tile at $to_left,$to_top" tile_is_at "$to_left" "$to_top"
}

# With a click on the frame beside them.
close_tiles_up() {
    wait_until "two tiles" find_tiles
    tiles_are_closed_up && return
    local WIDTH HEIGHT x y w h
    # shellcheck disable=SC2086  # a place is four words
    find_place_in_exercise $puzzle_end 120 2300 9760 3600
    # Of five places, two tiles leave some bare.
    local part
    for part in 1 3 5 7 9; do
        if is_bare $((x + w * part / 10)) $((y + h / 2)); then
            click_in_exercise $((x + w * part / 10)) $((y + h / 2))
            break
        fi
    done
    wait_until "the tiles closed up" tiles_are_closed_up
}

# is_bare <x> <y>: no tile is near.
is_bare() {
    local i
    for i in 0 1; do
        (($1 < left[i] - tile_edge || $1 > left[i] + width[i] + tile_edge || $2 < top[i] - tile_edge \
            || $2 > top[i] + height[i] + tile_edge)) || return 1
    done
}

# Drags the left tile of a row to the right of the other one, or that one to its left where there is more room.
exchange_tiles() {
    local x y w h
    # shellcheck disable=SC2086  # a place is four words
    find_place_in_exercise $puzzle_end 120 2300 9760 3600
    if ((left[1] < x + w / 2)); then
        drag_tile 0 $((width[0] + width[1] + 30)) 7
    else
        drag_tile 1 $((-width[0] - width[1] - 30)) 7
    fi
}

click_ok() {
    local x y w h
    # shellcheck disable=SC2086  # a place is four words
    find_place_in_exercise $puzzle_end $ok_button
    click_in_exercise $((x + w / 2)) $((y + h / 2))
}

# After a message: the puzzle asks on or again, or has closed.
puzzle_or_main_window_is_in_front() {
    title_in_front_is "$(title_of_exercise "Kirakó")" || title_in_front_is "$(title_of_list "$list")"
}

wait_for_end_of_message() {
    wait_for_message
    wait_until "the puzzle or the main window" puzzle_or_main_window_is_in_front
}

puzzle_has_closed() {
    title_in_front_is "$(title_of_list "$list")"
}

test_the_puzzle_is_solved_by_dragging_the_tiles() {
    # Given two words of two letters
    start_with_list "ox:ökör" "we:mi mindannyian"
    practise "$to_puzzle" "Kirakó"
    # When each is tried in the one order and, if that is wrong, in the other
    local checks=0
    until puzzle_has_closed; do
        ((++checks <= 4)) || fail "Two orders of two words were not enough."
        close_tiles_up
        exchange_tiles
        click_ok
        wait_for_end_of_message
    done
    # Then
    expect_main_window_with_unchanged_list ox ökör
}

# press_often <how often> <key>
press_often() {
    local keys=() i
    for ((i = 0; i < $1; i++)); do
        keys+=("$2")
    done
    xdotool key --delay 2 "${keys[@]}"
}

test_the_puzzle_is_solved_by_the_keyboard_alone() {
    # Given
    start_with_list "ox:ökör" "we:mi mindannyian"
    practise "$to_puzzle" "Kirakó"
    local words=0
    until puzzle_has_closed; do
        ((++words <= 2)) || fail "Both orders of two words were wrong."
        # When both tiles are moved to the left edge, and the second of them a little back
        wait_until "two tiles" find_tiles
        press_often 100 ctrl+Left
        press Tab
        press_often 100 ctrl+Left
        press ctrl+Right Return
        wait_for_end_of_message
        # That order was wrong when the tiles lie as they were closed up.
        if ! puzzle_has_closed && tiles_are_closed_up; then
            press_often 20 ctrl+Left
            press shift+Tab ctrl+Right Return
            wait_for_end_of_message
        fi
    done
    # Then
    expect_main_window_with_unchanged_list ox ökör
}

# The memory game

# Any two cards belong together.
start_memory_with_taxis() {
    start_with_list taxi:taxi taxi:taxi taxi:taxi taxi:taxi taxi:taxi taxi:taxi taxi:taxi
    practise m "Memória"
    take_look dealt
}

# find_card <number>: sets x and y to the pixels of its middle. The board has columns of four cards.
find_card() {
    local w h
    local column=$(($1 / 4)) row=$(($1 % 4))
    find_place_in_exercise 5445 4995 $((120 + column * 1815)) $((600 + row * 975)) 1695 855
    x=$((x + w / 2)) y=$((y + h / 2))
}

# True when the window's background is seen in the card's place.
card_is_gone() {
    local x y
    find_card "$1"
    take_look board
    [[ $(colour_at "$x" "$y") == "$(colour_at 3 "$y")" ]]
}

colour_at() {
    convert "$temp/board.png" -format "%[pixel:p{$1,$2}]" info:
}

wait_for_found_pair() {
    wait_until "the cards $1 and $2 gone" card_is_gone "$2"
    card_is_gone "$1" || fail "Card $1 should have gone before card $2."
}

expect_message_new_deal_and_main_window() {
    wait_for_message
    wait_for_exercise "Memória"
    wait_until "a new deal" looks_like dealt
    press Escape
    expect_main_window_with_unchanged_list taxi taxi
}

test_the_memory_game_is_won_with_the_mouse() {
    # Given
    start_memory_with_taxis
    # When
    local card x y
    for card in 0 1 2 3 4 5 6 7 8 9 10 11; do
        find_card "$card"
        click_in_exercise "$x" "$y"
        if ((card % 2 && card < 11)); then
            wait_for_found_pair $((card - 1)) "$card"
        fi
    done
    # Then
    expect_message_new_deal_and_main_window
}

test_the_memory_game_is_won_by_the_keyboard_alone() {
    # Given
    start_memory_with_taxis
    # When
    local card
    for card in 1 3 5 7 9; do
        press space Down space
        # The focus goes to the next card that is left.
        wait_for_found_pair $((card - 1)) "$card"
    done
    press space Down space
    # Then
    expect_message_new_deal_and_main_window
}

run_tests "$@"
