#!/usr/bin/env bash
# The ways a word list is opened.
set -euo pipefail
source "$(dirname "$0")/lib.sh"

expect_open_list() {
    wait_for_title "$(title_of_list "$1")"
    expect_selected_pair "$2" "$3"
}

test_a_path_on_the_command_line_is_opened() {
    # Given
    make_list "$lists/animals.szs" "dog:kutya"
    # When
    start_program "$lists/animals.szs"
    # Then
    expect_open_list "$lists/animals.szs" dog kutya
}

test_a_path_in_quotation_marks_is_opened() {
    # Given
    make_list "$lists/árvíztűrő szavak.szs" "drill:fúrógép, őrlő"
    # When
    start_program "\"$lists/árvíztűrő szavak.szs\""
    # Then
    expect_open_list "$lists/árvíztűrő szavak.szs" drill "fúrógép, őrlő"
}

test_a_path_that_is_typed_into_the_file_dialog_is_opened() {
    # Given
    make_list "$lists/animals.szs" "dog:kutya"
    start_program
    # When
    choose alt+f n
    name_file "Megnyitás" "$lists/animals.szs"
    # Then
    expect_open_list "$lists/animals.szs" dog kutya
    expect_lines "$ZIMBORA_C/zbrmkfnh.ini" "$lists/animals.szs"
}

test_a_recent_file_is_opened_from_the_menu() {
    # Given
    make_list "$lists/first.szs" "cat:macska"
    make_list "$lists/űrhajó szavak.szs" "rocket:rakéta"
    bytes_of_lines "$lists/first.szs" "$lists/űrhajó szavak.szs" >"$ZIMBORA_C/zbrmkfnh.ini"
    start_program
    # When
    choose alt+f 2
    # Then
    expect_open_list "$lists/űrhajó szavak.szs" rocket rakéta
    expect_lines "$ZIMBORA_C/zbrmkfnh.ini" "$lists/űrhajó szavak.szs" "$lists/first.szs"
}

# In front, and drawn; the main window is another window.
splash_is_seen() {
    title_in_front_is "Zimbora" &&
        (($(import -window "$(xdotool getactivewindow)" -format %k info:) > 50)) &&
        title_in_front_is "Zimbora"
}

test_the_very_first_start_shows_what_is_starting_and_makes_the_program_folder() {
    # Given a program outside its build folder, and a user who has never started it
    cp "$binary" "$temp/zimbora"
    binary=$temp/zimbora
    unset ZIMBORA_PROGRAM
    # When
    launch_program
    # Then
    wait_until "the splash" splash_is_seen
    wait_for_main_window
    [[ -d $HOME/Documents/Zimbora || -d $HOME/Zimbora ]] || fail "There is no program folder: $(find "$HOME")"
    press alt+F4
    expect_end_with_success
}

run_tests "$@"
