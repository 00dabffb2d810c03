#!/usr/bin/env bash
# The mini window beside other programs: the clipboard, the focus, the windows of others, its place.
set -euo pipefail
source "$(dirname "$0")/lib.sh"
source "$(dirname "$0")/mini_window.sh"

# Of the mini window, in pixels; the window of another program has room beside it.
readonly place=(600 150)

expect_mini_file() {
    wait_until "a file with $*" mini_file_holds "$@"
}

mini_file_holds() {
    printf '% d \r\n% d \r\n% d \r\n' "$@" | cmp -s - "$(mini_file)"
}

# The meanings of the selected hit as they are seen on the screen: the same with and without the focus, and however far
# the hits are scrolled.
take_lookup() {
    local x y left top
    in_mini_window 0 2740
    left=$x top=$y
    in_mini_window 3560 4040
    import -window root -crop "$((x - left))x$((y - top))+$left+$top" +repage "$temp/$1.png"
}

looks_like() {
    take_lookup now
    compare -metric AE "$temp/$1.png" "$temp/now.png" null: 2>/dev/null
}

looks_other_than() {
    ! looks_like "$1"
}

wait_for_lookup() {
    wait_until "the hits of \"$1\"" looks_like "$1"
}

# know_lookup <word>...: a run of the program in which each word is typed; keeps a picture of what is found, with the
# mini window in the same place.
know_lookup() {
    local word
    start_mini_window "${place[@]}"
    for word in "$@"; do
        press ctrl+a
        write "$word"
        wait_until "the typed text \"$word\"" typed_text_is "$word"
        take_lookup now
        wait_until "a still picture of \"$word\"" lookup_is_still
        mv "$temp/now.png" "$temp/$word.png"
    done
    end_program
}

lookup_is_still() {
    mv "$temp/now.png" "$temp/before.png"
    take_lookup now
    compare -metric AE "$temp/before.png" "$temp/now.png" null: 2>/dev/null
}

end_program() {
    kill -KILL "$program"
    wait "$program" 2>/dev/null || true
}

# own_clipboard <argument of the owner>...: its words go to $temp/owner.log.
own_clipboard() {
    rm -f "$temp/owner.log"
    "$(dirname "$binary")/clipboard_owner" "$@" >"$temp/owner.log" 2>"$temp/owner-errors.log" &
    owner=$!
    children+=("$owner")
    wait_until "an owner of the clipboard" owner_said copied
}

owner_said() {
    grep -qxF "$1" "$temp/owner.log" 2>/dev/null
}

test_a_copied_word_is_looked_up_while_another_window_keeps_the_focus_and_what_is_typed() {
    # Given
    know_lookup apple house
    start_mini_window "${place[@]}"
    open_other_window
    # When
    write "before "
    copy apple
    write "meanwhile "
    wait_for_lookup apple
    copy "  HOUSE "
    wait_for_lookup house
    write after
    press Return
    # Then
    wait_until "the typed letters" typed_is "before meanwhile after"
    has_focus "$other" || fail "The other window has lost the focus."
}

test_a_copied_line_is_looked_up_without_its_end_and_quotes_and_a_blank_one_empties_the_window() {
    # Given
    know_lookup apple
    start_mini_window "${place[@]}"
    take_lookup nothing
    # When
    copy $'\u201eApple\u201d\r\n'
    # Then
    wait_for_lookup apple
    # When
    copy $' \n'
    # Then
    wait_for_lookup nothing
}

test_texts_that_are_offered_as_other_kinds_are_looked_up() {
    # Given
    know_lookup apple house dog
    start_mini_window "${place[@]}"
    # When
    copy apple -t STRING
    # Then
    wait_for_lookup apple
    # When
    copy house -t text/plain
    # Then
    wait_for_lookup house
    # When
    copy dog -t TEXT
    # Then
    wait_for_lookup dog
}

# The window that has the focus covers the screen.
open_full_screen_window() {
    xterm -fullscreen -bg "$blue" -fg "$blue" -T "full screen" -e cat 2>"$temp/xterm.log" &
    children+=($!)
    wait_for_title "full screen"
    other=$(xdotool getactivewindow)
    wait_until "a full screen" covers_screen "$other"
}

readonly blue="#123456"

covers_screen() {
    [[ $(xprop -id "$1" _NET_WM_STATE) == *_NET_WM_STATE_FULLSCREEN* ]] && [[ $(pixel 5 5) == *"$blue"* ]]
}

pixel() {
    import -window root -crop "1x1+$1+$2" -depth 8 txt:-
}

# The last window in the window manager's list is the uppermost.
is_on_top() {
    local uppermost
    uppermost=$(xprop -root _NET_CLIENT_LIST_STACKING)
    ((${uppermost##* } == $1))
}

is_seen_whole() {
    local X Y WIDTH HEIGHT
    measure_mini_window
    # Nothing in its place has the other window's colour.
    [[ $(import -window root -crop "${WIDTH}x${HEIGHT}+$X+$Y" +repage miff:- |
        convert - -fill black +opaque "$blue" -fill white -opaque "$blue" -format '%[fx:mean]' info:) == 0 ]]
}

test_the_mini_window_stays_above_a_full_screen_window_that_has_the_focus() {
    # Given
    know_lookup apple
    start_mini_window "${place[@]}"
    # When
    open_full_screen_window
    # Then
    wait_until "the mini window on top" is_on_top "$mini"
    wait_until "the whole mini window on the screen" is_seen_whole
    has_focus "$other" || fail "The full-screen window has lost the focus."
    # When
    copy apple
    wait_for_lookup apple
    # Then
    has_focus "$other" || fail "The full-screen window has lost the focus to a lookup."
    is_on_top "$mini" || fail "The mini window is not on top any more."
}

test_the_mini_window_stays_when_the_full_screen_window_under_it_is_minimised() {
    # Given
    start_mini_window "${place[@]}"
    open_full_screen_window
    wait_until "the mini window on top" is_on_top "$mini"
    # When
    xdotool windowminimize "$other"
    # Then
    wait_until "the end of the full screen" pixel_is_not_blue 5 5
    wait_until "the mini window" is_seen "$mini"
}

pixel_is_not_blue() {
    [[ $(pixel "$1" "$2") != *"$blue"* ]]
}

is_seen() {
    xwininfo -id "$1" | grep -q "Map State: IsViewable"
}

test_a_word_that_was_copied_before_the_start_is_not_looked_up() {
    # Given
    know_lookup apple
    own_clipboard apple
    # When
    start_mini_window "${place[@]}"
    wait_until "a look at what was copied before" owner_said "asked for the text"
    # It comes on top when the time has come for the next look at the clipboard.
    open_full_screen_window
    wait_until "the mini window on top" is_on_top "$mini"
    # Then
    looks_other_than apple || fail "What was copied before has been looked up."
}

test_the_mini_window_stays_above_a_window_that_is_opened_over_it() {
    # Given
    start_mini_window "${place[@]}"
    # When
    xterm -bg "$blue" -fg "$blue" -T "large window" -geometry 150x50+0+0 -e cat 2>"$temp/xterm.log" &
    children+=($!)
    wait_for_title "large window"
    # Then
    wait_until "the mini window on top" is_on_top "$mini"
    wait_until "the whole mini window on the screen" is_seen_whole
}

drag() {
    local x y step
    # shellcheck disable=SC2086  # a place is two words
    in_mini_window $1
    xdotool mousemove "$x" "$y" mousedown 1
    for step in 1 2 3 4; do
        xdotool mousemove $((x + $2 * step / 4)) $((y + $3 * step / 4))
    done
    xdotool mouseup 1
}

is_the_only_window() {
    [[ $(xprop -root _NET_CLIENT_LIST) == *"# $(printf '0x%x' "$1")" ]]
}

test_place_and_mode_of_the_mini_window_survive_a_restart() {
    # Given
    start_mini_window 300 200
    drag "$header_place" 120 -80
    wait_until "the mini window where it was dragged" mini_window_is_at 420 120
    # When
    press alt+F4
    expect_end_with_success
    # Then
    expect_mini_file 6300 1800 1
    # When
    launch_program
    wait_for_mini_window
    # Then
    wait_until "the mini window where it was left" mini_window_is_at 420 120
    is_the_only_window "$mini" || fail "There is another window."
}

test_the_mini_window_is_dragged_by_a_button_which_is_not_pressed() {
    # Given
    start_mini_window 300 200
    # When
    drag "$large_window_button" -100 60
    # Then
    wait_until "the mini window where it was dragged" mini_window_is_at 200 260
    press alt+F4
    expect_end_with_success
    expect_mini_file 3000 3900 1
}

test_the_main_window_that_comes_back_stays_after_a_restart() {
    # Given
    start_mini_window 300 200
    click_in_mini_window "$large_window_button"
    # When the mini window has told that it is lost
    wait_for_title "Zimbora"
    press Return
    wait_for_main_window
    press alt+F4
    expect_end_with_success
    # Then
    expect_mini_file 4500 3000 0
    start_program
    is_the_only_window "$main_window" || fail "There is another window."
}

title_bar_is_on_the_screen() {
    local frame
    frame=$(xprop -id "$main_window" _NET_FRAME_EXTENTS | sed -n 's/.* = //p' | tr -d ,)
    xwininfo -id "$main_window" | awk -v frame="$frame" '
        BEGIN { split(frame, side, " ") }
        /Absolute upper-left Y/ { y = $NF }
        END { exit !(side[3] > 0 && y >= side[3]) }'
}

test_the_main_window_comes_back_from_a_top_corner_with_its_title_bar_on_the_screen() {
    # Given
    start_program
    click "$mini_window_button"
    wait_for_mini_window
    press F2
    measure_mini_window
    wait_until "the mini window in the corner" mini_window_is_near $((1024 - WIDTH)) 0
    # When
    click_in_mini_window "$large_window_button"
    wait_for_title "Zimbora"
    press Return
    wait_for_main_window
    # Then
    wait_until "the title bar on the screen" title_bar_is_on_the_screen
}

# mini_window_is_near <left> <top>: or a pixel beside, as a whole number of twips is rounded.
mini_window_is_near() {
    local X Y WIDTH HEIGHT
    measure_mini_window
    ((X - $1 >= -1 && X - $1 <= 1 && Y - $2 >= -1 && Y - $2 <= 1))
}

test_its_key_takes_the_mini_window_round_the_corners_of_the_screen() {
    # Given
    local X Y WIDTH HEIGHT corner
    start_mini_window 300 200
    measure_mini_window
    local right=$((1024 - WIDTH)) bottom=$((768 - HEIGHT))
    for corner in "$right 0" "$right $bottom" "0 $bottom" "0 0" "$right 0" "$right $bottom"; do
        # When
        press F2
        # Then
        # shellcheck disable=SC2086  # a place is two words
        wait_until "the mini window at $corner" mini_window_is_near $corner
    done
}

# milliseconds_of <command>...
milliseconds_of() {
    local start=${EPOCHREALTIME/[.,]/}
    "$@"
    echo $(((${EPOCHREALTIME/[.,]/} - start) / 1000))
}

# Long enough for a look at the clipboard to fall into it.
look_up_by_typing() {
    local word
    for word in apple house apple house; do
        press ctrl+a
        write "$word"
        wait_for_lookup "$word"
    done
}

# Whoever waits for the owner waits five seconds and more.
expect_quick_typing() {
    local took
    took=$(milliseconds_of look_up_by_typing)
    ((took < 4500)) || fail "It took $took ms to look up what was typed."
}

test_an_owner_of_the_clipboard_that_hangs_at_the_start_does_not_block_typing() {
    # Given
    know_lookup apple house
    printf dog | xclip -quiet -i -selection clipboard >/dev/null 2>&1 &
    owner=$!
    children+=("$owner")
    wait_until "a copied word" copied_outside_is dog
    kill -STOP "$owner"
    # When
    start_mini_window "${place[@]}"
    # Then
    expect_quick_typing
}

copied_outside_is() {
    [[ $(timeout 5 xclip -o -selection clipboard 2>/dev/null) == "$1" ]]
}

test_an_owner_of_the_clipboard_that_hangs_blocks_nothing_and_is_heard_when_it_wakes_up() {
    # Given
    know_lookup apple house dog
    start_mini_window "${place[@]}"
    own_clipboard --hang dog
    # When
    expect_quick_typing
    kill -CONT "$owner"
    # Then
    wait_for_lookup dog
}

test_a_secret_is_not_looked_up() {
    # Given
    know_lookup apple house
    start_mini_window "${place[@]}"
    open_other_window
    # When
    own_clipboard apple
    # Then what is no secret is asked for
    wait_for_lookup apple
    owner_said "asked for the text" || fail "The owner does not tell what it is asked for."
    local mark
    for mark in x-kde-passwordManagerHint ExcludeClipboardContentFromMonitorProcessing; do
        # When
        own_clipboard secretword "$mark"
        wait_until "a look at what there is" owner_said "asked what there is"
        copy house
        wait_for_lookup house
        copy apple
        wait_for_lookup apple
        # Then
        ! owner_said "asked for the text" || fail "A secret marked as $mark was read."
    done
}

test_a_termination_signal_writes_the_file_of_the_mini_window() {
    # Given
    start_mini_window 300 200
    drag "$header_place" 15 30
    wait_until "the mini window where it was dragged" mini_window_is_at 315 230
    # When
    kill -TERM "$program"
    # Then
    expect_end_with_success
    expect_mini_file 4725 3450 1
}

run_tests "$@"
