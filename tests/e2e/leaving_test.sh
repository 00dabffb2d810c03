#!/usr/bin/env bash
# The ways out of the program.
set -euo pipefail
source "$(dirname "$0")/lib.sh"

# A window manager that has just put a window in front may miss the key, so it is pressed again.
close_window() {
    local before attempt
    before=$(title_in_front)
    for attempt in 1 2 3; do
        press alt+F4
        patience=3 within_patience closing_has_begun "$before" && return
    done
    fail "Alt+F4 does nothing."
}

# closing_has_begun <the title in front before it>
closing_has_begun() {
    program_has_ended || [[ $(title_in_front) != "$1" ]]
}

# The buttons of the question: Igen, Nem, Mégsem. The first has the focus.
answer_yes() {
    press alt+i
}

answer_no() {
    press alt+n
}

answer_cancel() {
    press Tab Tab space
}

test_an_unchanged_list_is_left_without_a_question() {
    # Given
    make_list "$lists/animals.szs" "dog:kutya"
    start_program "$lists/animals.szs"
    # When
    close_window
    # Then
    expect_end_with_success
}

test_no_leaves_without_writing_a_file() {
    # Given
    start_program
    add_apple
    close_window
    wait_for_title "Kilépés"
    # When
    answer_no
    # Then
    expect_end_with_success
    expect_no_list_written
}

test_no_leaves_the_file_of_the_list_as_it_was() {
    # Given
    make_list "$lists/animals.szs" "dog:kutya" "cat:macska"
    start_program "$lists/animals.szs"
    click "$first_pair"
    click "$delete_button"
    expect_selected_pair cat macska
    close_window
    wait_for_title "Kilépés"
    # When
    answer_no
    # Then
    expect_end_with_success
    expect_lines "$lists/animals.szs" "dog:kutya" "cat:macska"
}

test_cancel_keeps_the_program_and_its_unsaved_pairs() {
    # Given
    start_program
    add_apple
    close_window
    wait_for_title "Kilépés"
    # When
    answer_cancel
    # Then
    wait_for_main_window
    expect_selected_pair apple alma
    close_window
    wait_for_title "Kilépés"
}

test_yes_asks_for_a_name_and_saves_before_the_end() {
    # Given
    start_program
    add_apple
    close_window
    wait_for_title "Kilépés"
    # When
    answer_yes
    name_file "Mentés másként" "$lists/last.szs"
    # Then
    expect_end_with_success
    expect_lines "$lists/last.szs" "apple:alma"
}

test_a_save_that_is_cancelled_keeps_the_program() {
    # Given
    start_program
    add_apple
    close_window
    wait_for_title "Kilépés"
    # When
    answer_yes
    wait_for_title "Mentés másként"
    press Escape
    # Then
    wait_for_main_window
    expect_selected_pair apple alma
    expect_no_list_written
}

test_a_termination_signal_ends_an_unchanged_program() {
    # Given
    start_program
    # When
    kill -TERM "$program"
    # Then
    expect_end_with_success
}

test_a_termination_signal_asks_about_unsaved_pairs() {
    # Given
    start_program
    add_apple
    # When
    kill -TERM "$program"
    # Then
    wait_for_title "Kilépés"
    # When
    answer_cancel
    # Then
    wait_for_main_window
    expect_selected_pair apple alma
}

run_tests "$@"
