#!/usr/bin/env bash
# Sounds and music: what the program plays goes into a file instead of the loudspeaker.
set -euo pipefail
source "$(dirname "$0")/lib.sh"

play_into_a_file() {
    heard=$temp/heard.raw
    export SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$heard
}

something_is_heard() {
    [[ -s $heard && -n $(tr -d '\0' <"$heard" | head -c 1 | od -An -tx1) ]]
}

open_music_window() {
    choose alt+b z
    wait_for_title "$(title_of_exercise "Zenei beállítások")"
}

# Behind the two lists; the buttons have nothing to do while nothing is selected.
allow_music() {
    open_music_window
    press Tab Tab space Return
    wait_for_title "$(title_of_exercise "névtelen szószedet")"
}

test_music_is_silent_until_it_is_allowed() {
    # Given
    play_into_a_file
    start_program
    # When
    allow_music
    # Then
    wait_until "music" something_is_heard
    [[ $(head -n 1 "$ZIMBORA_C/zbrmk/kavaro/zenebeáll.ini") == $' 1\r' ]] || fail "The switch was not kept."
}

test_music_goes_on_after_a_restart() {
    # Given
    play_into_a_file
    start_program
    allow_music
    press alt+F4
    expect_end_with_success
    rm -f "$heard"
    # When
    start_program
    # Then
    wait_until "music" something_is_heard
}

test_music_that_plays_names_itself_in_the_titles_of_other_windows() {
    # Given
    play_into_a_file
    start_program
    allow_music
    wait_until "music" something_is_heard
    # When
    choose alt+b h
    # Then
    wait_until "the window of the sounds" title_names_a_piece
}

title_names_a_piece() {
    [[ $(title_in_front) == *".mid - Kavaro Hangbeállítások" ]]
}

test_a_request_to_end_still_asks_after_a_sound() {
    # Given
    play_into_a_file
    start_program
    add_apple
    allow_music
    wait_until "music" something_is_heard
    # When
    kill -TERM "$program"
    # Then
    wait_for_title "Kilépés"
    press alt+n
    expect_end_with_success
}

test_a_machine_without_a_sound_device_is_silent_and_goes_on() {
    # Given
    export SDL_AUDIODRIVER=none_that_exists
    start_program
    allow_music
    # When
    choose alt+b h
    wait_for_title "$(title_of_exercise "Kavaro Hangbeállítások")"
    press Down Down Return
    # Then
    wait_for_title "$(title_of_exercise "névtelen szószedet")"
    press alt+F4
    expect_end_with_success
    [[ ! -s $temp/program.log ]] || fail "The program wrote to the terminal."
}

run_tests "$@"
