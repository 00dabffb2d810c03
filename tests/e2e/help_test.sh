#!/usr/bin/env bash
# The help viewer in the whole program, with its real engine and document.
set -euo pipefail
source "$(dirname "$0")/lib.sh"

readonly help_title="Zimbora súgó"

open_help() {
    press F1
    wait_for_title "$help_title"
}

engine_is_loaded() {
    grep -q WebEngine "/proc/$program/maps"
}

test_the_engine_of_the_help_is_loaded_when_the_help_opens_and_not_before() {
    # Given
    start_program
    ! engine_is_loaded || fail "The engine is loaded before the help is opened."
    # When
    open_help
    # Then
    engine_is_loaded || fail "The help is shown without its engine."
}

test_the_program_goes_on_after_the_help_and_ends_well() {
    # Given
    start_program
    open_help
    # When
    press alt+F4
    # Then
    wait_until "the main window in front" main_window_is_in_front
    look_up apple alma
    press alt+F4
    expect_end_with_success
}

test_the_program_ends_while_the_help_is_open() {
    # Given
    start_program
    open_help
    # When
    xdotool windowactivate --sync "$main_window"
    wait_until "the main window in front" main_window_is_in_front
    press alt+F4
    # Then
    expect_end_with_success
}

test_the_page_of_the_makers_opens_from_the_menu() {
    # Given
    start_program
    # When
    choose alt+i Up Return
    # Then
    wait_for_title "A Zimbora lapja"
}

test_an_address_that_is_refused_is_told_and_the_help_stays() {
    # Given
    start_program
    open_help
    # When
    press alt+a ctrl+a
    paste "file:///etc/passwd"
    wait_for_text "file:///etc/passwd"
    press Return
    # Then a note that goes by itself
    wait_until "a note in front" title_in_front_is_not "$help_title"
    wait_for_title "$help_title"
}

title_in_front_is_not() {
    local title
    title=$(title_in_front) && [[ -n $title && $title != "$1" && $title != "Working..." ]]
}

test_the_program_without_the_engine_says_so_and_goes_on() {
    # Given a copy of the program without its plug-ins
    mkdir "$temp/bin"
    cp "$binary" "$temp/bin"
    binary=$temp/bin/$(basename "$binary")
    start_program
    # When
    press F1
    # Then
    wait_for_title "Zimbora"
    press Return
    wait_for_title "Kavaro - Súgó"
    press alt+F4
    wait_until "the main window in front" main_window_is_in_front
    press alt+F4
    expect_end_with_success
}

run_tests "$@"
